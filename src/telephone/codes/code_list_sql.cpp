#include "telephone/codes/code_list_sql.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr QStringView kCities = u"|City                                                        |Phone Codes";

} // namespace

QString codeListSql(CodeList list, bool nationalMode, bool mainOnly)
{
    const QString mains = mainOnly ? u" and ChType='M'"_s : u" "_s;
    switch (list) {
    case CodeList::All: break;
    case CodeList::Country:
        return u"select WG.Country as state ,wc.CITY as city,wc.CITYISD as std from WIA_CITY as wc,"
               "WIA_GLOBALMAS as wg where  wc.[COUNTRY ID]= wg.[ID] and wg.Country <>'India'  order by "
               "wg.Country,wc.city"_s;
    case CodeList::India:
        return u"select State,CITY,STD from WIA_INDIA where len(CITY) > 0 and len(STD) > 0 "_s + mains
            + u" order by state,CITY"_s;
    case CodeList::UnitedStates:
        return u"select Wc.state as state ,wc.CITY as city,wc.CITYISD as std from WIA_CITY as wc,"
               "WIA_GLOBALMAS as wg where  wc.[COUNTRY ID]= wg.[ID] and wg.Country ='United States'  order "
               "by wc.state,wc.city"_s;
    case CodeList::UnitedStatesCities:
        return u"select  distinct CITY,CITYISD as std from WIA_CITY where len(CITY) > 0 and len(CITYISD) > "
               "0 and [COUNTRY ID] in (select ID from WIA_GLOBALMAS where [COUNTRY] = 'United States')  "
               "order by CITY "_s;
    }
    if (nationalMode)
        return u"select CITY ,STD from WIA_INDIA where len(CITY) > 0 and len(STD) > 0 "_s + mains
            + u" order by CITY"_s;
    return u"select CITY,CITYISD as std from WIA_CITY where len(CITY) > 0 and len(CITYISD) > 0 and [COUNTRY "
           "ID] in (select ID from WIA_GLOBALMAS where [COUNTRY] <> 'India')  order by CITY "_s;
}

QStringView codeListHeadings(CodeList list)
{
    switch (list) {
    case CodeList::Country:
        return u"|Country                 |City                           |Phone Codes                  ";
    case CodeList::India:
        return u"|State                           |City                           |Phone Codes               "
               u" "
               u"  ";
    case CodeList::UnitedStates:
        return u"|State               |City                           |Phone Codes                  ";
    case CodeList::All:
    case CodeList::UnitedStatesCities: break;
    }
    return kCities;
}

bool hasGroups(CodeList list)
{
    return list == CodeList::Country || list == CodeList::India || list == CodeList::UnitedStates;
}

// Kept: the countries go by the city, so that a country is named again for each of its cities.
QList<QStringList> groupedRows(const jet::Recordset& rows, CodeList list)
{
    const int group = rows.columnIndex(u"state");
    const int city = rows.columnIndex(u"city");
    const int code = rows.columnIndex(u"std");
    const int key = list == CodeList::Country ? city : group;
    QList<QStringList> grouped;
    grouped.reserve(rows.count());
    QString last = u"!!!!!"_s;
    for (int row = 0; row < rows.count(); ++row) {
        QString now = rows.textAt(row, key);
        const bool isFirst = now != last;
        last = std::move(now);
        grouped << QStringList{
            isFirst ? rows.textAt(row, group) : QString(), rows.textAt(row, city), rows.textAt(row, code)};
    }
    return grouped;
}

// What is typed stands in the statement as it is: an apostrophe or an open bracket breaks it, and the list
// stays as it was.
QString codeSearchSql(SearchBy by, const QString& typed, bool nationalMode)
{
    const QString code = codeColumn(nationalMode);
    const QString from = nationalMode ? u"Select City,Std from wia_india where "_s
                                      : u"Select City,cityisd from wia_city where "_s;
    if (by == SearchBy::City)
        return from + u"city like '"_s + typed + u"*'order by City"_s;
    return from + code + u" like '"_s + typed + u"*' order by City"_s;
}

QString codeColumn(bool nationalMode)
{
    return nationalMode ? u"std"_s : u"cityisd"_s;
}

} // namespace telephone
