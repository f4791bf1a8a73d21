#include "letters/ltr_setup/stored_lists.h"

#include "core/sql_text.h"

#include <QtGlobal>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kPhrases = u"CNTB_LETTER";
constexpr QStringView kMailDatabase = u"Cntb_Emaildb";
constexpr QStringView kTexts = u"CNT_LETTERCONTENT";
constexpr QStringView kWordsByKind = u"GF_MAST";

// Kept: the openings stand on two pages, and each takes one away by a statement of its own spelling. The
// two questions before a stored text goes are spelled differently, too.
constexpr StoredList kLists[] = {
    {ListTab::Openings, u"Opening", QT_TRANSLATE_NOOP("letters", "Openings"), u"Opening", kPhrases,
        u"OpenChoice", u"select * from CNTB_LETTER", u"UPDATE [cntb_letter] SET OpenChoice='",
        u"' WHERE OpenChoice='", u"'", Removal::ClearColumn,
        u"UPDATE [cntb_letter] SET OpenChoice = null WHERE OpenChoice = '", u"'"},
    {ListTab::Openings, u"Closing", QT_TRANSLATE_NOOP("letters", "Closings"), u"Closing", kPhrases,
        u"closechoice", u"select * from CNTB_LETTER", u"UPDATE [cntb_letter] SET closechoice = '",
        u"' WHERE closechoice = '", u"'", Removal::ClearRows,
        u"select * from CNTB_LETTER where [closechoice] = '", u"'"},
    {ListTab::Openings, u"Remarks", QT_TRANSLATE_NOOP("letters", "Remarks"), u"Remarks", kPhrases, u"REMARKS",
        u"select * from CNTB_LETTER", u"UPDATE [cntb_letter] SET remarks = '", u"' WHERE remarks = '", u"'",
        Removal::ClearRows, u"select * from CNTB_LETTER where [REMARKS] = '", u"'"},
    {ListTab::Openings, u"Messages", QT_TRANSLATE_NOOP("letters", "Short messages"), u"Messages", kPhrases,
        u"Memo1", u"select * from CNTB_LETTER", u"UPDATE [cntb_letter] SET Memo1='", u"' WHERE Memo1='", u"'",
        Removal::ClearRows, u"select * from CNTB_LETTER where [Memo1] = '", u"'"},
    {ListTab::LetterTexts, u"Texts", QT_TRANSLATE_NOOP("letters", "Texts for letters"), u"LetterText", kTexts,
        u"ltCaption", u"select * from CNT_LETTERCONTENT where emil_ltr <> 'Email' order by LtCaption", u"",
        u"", u"", Removal::ByRow, u"select * from CNT_LETTERCONTENT where [ID] = ", u"", u"emil_ltr",
        u"Letter", u"", u"SSCommand20",
        QT_TRANSLATE_NOOP("letters", " Are you sure you want to delete this record")},
    {ListTab::MailTexts, u"Email texts", QT_TRANSLATE_NOOP("letters", "Texts for e-mail"), u"MailText",
        kTexts, u"ltCaption",
        u"select * from CNT_LETTERCONTENT where [EMIL_LTR]<>'Letter' order by LtCaption", u"", u"", u"",
        Removal::ByRow, u"select * from CNT_LETTERCONTENT where [ID] = ", u"", u"emil_ltr", u"Email", u"",
        u"SSCommand21", QT_TRANSLATE_NOOP("letters", " Are you sure you want to delete this Record")},
    {ListTab::Categories, u"Types", QT_TRANSLATE_NOOP("letters", "Letter types"), u"Types", kWordsByKind,
        u"ITEM", u"select * from GF_MAST where [ITMTYP]='Ltyp' and [ITEM] <> null",
        u"UPDATE [gf_mast] SET item='", u"' WHERE itmtyp='Ltyp' AND item='", u"'", Removal::ByStatement,
        u"delete * from GF_MAST where [ITEM] = '", u"' and [ITMTYP]='Ltyp'", u"ITMTYP", u"Ltyp"},
    // Kept: a new category is stored as "LtCat" and read as 'Ltcat'.
    {ListTab::Categories, u"Categories", QT_TRANSLATE_NOOP("letters", "Letter categories"), u"Categories",
        kWordsByKind, u"ITEM", u"select * from GF_MAST where [ITMTYP]='Ltcat' and [ITEM] <> null",
        u"UPDATE [gf_mast] SET item='", u"' WHERE item='", u"' AND itmtyp='Ltcat'", Removal::ByStatement,
        u"delete * from GF_MAST where [ITEM] = '", u"' and [ITMTYP] = 'Ltcat'", u"ITMTYP", u"LtCat"},
    {ListTab::Mail, u"Email categories", QT_TRANSLATE_NOOP("letters", "E-mail categories"), u"MailCategories",
        kWordsByKind, u"ITEM", u"select * from GF_MAST where [ITMTYP]='Email'",
        u"update GF_MAST set [ITEM]='", u"' where [ITEM]='", u"' and [ITMTYP]='Email'", Removal::ByStatement,
        u"delete * from GF_MAST where [ITEM]='", u"' AND [ITMTYP]='Email'", u"ITMTYP", u"Email", u"", u"", "",
        u"Save"},
    {ListTab::Mail, u"Email openings", QT_TRANSLATE_NOOP("letters", "Openings of letters and e-mail"),
        u"MailOpening", kPhrases, u"OpenChoice", u"select * from CNTB_LETTER",
        u"UPDATE [cntb_letter] SET OpenChoice='", u"' WHERE OpenChoice='", u"'", Removal::ClearColumn,
        u"update CNTB_LETTER set [OPENCHOICE] = null where [OPENCHOICE] = '", u"'"},
    {ListTab::Phrases, u"Phrases", QT_TRANSLATE_NOOP("letters", "Phrases to insert"), u"Phrases",
        u"cnt_emailInsert", u"Head", u"Select * from Cnt_Emailinsert order by Head", u"", u"", u"",
        Removal::ByRow, u"delete * from Cnt_Emailinsert where head = '", u"'", u"", u"", u"cmdsv"},
    {ListTab::Phrases, u"Words", QT_TRANSLATE_NOOP("letters", "Common words"), u"Words", u"OV_CmmWrds",
        u"word", u"Select * from OV_Cmmwrds order by word", u"UPDATE [OV_cmmwrds] SET word='",
        u"' WHERE word='", u"'", Removal::ByStatement, u"delete * from OV_cmmwrds where [word] = '", u"'"},
    {ListTab::MailDatabase, u"Email lists", QT_TRANSLATE_NOOP("letters", "Follow-up"), u"Followup",
        kMailDatabase, u"Followup", u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET followup='",
        u"' WHERE followup='", u"'", Removal::ByStatement, u"delete * from Cntb_Emaildb where [Followup] = '",
        u"'", u"", u"", u"CmdSave1", u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Group"), u"Group", kMailDatabase, u"Group",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET [Group]='", u"' WHERE [Group]='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [Group] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Action"), u"Action", kMailDatabase, u"Action",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET [Action]='", u"' WHERE [Action]='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [Action] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Type"), u"Type", kMailDatabase, u"Type",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET Type='", u"' WHERE Type='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [type] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Category"), u"Category", kMailDatabase,
        u"Category", u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET Category='",
        u"' WHERE Category='", u"'", Removal::ByStatement, u"delete * from Cntb_Emaildb where [Category] = '",
        u"'", u"", u"", u"CmdSave1", u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Product"), u"Product", kMailDatabase,
        u"Product", u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET Product='",
        u"' WHERE Product='", u"'", Removal::ByStatement, u"delete * from Cntb_Emaildb where [Product] = '",
        u"'", u"", u"", u"CmdSave1", u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Amount"), u"Amount", kMailDatabase, u"Amount",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET [Amount]='", u"' WHERE [Amount]='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [Amount] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Rate"), u"Rate", kMailDatabase, u"Rate",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET [Rate]='", u"' WHERE [Rate]='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [Rate] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
    {ListTab::MailDatabase, u"", QT_TRANSLATE_NOOP("letters", "Quantity"), u"Qty", kMailDatabase, u"Qty",
        u"select * from Cntb_emaildb", u"UPDATE [cntb_emaildb] SET [Qty]='", u"' WHERE [Qty]='", u"'",
        Removal::ByStatement, u"delete * from Cntb_Emaildb where [Qty] = '", u"'", u"", u"", u"CmdSave1",
        u"CmdDel1"},
};

/// The place of a row among those of a recordset; -1 when it is gone.
int rowOfKey(const jet::Recordset& rows, qint64 key)
{
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.keyAt(row) == key)
            return row;
    }
    return -1;
}

bool store(jet::Recordset& rows, const Entry& entry)
{
    bool fits = true;
    for (const auto& [column, value] : entry.asKeyValueRange())
        fits = rows.set(column, value) && fits;
    return fits ? rows.update() : (rows.cancelUpdate(), false);
}

bool clearRows(jet::Database& data, const StoredList& list, const QString& value)
{
    jet::Batch batch(data);
    jet::Recordset rows = data.openRecordset(removeSql(list, value));
    const bool found = rows.hasRow();
    for (rows.moveFirst(); rows.hasRow(); rows.moveNext()) {
        rows.edit();
        rows.set(list.column, QVariant());
        rows.update();
    }
    return batch.commit() && found;
}

} // namespace

std::span<const StoredList> storedLists()
{
    return kLists;
}

bool hasSeveralFields(const StoredList& list)
{
    return list.renameTo.isEmpty();
}

// Lists of words skip rows that hold words of other lists only, and show a word once.
QString listSql(const StoredList& list)
{
    if (hasSeveralFields(list) || list.table == u"OV_CmmWrds")
        return list.read.toString();
    const qsizetype where = list.read.indexOf(u" where ");
    return u"select distinct [%1] from %2%3 [%1] is not null and [%1] <> '' order by [%1]"_s.arg(
        list.column, list.table, where < 0 ? u" where"_s : list.read.sliced(where).toString() + u" and"_s);
}

QString renameSql(const StoredList& list, const QString& from, const QString& to)
{
    return list.renameTo.toString() + core::inQuotes(to) + list.renameFrom.toString() + core::inQuotes(from)
        + list.renameEnd.toString();
}

QString removeSql(const StoredList& list, const QString& value)
{
    return list.remove.toString() + core::inQuotes(value) + list.removeEnd.toString();
}

Entry entryOf(jet::Database& data, const StoredList& list, qint64 key)
{
    const bool isText = list.table == kTexts;
    jet::Recordset rows
        = data.openRecordset(isText ? list.remove.toString() + QString::number(key) : list.read.toString());
    Entry entry;
    if (!rows.moveTo(isText ? 0 : rowOfKey(rows, key)))
        return entry;
    const QStringList columns = rows.columns();
    for (int column = 0; column < columns.size(); ++column)
        entry.insert(columns[column].toLower(), rows.value(column));
    return entry;
}

EntryFault checkEntry(jet::Database& data, const StoredList& list, const QString& from, const QString& value)
{
    if (value.trimmed().isEmpty())
        return EntryFault::Empty;
    if (!from.isEmpty() && value.compare(from, Qt::CaseInsensitive) == 0)
        return EntryFault::None;
    const jet::Recordset rows = data.openRecordset(listSql(list));
    const int column = rows.columnIndex(list.column);
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.textAt(row, column).compare(value, Qt::CaseInsensitive) == 0)
            return EntryFault::Known;
    }
    return EntryFault::None;
}

bool addEntry(jet::Database& data, const StoredList& list, const Entry& entry)
{
    jet::Recordset rows = data.openRecordset(u"select * from "_s + list.table.toString());
    rows.addNew();
    if (!list.kindColumn.isEmpty() && !entry.contains(list.kindColumn.toString().toLower()))
        rows.set(list.kindColumn, list.kind.toString());
    if (list.table == kWordsByKind)
        rows.set(u"delst", u"N"_s);
    return store(rows, entry);
}

bool changeEntry(jet::Database& data, const StoredList& list, const EntryPlace& place, const Entry& entry)
{
    if (!hasSeveralFields(list))
        return data.execute(
                       renameSql(list, place.value, entry.value(list.column.toString().toLower()).toString()))
                   .changed
            > 0;
    jet::Recordset rows = data.openRecordset(list.read.toString());
    if (place.key == 0 || !rows.moveTo(rowOfKey(rows, place.key)))
        return false;
    rows.edit();
    return store(rows, entry);
}

bool removeEntry(jet::Database& data, const StoredList& list, const EntryPlace& place)
{
    if (list.removal == Removal::ClearRows)
        return clearRows(data, list, place.value);
    if (list.removal != Removal::ByRow)
        return data.execute(removeSql(list, place.value)).changed > 0;
    jet::Recordset rows = data.openRecordset(list.read.toString());
    const int column = rows.columnIndex(list.column);
    int alike = 0;
    for (int row = 0; row < rows.count(); ++row)
        alike += rows.textAt(row, column).compare(place.value, Qt::CaseInsensitive) == 0;
    // The statement takes all that are alike; where there are several, only the one is meant.
    if (list.kindColumn.isEmpty() && alike == 1)
        return data.execute(removeSql(list, place.value)).changed > 0;
    return rows.moveTo(rowOfKey(rows, place.key)) && rows.removeCurrent();
}

} // namespace letters
