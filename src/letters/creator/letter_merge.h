#pragma once

#include "letters/creator/letter_text.h"
#include "platform/word_processor.h"

#include <QDate>

namespace letters {

/// Writes a letter to several through the word processor: the rows of its readers, a document with their
/// names and addresses as fields, the text, and the merge of them.
/// @param text of the letter below its address
/// @param folder of the merged document
/// @return nothing when there is no word processor
std::optional<platform::MergeResult> mergeLetters(platform::WordProcessor& words,
    const formats::RichText& text, const QList<Recipient>& recipients, const QString& folder,
    const QDate& today);

/// The letter as it stands, as a file of its own; with the same text for the journal where that is kept.
inline constexpr QStringView kLetterFile = u"C:\\Letter.rtf";
inline constexpr QStringView kJournalFile = u"C:\\Journal.rtf";
/// Its pages, the first below a title with the day.
QByteArray letterFile(const QList<formats::RichText>& letters, const QString& title, const QDate& today);

} // namespace letters
