#include "telephone/calls/call_statements.h"

#include "core/sql_text.h"
#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

QString hashed(QDate date)
{
    return u'#' + jet::formatDate(date, u"dd-mmm-yyyy") + u'#';
}

} // namespace

QString callDates(const std::optional<QDate>& from, const std::optional<QDate>& to)
{
    if (from && to && *from != *to)
        return u" where [date] between "_s + hashed(std::min(*from, *to)) + u" and "_s
            + hashed(std::max(*from, *to));
    if (from || to)
        return u" where [date]="_s + hashed(from ? *from : *to);
    return {};
}

QString allCallsSql(const QString& dates)
{
    return u"SELECT name as lname,date,time as time1 ,numb,todo,result,nextcall from cnt_phcall"_s + dates
        + u" order by name,[date] desc,time desc"_s;
}

QString filteredCallsSql(CallFilter filter, const QString& value)
{
    const QString all
        = u"select NAME as LNAME,DATE,TIME as TIME1 ,NUMB,todo,result,nextcall from CNT_PHCALL"_s;
    if (value.isEmpty())
        return all;
    const QString column = filter == CallFilter::Person ? u"name"_s
        : filter == CallFilter::Purpose                 ? u"todo"_s
                                                        : u"result"_s;
    return all + u" where "_s + column + u" like '"_s + core::inQuotes(value) + u'\'';
}

QString callChoicesSql()
{
    return u"SELECT distinct name,Todo,result from cnt_phcall where name <> null"_s;
}

QString callsByPersonSql(const QString& dates)
{
    return u"SELECT name as lname,[date],[time],numb,todo,result,nextcall from cnt_phcall "_s + dates
        + u" order  by name,[date] desc, [time] desc"_s;
}

QString callsByMonthSql(const QString& dates)
{
    return u"SELECT cstr(year(date))+','+ cstr(month(date)) as mnth,date,time as time1, name as "
           u"lname,numb,todo,result,nextcall from cnt_phcall "_s
        + dates + u" order by year(date) desc ,month(date),[date] desc,time desc "_s;
}

QString callsToMakeSql()
{
    return u"select NEXTCALL,NAME as LNAME,Date,Time,Numb,ToDo,Result from CNT_PHCALL where "
           u"[CALLLATER]=true order by NEXTCALL "_s;
}

QString monthText(const QString& yearAndMonth)
{
    const qsizetype comma = yearAndMonth.indexOf(u',');
    const QDate month(yearAndMonth.left(comma).toInt(), yearAndMonth.mid(comma + 1).toInt(), 1);
    return month.isValid() ? jet::formatDate(month, u"mmmm yyyy") : yearAndMonth;
}

} // namespace telephone
