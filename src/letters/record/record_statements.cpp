#include "letters/record/record_statements.h"

#include "core/sql_text.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

struct Order {
    QStringView tool;
    QStringView columns;
};
constexpr Order kOrders[] = {
    {u"Refresh", u"Date,Type1"},
    {u"SortByType", u"Type1,Date"},
    {u"SortByName", u"Person,Date"},
    {u"SortByDate", u"Date"},
    {u"SortByName,Date", u"Person,Date"},
};

constexpr QStringView kFound[] = {u"person", u"MERGED", u"desc", u"note", u"mailcateg", u"Mailtype", u"city"};

constexpr QStringView kMonth = u"format(Date,'yyyy-mm')";

QString equals(QStringView column, const QString& value)
{
    return value.isEmpty() ? u"(%1 is null or %1 ='')"_s.arg(column)
                           : u"%1 ='%2'"_s.arg(column, core::inQuotes(value));
}

QString groupCondition(const LetterChoice& choice)
{
    switch (choice.group) {
    case LetterGroup::Person:
        return choice.person != 0 ? u"PerId =%1"_s.arg(choice.person)
                                  : u"(PerId is null or PerId=0) and "_s + equals(u"person", choice.name);
    case LetterGroup::Category: return equals(u"mailcateg", choice.name);
    case LetterGroup::Month:
        return choice.name.isEmpty() ? u"Date is null"_s
                                     : kMonth.toString() + u"='"_s + core::inQuotes(choice.name) + u'\'';
    }
    Q_UNREACHABLE();
}

} // namespace

QString recordSql(QStringView order)
{
    QStringView columns = kOrders[0].columns;
    for (const Order& each : kOrders) {
        if (each.tool == order)
            columns = each.columns;
    }
    return u"select * from CNT_LETTERS order by "_s + columns.toString();
}

QString recordOfSql(qint64 person)
{
    return u"select * from CNT_LETTERS where PerId= %1 order by Date,Type1"_s.arg(person);
}

QString letterRowSql(qint64 letter)
{
    return u"select * from CNT_LETTERS where id= "_s + QString::number(letter);
}

QString deleteLetterSql(qint64 letter)
{
    return u"Delete  from cnt_letters where id ="_s + QString::number(letter);
}

QString letterGroupsSql(LetterGroup group)
{
    switch (group) {
    case LetterGroup::Person:
        return u"select iif(PerId is null,0,PerId) as [key],person as name,count(*) as letters from "
               u"cnt_letters "
               "group by iif(PerId is null,0,PerId),person order by person"_s;
    case LetterGroup::Category:
        return u"select mailcateg as name,count(*) as letters from cnt_letters group by mailcateg "
               "order by mailcateg"_s;
    case LetterGroup::Month:
        return u"select %1 as name,count(*) as letters from cnt_letters group by %1 order by %1 desc"_s.arg(
            kMonth);
    }
    Q_UNREACHABLE();
}

QString lettersOfSql(const LetterChoice& choice)
{
    QStringList terms;
    if (!choice.isAll)
        terms << groupCondition(choice);
    for (const QString& word : choice.sought.simplified().split(u' ', Qt::SkipEmptyParts)) {
        QStringList columns;
        for (const QStringView column : kFound)
            columns << u"[%1] like '*%2*'"_s.arg(column, core::likeText(word));
        terms << u'(' + columns.join(u" or "_s) + u')';
    }
    return u"select * from cnt_letters"_s
        + (terms.isEmpty() ? QString() : u" where "_s + terms.join(u" and "_s))
        + u" order by Date desc,id desc"_s;
}

QString moveLettersSql(const QList<qint64>& letters, const QString& category)
{
    QStringList ids;
    for (const qint64 id : letters)
        ids << QString::number(id);
    return u"update cnt_letters set mailcateg = %1 where id in (%2)"_s.arg(
        category.isEmpty() ? u"null"_s : u'\'' + core::inQuotes(category) + u'\'', ids.join(u','));
}

QString mailCategoriesSql()
{
    return u"select item from gf_mast where itmtyp='Ltcat' and delst='N' order by item"_s;
}

QString letterCountsSql(LetterCount by)
{
    const auto counted = [](QStringView column) {
        return u"select %1 as name,count(*) as letters from cnt_letters group by %1 order by count(*) desc"_s
            .arg(column);
    };
    switch (by) {
    case LetterCount::Direction: return counted(u"type1");
    case LetterCount::Type: return counted(u"Mailtype");
    case LetterCount::Category: return counted(u"mailcateg");
    case LetterCount::Person: return counted(u"person");
    case LetterCount::Month: return letterGroupsSql(LetterGroup::Month);
    }
    Q_UNREACHABLE();
}

} // namespace letters
