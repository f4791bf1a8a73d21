#include "core/journal.h"

using namespace Qt::StringLiterals;

namespace core {

void SaveJournal(jet::Database& data, const JournalEntry& entry)
{
    jet::Recordset rows
        = data.openRecordset(u"select * from OV_JOURNAL where [FROMID]='"_s + entry.fromId + u"'"_s);
    if (!rows.isValid())
        return;
    if (rows.isEmpty()) {
        rows.addNew();
        rows.set(u"fromId", entry.fromId);
    } else {
        rows.edit();
    }
    rows.set(u"JDate", entry.date);
    rows.set(u"Priority", u"4"_s);
    rows.set(u"categ1", entry.categ1);
    rows.set(u"categ2", entry.categ2);
    rows.set(u"desc", entry.description);
    rows.set(u"Source", entry.source);
    rows.set(u"Subsource", entry.subsource);
    rows.update();
}

} // namespace core
