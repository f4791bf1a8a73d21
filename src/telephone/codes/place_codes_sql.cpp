#include "telephone/codes/place_codes_sql.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace telephone {

namespace home {

QString codesSql(CodeKind kind)
{
    return kind == CodeKind::Pin ? u"select distinct [Pin Prefix] as pin from wia_india "_s
                                 : u"select distinct std from wia_india "_s;
}

QString statesSql()
{
    return u"select distinct State  from wia_india "_s;
}

QString citiesSql(const QString& state)
{
    if (core::isAll(state))
        return u"select distinct City,state from wia_india "_s;
    return u"Select city,state from wia_india  where state='"_s + core::inQuotes(state) + u'\'';
}

QString cityFactsSql(const QString& city)
{
    return u"Select * from wia_india where city='"_s + core::inQuotes(city) + u'\'';
}

QString placesOfCodeSql(CodeKind kind, const QString& code)
{
    const QString column = kind == CodeKind::Telephone ? u" where std='"_s : u" where [Pin Prefix]='"_s;
    return u"Select * from wia_india "_s + column + core::inQuotes(code) + u'\'';
}

} // namespace home

namespace world {

namespace {

QString inCountry(const QString& country)
{
    return u" where [country id] in (select id from wia_globalmas where country ='"_s
        + core::inQuotes(country) + u"')"_s;
}

} // namespace

QString codesSql(CodeKind kind)
{
    return kind == CodeKind::Pin ? u"select distinct [zip] as pin from wia_globalmas "_s
                                 : u"select distinct cityisd from wia_city where len(cityisd) <> 0"_s;
}

QString countriesSql()
{
    return u"Select distinct country from wia_globalmas where len(Country) <> 0 order by country"_s;
}

QString statesSql()
{
    return u"Select distinct state from wia_city  order by state"_s;
}

QString citiesSql()
{
    return u"Select distinct city from wia_city order by city"_s;
}

QString statesOfSql(const QString& country)
{
    if (core::isAll(country))
        return u"Select distinct state from wia_city where state is not null and state <>''order by state"_s;
    return u"Select distinct state from wia_city"_s + inCountry(country)
        + u" and state is not null and state <>'' order by state"_s;
}

QString citiesOfCountrySql(const QString& country)
{
    if (core::isAll(country))
        return u"Select distinct city from wia_city city where city is not null and city <>''order by city"_s;
    return u"Select distinct city from wia_city"_s + inCountry(country);
}

QString citiesOfStateSql(const QString& state)
{
    return u"Select distinct city from wia_city where state ='"_s + core::inQuotes(state) + u'\'';
}

QString countryCodeSql(const QString& country)
{
    return u"Select isd from wia_globalmas where country ='"_s + core::inQuotes(country) + u'\'';
}

QString countryOfStateSql(const QString& state)
{
    return u"Select country from wia_globalmas where id in (Select [country id] from wia_city where state ='"_s
        + core::inQuotes(state) + u"')"_s;
}

QString cityFactsSql(const QString& city)
{
    return u"Select * from wia_city where city='"_s + core::inQuotes(city) + u'\'';
}

QString countryOfCitySql(const QString& city)
{
    return u"select country from wia_globalmas where id= (select [country id] from wia_city where city ='"_s
        + core::inQuotes(city) + u"')"_s;
}

QString placesOfCodeSql(const QString& code)
{
    return u"Select * from wia_city  where cityisd='"_s + core::inQuotes(code) + u'\'';
}

QString countryOfIdSql(const QString& id)
{
    return u"Select distinct country from wia_globalmas Where id="_s + id;
}

QString countriesOfPinSql(const QString& form)
{
    return u"Select distinct country from wia_globalmas where zip='"_s + core::inQuotes(form)
        + u"' order by country"_s;
}

} // namespace world

} // namespace telephone
