#pragma once

#include "jet/database.h"
#include "letters/creator/letter_text.h"

#include <QDate>

#include <functional>

namespace platform {
class Drive;
}

namespace letters {

/// A letter as it is kept in the record, but for what differs from reader to reader.
struct LetterToKeep {
    LetterParts parts = {};
    QString caption = {}; ///< of the stored text that it was made from
    QString category = {};
    QString type = {};
    QString serialNumber = {};
    QString kind = {}; ///< "Personal", "Business" or the occasion
    QString note = {};
    bool hasNote = false; ///< the letter creator that has a field for it
    QDate date = {};
    QDate today = {};
    QString folder = {}; ///< where the looks of letters are kept
};

/// What the letter says to one of its readers.
using MergedFor = std::function<formats::RichText(const Recipient&)>;

/// Keeps a letter: one row a reader, with an entry of the journal each where the settings ask for it, all of
/// them or none. A letter with looks is kept as a file besides, which is written before its row.
/// @return why nothing was kept, as a piece of a sentence, when a file could not be written; an empty text
///         when the book could not; nothing when all is kept
std::optional<QString> keepLetters(jet::Database& data, const platform::Drive& drive,
    const LetterToKeep& letter, const QList<Recipient>& recipients, const MergedFor& mergedFor);

/// A letter of the record.
struct StoredLetter {
    LetterToKeep letter = {};
    Recipient recipient = {};
    formats::RichText merged = {}; ///< with its looks, where the file with them still says the same
};
std::optional<StoredLetter> storedLetter(jet::Database& data, const platform::Drive& drive, qint64 letterId);

/// Puts those that a letter goes to into the work table of the preview; false when it could not be stored.
bool fillPreviewRows(jet::Database& data, const LetterParts& parts, const QList<Recipient>& recipients);

} // namespace letters
