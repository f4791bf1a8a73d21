#pragma once

#include "core/vcard_export.h"
#include "formats/card_writer.h"
#include "jet/database.h"

namespace platform {
class Drive;
}

namespace transfer {

struct CardExport {
    formats::CardVersion version = formats::CardVersion::Three;
    QString file; ///< of this computer: all contacts in it; empty for a file each in the folder
    QString folder; ///< as the program writes paths
};

/// Writes the contacts with these numbers. One file is written whole or not at all. Where each has a file of
/// its own, that is named by the contact as far as the drive allows it, with a number where two have one
/// name, so that none is lost.
core::CardsWritten exportCards(jet::Database& book, const platform::Drive& drive,
    const formats::CardColumns& columns, const QList<qint64>& ids, const CardExport& target,
    const core::CardProgress& progress = {});

} // namespace transfer
