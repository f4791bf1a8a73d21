#include "entry/assists/address_lookup.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

std::optional<QString> unlessNull(const jet::Recordset& rows, QStringView column)
{
    const QVariant value = rows.value(column);
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

bool isHomeCountry(const QString& country, bool nationalMode)
{
    const QString name = country.trimmed().toUpper();
    return name.isEmpty() ? nationalMode : name == u"INDIA";
}

} // namespace

std::optional<CityFacts> lookUpCity(
    jet::Database& info, const QString& city, const QString& country, bool nationalMode)
{
    const bool home = isHomeCountry(country, nationalMode);
    const QString table = home ? u"wia_india"_s : u"wia_city"_s;
    const auto rows = info.openRecordset(u"select * from ["_s + table + u"] where city='"_s + city + u"'"_s);
    if (!rows.hasRow())
        return {};
    CityFacts facts;
    facts.inHomeCountry = home;
    facts.state = rows.text(u"State");
    facts.region = rows.text(u"region");
    if (home) {
        facts.std = rows.text(u"Std");
        facts.pin = rows.text(u"pin prefix");
        facts.country = u"India"_s;
        return facts;
    }
    facts.std = rows.text(u"cityisd");
    facts.pin = unlessNull(rows, u"zip");
    const auto countries
        = info.openRecordset(u"select * from wia_globalmas where id="_s + rows.textOrEmpty(u"country id"));
    facts.country = countries.text(u"Country");
    return facts;
}

QString regionOfCity(jet::Database& info, const QString& city, const QString& country)
{
    const QString table = country == u"India" ? u"wia_india"_s : u"wia_city"_s;
    return info.openRecordset(u"Select region from "_s + table + u" where city ='"_s + city + u"'"_s)
        .textOrEmpty(u"region");
}

QString fullStateOfCity(jet::Database& info, const QString& city)
{
    return info.openRecordset(u"Select State_full from wia_city where city ='"_s + city + u"'"_s)
        .textOrEmpty(u"State_full");
}

} // namespace entry
