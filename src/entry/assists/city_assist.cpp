#include "entry/assists/city_assist.h"

#include "core/vocabularies.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

/// All is the first choice of each list.
QStringList withAll(const QStringList& values)
{
    return QStringList(u"All"_s) + values;
}

} // namespace

CityScopeLists cityScopeLists(jet::Database& info, CityScope scope, bool mainOnly)
{
    switch (scope) {
    case CityScope::All: {
        QString sql = u"select distinct [country] from WIA_GLOBALMAS "_s;
        if (mainOnly)
            sql += u" where type='M'"_s;
        return {withAll(core::firstColumn(info, sql)), {}, {}};
    }
    case CityScope::Usa: {
        const QString country = u"United States"_s;
        return {{country},
            withAll(core::firstColumn(info,
                u"select distinct [state] from WIA_CITY where [country id] in(select id from WIA_GLOBALMAS  where country ='United States') and state is not null and state <>''"_s)),
            country};
    }
    case CityScope::India: {
        const QString country = u"India"_s;
        return {{country},
            withAll(core::firstColumn(
                info, u"select distinct state from WIA_INDIA where state is not null and state <>''"_s)),
            country};
    }
    }
    return {};
}

QString cityListSql(const CityChoice& choice)
{
    const bool hasState = !choice.state.isEmpty() && choice.state != u"All";
    if (choice.country == u"India" && choice.nationalMode) {
        QString sql = u"select city from WIA_INDIA"_s;
        // Kept: "cboState" is no column, so a choice of a state fails quietly and the list stays empty.
        if (hasState)
            sql = u"select distinct city from WIA_INDIA  where cboState ='"_s + choice.state + u"'"_s;
        if (choice.mainOnly)
            sql += hasState ? u" and chtype like 'M'"_s : u" where chtype like 'M'"_s;
        return sql + u" order by city"_s;
    }
    if (choice.country.isEmpty() || choice.country == u"All")
        return choice.mainOnly ? u"select distinct city from WIA_CITY where [chtype] = 'M' order by city "_s
                               : u"select distinct city from wia_city  order by city"_s;
    const QString ofCountry
        = u"city from wia_city where [country id] in (select id  from wia_globalmas  where country ='"_s
        + choice.country + u"')"_s;
    QString sql = hasState ? u"select "_s + ofCountry + u" and state like '"_s + choice.state + u"'"_s
                           : u"select distinct "_s + ofCountry;
    if (choice.mainOnly)
        sql += u" and chtype like 'M'"_s;
    return sql + u" order by city"_s;
}

QString firstNamesSql(bool nationalMode)
{
    return nationalMode
        ? u"SELECT DISTINCT first FROM [wia_cntnames] WHERE first IS NOT NULL"_s
        : u"SELECT DISTINCT first from [wia_cntnames] WHERE national='C' AND first IS NOT NULL"_s;
}

QString lastNamesSql(bool nationalMode)
{
    return nationalMode
        ? u"SELECT DISTINCT last FROM [wia_cntnames] WHERE last IS NOT NULL"_s
        : u"SELECT DISTINCT last from [wia_cntnames] WHERE national='C' AND last IS NOT NULL"_s;
}

QString companiesSql(bool nationalMode)
{
    return core::vocabularySql(core::Vocabulary::Companies, nationalMode);
}

QString spouseNamesSql(const QString& sex, bool nationalMode)
{
    QString sql = u"SELECT DISTINCT First FROM [wia_cntnames] WHERE "_s;
    if (!nationalMode)
        sql += u" [national]='C' and "_s;
    if (sex == u"Male")
        return sql + u"gender='Female' AND first IS NOT NULL"_s;
    if (sex == u"Female")
        return sql + u"gender='Male' AND first IS NOT NULL"_s;
    return sql + u" first IS NOT NULL"_s;
}

QString genderSql(const QString& firstName)
{
    return u"SELECT Gender FROM [wia_cntnames] WHERE first='"_s + firstName + u"'"_s;
}

} // namespace entry
