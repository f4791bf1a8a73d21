#pragma once

#include <QString>

#include <span>

namespace anniversaries {

/// A sign and the days that it has in two months: from `from` in one, up to `to` in the next.
struct ZodiacSign {
    QStringView name;
    int month;
    int from;
    int nextMonth;
    int to;
};
/// From Aries on, as the year of the signs begins.
std::span<const ZodiacSign> zodiacSigns();

/// Who was born under a sign, or everybody for no sign, with the column by which they are grouped first.
/// @param group empty for none
QString bornUnderSql(QStringView sign, const QString& group);
/// What the reference has to say of a sign.
QString aboutSignSql(QStringView sign);

} // namespace anniversaries
