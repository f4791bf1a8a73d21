#pragma once

#include "jet/database.h"

#include <functional>

namespace platform {
class Drive;
}

/// Contacts of the book as text files on a drive, in code page 1252. A file is written beside and takes the
/// place of the old one when it is whole; no question is asked. A character that the code page lacks becomes
/// '?'.
namespace core {

/// Where contacts come from and where their text goes.
struct TextExport {
    jet::Database& book;
    const platform::Drive& drive;
    QString folder; ///< as the program writes paths; made when it is not there
    QString datePattern; ///< of the dates in the text
};

struct TextSaved {
    enum class Outcome {
        Written,
        NoContacts, ///< nothing was written
        BadName, ///< the name of the contact is no file name
        Failed,
        Stopped, ///< by the person; the old file is as it was
    };
    Outcome outcome = Outcome::NoContacts;
    QString path = {}; ///< of the file, as the program writes paths
    int contacts = 0; ///< in the file
    QString why = {}; ///< a piece of a sentence, when it failed
};

/// How many contacts are done; the answer false stops the work.
using TextProgress = std::function<bool(int done)>;

/// One contact, in a file of its own.
TextSaved SaveRecordText(const TextExport& to, qint64 id);
/// Those of a list of ids with "," between.
TextSaved SaveSelectedText(const TextExport& to, const QString& idList, const TextProgress& progress = {});
/// The whole book by name, contact after contact, so that memory does not grow with it.
TextSaved SaveAllText(const TextExport& to, const TextProgress& progress = {});
/// The same without labels, and into the same file.
TextSaved SaveAllTextShort(const TextExport& to, const TextProgress& progress = {});

} // namespace core
