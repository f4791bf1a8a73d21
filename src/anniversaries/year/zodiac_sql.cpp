#include "anniversaries/year/zodiac_sql.h"

#include "core/dated_persons.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

QString condition(const ZodiacSign& sign, QStringView date)
{
    return u" where  ((month (%1)=%2) and (day(%1) between  %3 and 31) or (month (%1)=%4) and (day(%1) between  1 and %5) ) "_s
        .arg(date)
        .arg(sign.month)
        .arg(sign.from)
        .arg(sign.nextMonth)
        .arg(sign.to);
}

} // namespace

std::span<const ZodiacSign> zodiacSigns()
{
    static constexpr ZodiacSign signs[]
        = {{u"Aries", 3, 20, 4, 18}, {u"Taurus", 4, 19, 5, 19}, {u"Gemini", 5, 20, 6, 20},
            {u"Cancer", 6, 21, 7, 21}, {u"Leo", 7, 22, 8, 21}, {u"Virgo", 8, 22, 9, 20},
            {u"Libra", 9, 21, 10, 22}, {u"Scorpio", 10, 23, 11, 21}, {u"Sagittarius", 11, 22, 12, 22},
            {u"Capricorn", 12, 23, 1, 19}, {u"Aquarius", 1, 20, 2, 18}, {u"Pisces", 2, 19, 3, 19}};
    return signs;
}

QString bornUnderSql(QStringView sign, const QString& group)
{
    const auto found = std::ranges::find(zodiacSigns(), sign, &ZodiacSign::name);
    const bool isAll = found == zodiacSigns().end();
    const QString order = group.isEmpty() ? u" order by m_bd"_s : u" order by "_s + group + u",m_bd"_s;
    QString sql;
    for (const core::DatedPerson& person : core::datedPersons()) {
        const QString where
            = isAll ? QString() : condition(*found, person.date) + u" and %1 <> null"_s.arg(person.name);
        if (sql.isEmpty()) {
            sql = u"select category1,category2,name,sunsign,first,last,h_city,Priority,m_bd from cnt_main "_s
                + where + order + u' ';
        } else {
            sql += u" union  select category1,category2, (%1) as name,sunsign, first,last,h_city,Priority,(%2) as m_bd from cnt_main "_s
                       .arg(person.name, person.date)
                + where + order;
        }
    }
    return sql;
}

QString aboutSignSql(QStringView sign)
{
    return u"Select * from wia_zodiac where Sign='%1'"_s.arg(sign);
}

} // namespace anniversaries
