#include "telephone/dialer/city_time.h"

#include <QCoreApplication>

#include <cmath>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr int kIndiaMinutes = 330; ///< ahead of GMT
constexpr int kHour = 60;
constexpr int kHalfDay = 12; ///< hours of a clock face
constexpr int kFarthestBehind = 12 * kHour; ///< of all places on earth
constexpr int kFarthestAhead = 14 * kHour;

struct ClockFace {
    int hour; ///< 1 to 12
    int minute;
    bool isPm;
};

ClockFace faceOf(QTime time)
{
    const int hour = time.hour() % kHalfDay;
    return {hour == 0 ? kHalfDay : hour, time.minute(), time.hour() >= kHalfDay};
}

// The first character is the sign, whatever it is.
std::optional<TimeDifference> partsOf(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    if (colon < 2)
        return std::nullopt;
    bool areHours = false;
    bool areMinutes = false;
    const int hours = text.sliced(1, colon - 1).toInt(&areHours);
    const int minutes = text.sliced(colon + 1).toInt(&areMinutes);
    if (!areHours || !areMinutes || hours < 0 || minutes < 0 || minutes >= kHour)
        return std::nullopt;
    return TimeDifference{text.front(), hours, minutes};
}

QString written(QChar sign, int hours, int minutes)
{
    return u"%1%2:%3"_s.arg(sign).arg(hours).arg(minutes);
}

QString clockText(int hour, int minute, bool isPm)
{
    return u"%1:%2 %3"_s.arg(hour).arg(minute).arg(isPm ? u"PM"_s : u"AM"_s);
}

QString ahead(int hours, int minutes, const ClockFace& now)
{
    int hour = hours + now.hour;
    int minute = minutes + now.minute;
    // Kept: a full hour of minutes moves the clock on, but counts for the half of the day only beyond 60.
    const bool flips = hour + (minute > kHour ? 1 : 0) >= kHalfDay;
    const bool carries = minute >= kHour;
    if (carries)
        minute -= kHour;
    if (hour > kHalfDay)
        hour += (carries ? 1 : 0) - kHalfDay;
    else if (carries)
        hour = hour == kHalfDay ? 1 : hour + 1;
    return clockText(hour, minute, flips != now.isPm);
}

QString behind(int hours, int minutes, const ClockFace& now)
{
    int hour = 0;
    int minute = 0;
    // Kept: with an equal hour or an equal minute the time is 0:0.
    if (now.hour != hours && now.minute != minutes) {
        const bool borrows = now.minute < minutes;
        hour = now.hour > hours ? now.hour - hours : kHalfDay - (hours - now.hour);
        hour -= borrows ? 1 : 0;
        minute = borrows ? kHour - (minutes - now.minute) : now.minute - minutes;
    }
    bool isPm = now.isPm;
    if (now.hour > hours && now.hour - hours >= kHalfDay)
        isPm = false;
    // Kept: morning, whichever half of the day it is here.
    if (now.hour < hours && hours - now.hour < kHalfDay)
        isPm = false;
    return clockText(hour, minute, isPm);
}

} // namespace

QString differenceFromIndia(QStringView gmt)
{
    const std::optional<TimeDifference> parts = partsOf(gmt.trimmed());
    if (!parts)
        return {};
    const int total = parts->hours * kHour + parts->minutes;
    if (parts->sign == u'-') {
        if (total > kFarthestBehind)
            return {};
        const int minutes = parts->minutes + kHour / 2;
        return minutes >= kHour ? written(u'-', parts->hours + 6, minutes - kHour)
                                : written(u'-', parts->hours + 5, minutes);
    }
    if (total > kFarthestAhead)
        return {};
    const int difference = std::abs(total - kIndiaMinutes);
    return written(total >= kIndiaMinutes ? u'+' : u'-', difference / kHour, difference % kHour);
}

std::optional<TimeDifference> readDifference(QStringView text)
{
    return partsOf(text);
}

QString farEndTime(const TimeDifference& difference, QTime now)
{
    const ClockFace face = faceOf(now);
    return difference.sign == u'-' ? behind(difference.hours, difference.minutes, face)
                                   : ahead(difference.hours, difference.minutes, face);
}

QString timeHere(QTime now)
{
    const ClockFace face = faceOf(now);
    return u"%1:%2 %3"_s.arg(face.hour, 2, 10, QChar(u'0'))
        .arg(face.minute, 2, 10, QChar(u'0'))
        .arg(face.isPm ? u"PM"_s : u"AM"_s);
}

// Kept: noon counts as night, half past twelve at night does not.
bool isNight(QStringView time)
{
    const int hour = time.left(time.indexOf(u':')).toInt();
    if (time.endsWith(u"PM"))
        return hour >= 10;
    return time.endsWith(u"AM") && hour >= 1 && hour <= 6;
}

QString nightQuestion(QStringView time, const QString& place, const QString& person)
{
    const QString between = time.endsWith(u"AM") ? u"'. '"_s : u"'.'"_s;
    return QCoreApplication::translate(
        "telephone", "It is night time in '%1%2%3' might be asleep. Are you sure, you want to call")
        .arg(place, between, person);
}

} // namespace telephone
