#include "core/setup/city_statements.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace setup {

namespace {

QString typeOf(CityTable scope)
{
    return scope == CityTable::National ? u"National"_s : u"International"_s;
}

} // namespace

QString frequentCitiesSql(CityTable scope)
{
    return u"select * from CNT_TOPCITIES where [type]='"_s + typeOf(scope) + u'\'';
}

QString placesSql(CityTable scope)
{
    return scope == CityTable::National
        ? u"select distinct state from WIA_INDIA where state is not null and state <>'' order by state"_s
        : u"select distinct [country] from WIA_GLOBALMAS order by country"_s;
}

QString availableCitiesSql(CityTable scope, const QString& place, bool mainOnly)
{
    const bool national = scope == CityTable::National;
    if (place.isEmpty()) {
        const QString table = national ? u"wia_india"_s : u"wia_city"_s;
        return mainOnly ? u"select distinct city from "_s + table + u" where chtype='M'order by city"_s
                        : u"select distinct city from "_s + table + u" order by city"_s;
    }
    if (national)
        return u"select distinct CITY from WIA_INDIA where [STATE] ='"_s + place + u'\''
            + (mainOnly ? u" and CHTYPE='M'"_s : QString()) + u" order by CITY"_s;
    return u"select distinct city from wia_city where [Country ID] in (select id from wia_globalmas where country= '"_s
        + place + u"')"_s + (mainOnly ? u" and CHTYPE='M'"_s : QString()) + u" order by city"_s;
}

QString defaultCitySql()
{
    return u"select distinct city from cnt_topcities where default=True"_s;
}

QString citiesForDefaultSql()
{
    return u"select distinct city from cnt_topcities where city is not null and city <>'' order by city"_s;
}

CityAdded addFrequentCity(jet::Database& data, CityTable scope, const QString& city)
{
    jet::Recordset rows = data.openRecordset(frequentCitiesSql(scope));
    qint64 last = 0;
    for (; rows.hasRow(); rows.moveNext()) {
        if (rows.textOrEmpty(u"city").compare(city, Qt::CaseInsensitive) == 0)
            return CityAdded::Known;
        last = std::max(last, rows.number(u"priority"));
    }
    rows.addNew();
    rows.set(u"city", city);
    rows.set(u"Type", typeOf(scope));
    rows.set(u"Priority", last + 1);
    return rows.update() ? CityAdded::Yes : CityAdded::Failed;
}

CityRemoved removeFrequentCity(jet::Database& data, CityTable scope, int row, const QString& city)
{
    jet::Recordset rows = data.openRecordset(frequentCitiesSql(scope));
    if (!rows.moveTo(row) || rows.textOrEmpty(u"city") != city)
        return CityRemoved::Failed;
    if (rows.flag(u"default"))
        return CityRemoved::IsDefault;
    return rows.removeCurrent() ? CityRemoved::Yes : CityRemoved::Failed;
}

bool setDefaultCity(jet::Database& data, const QString& city)
{
    jet::Batch batch(data);
    data.execute(u"update cnt_topcities set default = false"_s);
    if (data.execute(u"update cnt_topcities set default = true where city = '"_s + city + u'\'').changed > 0)
        return batch.commit();
    batch.rollBack();
    return false;
}

} // namespace setup
