#pragma once

#include "jet/database.h"

#include <QDate>

namespace core {

struct JournalEntry {
    QString categ1;
    QString categ2;
    QString description;
    QDate date;
    QString fromId; ///< the origin's key; an entry of the same origin is overwritten
    QString source;
    QString subsource;
};

/// Records a dated event of another screen, once for each origin.
void SaveJournal(jet::Database& data, const JournalEntry& entry);

} // namespace core
