#pragma once

#include "formats/card_file.h"
#include "jet/database.h"

#include <functional>

namespace platform {
class Drive;
}

namespace core {

struct CardsWritten {
    int written = 0; ///< contacts
    int badNames = 0; ///< contacts whose name is no file name
    QStringList refused; ///< their names, as many of them as a person would read
    int failed = 0; ///< contacts whose file could not be written
    QStringList shared; ///< names that more than one of the contacts has: there is one file of each
    int overwritten = 0; ///< contacts whose file was replaced by that of a later one
    bool stopped = false; ///< by the person
    QString stoppedBy; ///< why nothing more can be written in the folder
};

/// How many contacts are done; the answer false stops the work. Every contact written until then stays.
using CardProgress = std::function<bool(int done)>;

/// Writes one vCard file for each contact of a list of ids with "," between, named by the contact. Of two
/// with one name the later wins. When the folder takes nothing more, as on a full disk, the rest is left.
CardsWritten WriteVCards(jet::Database& book, const platform::Drive& drive, const QString& idList,
    const QString& folder, const CardProgress& progress = {});

/// The file for what stands in an entry form.
bool WriteVCardValues(const platform::Drive& drive, const QString& folder, const formats::CardValues& values);

/// A file among the program's own cards for the sender of a mail, which another mail program can take in.
bool writeSenderCard(const platform::Drive& drive, const QString& name, const QString& email);

} // namespace core
