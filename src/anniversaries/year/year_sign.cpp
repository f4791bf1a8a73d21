#include "anniversaries/year/year_sign.h"

namespace anniversaries {

QString yearSign(QDate day)
{
    /// A day as month * 100 + day.
    struct Range {
        int from;
        int to;
    };
    struct Sign {
        QStringView name;
        Range first;
        Range second;
    };
    // All are tried and the last hit counts: the first range of Cancer runs into Leo.
    static constexpr Sign signs[] = {
        {u"Aries", {320, 331}, {401, 418}},
        {u"Taurus", {419, 430}, {501, 519}},
        {u"Gemini", {520, 531}, {601, 620}},
        {u"Cancer", {621, 730}, {701, 721}},
        {u"Leo", {722, 731}, {801, 821}},
        {u"Virgo", {822, 831}, {901, 920}},
        {u"Libra", {921, 930}, {1001, 1022}},
        {u"Scorpio", {1023, 1031}, {1101, 1121}},
        {u"Sagittarius", {1122, 1130}, {1201, 1222}},
        {u"Capricon", {1223, 1231}, {101, 119}},
        {u"Aquaris", {120, 131}, {201, 218}},
        {u"Pisces", {219, 228}, {301, 319}},
    };
    const int number = day.month() * 100 + day.day();
    const auto isIn = [number](const Range& range) { return number >= range.from && number <= range.to; };
    QString found;
    for (const Sign& sign : signs) {
        if (isIn(sign.first) || isIn(sign.second))
            found = sign.name.toString();
    }
    return found;
}

} // namespace anniversaries
