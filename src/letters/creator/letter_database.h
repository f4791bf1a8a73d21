#pragma once

#include "letters/creator/letter_text.h"

#include <functional>

namespace platform {
class Drive;
}

namespace letters {

/// The empty database from which those with letters are made; where it is gone it is made anew.
inline constexpr QStringView kLetterTemplate = u"C:\\OVUserFiles\\Letter.mdb";

struct LetterDatabase {
    QString csv = {}; ///< the file beside it
    QString whyNot = {}; ///< a piece of a sentence, when it could not be written
};

/// Writes letters into a database of their own, one row a reader, in the table that other programs of the
/// suite read, and the same rows as a CSV file beside it. The file that bears the name is replaced when the
/// new one is whole.
/// @param file on this computer
LetterDatabase writeLetterDatabase(const platform::Drive& drive, const QString& file,
    const QList<Recipient>& recipients, const std::function<formats::RichText(const Recipient&)>& letterTo);
} // namespace letters
