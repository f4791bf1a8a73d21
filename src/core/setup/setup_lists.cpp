#include "core/setup/setup_lists.h"

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace setup {

namespace {

constexpr QStringView kOther = u"CNTB_OTHER";
constexpr QStringView kOther1 = u"CNTB_OTHER1";

// Kept: the buttons of status and education are named crosswise.
constexpr WordList kLists[] = {
    {ListTab::SavedCalls, QT_TRANSLATE_NOOP("setup", "Purpose"), u"Purpose", kOther, u"PURPOSE", u"",
        u"SSCommand41", u"SSCommand40", u"update cntb_other set [PURPOSE] = '", u"' where [PURPOSE] = '",
        u"select * from CNTB_OTHER where [PURPOSE]='"},
    {ListTab::SavedCalls, QT_TRANSLATE_NOOP("setup", "Response"), u"Response", kOther, u"RESPONSE", u"",
        u"SSCommand41", u"SSCommand40", u"update cntb_other set [RESPONSE] = '", u"' where [RESPONSE] = '",
        u"select * from CNTB_OTHER where [RESPONSE]='"},
    {ListTab::Personal, QT_TRANSLATE_NOOP("setup", "Relation"), u"Relation", kOther1, u"RELATION",
        u"RELATIONVERSION", u"SSCommand22", u"SSCommand15", u"UPDATE [cntb_other1] SET relation='",
        u"' WHERE relation='", u"select * from CNTB_OTHER1 where [RELATION] = '"},
    {ListTab::Personal, QT_TRANSLATE_NOOP("setup", "Religion"), u"Religion", kOther1, u"RELIGION",
        u"ReligionVersion", u"cmdreladd", u"cmdreldel", u"update cntb_other1 set religion='",
        u"' where religion='", u"select * from CNTB_OTHER1 where [RELIGION] = '"},
    {ListTab::Personal, QT_TRANSLATE_NOOP("setup", "Education"), u"Education", kOther1, u"EDUCATION",
        u"EducationVersion", u"cmdstadd", u"cmdeddel", u"UPDATE [cntb_other1] SET education='",
        u"' WHERE education='", u"select * from CNTB_OTHER1 where [EDUCATION] = '"},
    {ListTab::Personal, QT_TRANSLATE_NOOP("setup", "Hobbies"), u"Hobbies", kOther1, u"Hobbies", u"",
        u"CmdHBSave", u"CmdHBDelete", u"UPDATE [cntb_other1] SET Hobbies='", u"' WHERE hobbies='",
        u"select * from CNTB_OTHER1 where [Hobbies] = '"},
    {ListTab::Business, QT_TRANSLATE_NOOP("setup", "Job title"), u"JobTitle", kOther, u"JOBTITLE", u"",
        u"cmdjtadd", u"cmdjtdel", u"update [cntb_other] set jobtitle='", u"' where jobtitle='",
        u"select * from CNTB_OTHER where [JOBTITLE] = '"},
    {ListTab::Business, QT_TRANSLATE_NOOP("setup", "Product"), u"Product", kOther, u"PRODUCT", u"",
        u"cmdpradd", u"cmdprdel", u"UPDATE [cntb_other] SET product='", u"' WHERE product='",
        u"select * from CNTB_OTHER where [PRODUCT] = '"},
    {ListTab::Business, QT_TRANSLATE_NOOP("setup", "Status"), u"Status", kOther, u"STATUS", u"", u"cmdedadd",
        u"cmdstdel", u"UPDATE [cntb_other] SET Status='", u"' WHERE Status='",
        u"select * from CNTB_OTHER where [STATUS] = '"},
    {ListTab::General, QT_TRANSLATE_NOOP("setup", "Address type"), u"AddType", kOther, u"ADDTYPE", u"",
        u"cmdadadd", u"cmdaddel", u"update cntb_other set AddType='", u"' where AddType='",
        u"select * from CNTB_OTHER where [ADDTYPE] = '"},
    {ListTab::General, QT_TRANSLATE_NOOP("setup", "Region"), u"Region", kOther1, u"REGION", u"RegionVersion",
        u"CmdRegionAdd", u"CmdRegionDel", u"UPDATE [cntb_other1] SET Region='", u"' WHERE Region='",
        u"select * from CNTB_OTHER1 where [REGION] = '"},
    {ListTab::UserDefined, QT_TRANSLATE_NOOP("setup", "User 1"), u"User1", kOther, u"USER1", u"", u"Command7",
        u"Command6", u"update cntb_other set user1='", u"' where user1='",
        u"select * from CNTB_OTHER where [USER1]= '", u"lbluse1"},
    {ListTab::UserDefined, QT_TRANSLATE_NOOP("setup", "User 2"), u"User2", kOther, u"USER2", u"", u"Command5",
        u"Command4", u"update cntb_other set user2='", u"' where user2='",
        u"select * from CNTB_OTHER where [USER2]= '", u"lbluse2"},
    {ListTab::UserDefined, QT_TRANSLATE_NOOP("setup", "User 3"), u"User3", kOther, u"USER3", u"",
        u"SSCommand29", u"SSCommand27", u"update cntb_other set user3='", u"' where user3='",
        u"select * from CNTB_OTHER where [USER3]= '", u"lbluse3"},
};

} // namespace

std::span<const WordList> wordLists()
{
    return kLists;
}

// The person keeps all words here, also those that the forms show in one country only.
QString listSql(const WordList& list)
{
    return u"select distinct [%1] from %2 where [%1] is not null and [%1] <>'' order by [%1]"_s.arg(
        list.column, list.table);
}

QString renameSql(const WordList& list, const QString& from, const QString& to)
{
    return list.renameTo.toString() + to + list.renameFrom.toString() + from + u'\'';
}

QString findSql(const WordList& list, const QString& word)
{
    return list.find.toString() + word + u'\'';
}

WordFault checkWord(jet::Database& data, const WordList& list, const QString& from, const QString& word)
{
    if (word.isEmpty())
        return WordFault::Empty;
    if (word == from)
        return WordFault::Unchanged;
    const bool respelled = !from.isEmpty() && word.compare(from, Qt::CaseInsensitive) == 0;
    return !respelled && !data.openRecordset(findSql(list, word)).isEmpty() ? WordFault::Known
                                                                            : WordFault::None;
}

// A word is a row of its own, in which the other lists are empty. What the person adds holds in every
// country, or it would not be on offer outside the home country.
bool addWord(jet::Database& data, const WordList& list, const QString& word)
{
    const QString columns = list.versionColumn.isEmpty()
        ? list.column.toString()
        : list.column.toString() + u',' + list.versionColumn.toString();
    jet::Recordset rows = data.openRecordset(u"select "_s + columns + u" from "_s + list.table.toString());
    rows.addNew();
    rows.set(list.column, word);
    if (!list.versionColumn.isEmpty())
        rows.set(list.versionColumn, u"C"_s);
    return rows.update();
}

bool renameWord(jet::Database& data, const WordList& list, const QString& from, const QString& to)
{
    return data.execute(renameSql(list, from, to)).changed > 0;
}

// Kept: the whole row goes, with whatever other lists have in it; of several rows with the word, the first.
bool deleteWord(jet::Database& data, const WordList& list, const QString& word)
{
    jet::Recordset rows = data.openRecordset(findSql(list, word));
    return rows.hasRow() && rows.removeCurrent();
}

} // namespace setup
