#include "anniversaries/list/day_sign.h"

namespace anniversaries {

QString signOfDay(QDate date)
{
    struct Limit {
        int day; ///< from which on the second sign holds
        QStringView before;
        QStringView since;
    };
    static constexpr Limit kMonths[] = {{20, u"Capricorn", u"Aquarius"}, {19, u"Aquarius", u"Pisces"},
        {20, u"Pisces", u"Aries"}, {19, u"Aries", u"Taurus"}, {20, u"Taurus", u"Gemini"},
        {20, u"Gemini", u"Cancer"}, {22, u"Cancer", u"Leo"}, {22, u"Leo", u"Virgo"}, {21, u"Virgo", u"Libra"},
        {23, u"Libra", u"Scorpio"}, {22, u"Scorpio", u"Sagittarius"}, {23, u"Sagittarius", u"Capricorn"}};
    if (!date.isValid())
        return {};
    const Limit& month = kMonths[date.month() - 1];
    return (date.day() < month.day ? month.before : month.since).toString();
}

} // namespace anniversaries
