#include "entry/assists/city_chain.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

/// One look-up of the chain: the statement up to the city, in the world and in the home country.
struct Link {
    QStringView world;
    QStringView home;
};
constexpr Link kRegion{
    u"Select region from wia_city where city ='", u"Select region from wia_india where city ='"};
constexpr Link kStd{
    u"Select CityISD from wia_city where city ='", u"Select STD from wia_india where city ='"};
constexpr Link kState{
    u"Select State from wia_city where city ='", u"Select state from wia_india where city ='"};

std::optional<QString> firstText(jet::Database& info, const QString& sql)
{
    const auto rows = info.openRecordset(sql);
    return rows.hasRow() ? std::optional(rows.textAt(0)) : std::nullopt;
}

} // namespace

CityChain cityChain(jet::Database& info, const QString& city, const QString& country)
{
    const bool home = country == u"India";
    const auto follow = [&](const Link& link) {
        return firstText(info, (home ? link.home : link.world).toString() + city + u'\'');
    };
    CityChain chain;
    if (country.isEmpty() || country == u"All")
        chain.country = firstText(info,
            u"Select Country from wia_globalmas where id = ( Select [Country ID] from wia_city where city='"_s
                + city + u"')"_s);
    else
        chain.country = country;
    chain.region = follow(kRegion);
    chain.std = follow(kStd);
    chain.state = follow(kState);
    return chain;
}

} // namespace entry
