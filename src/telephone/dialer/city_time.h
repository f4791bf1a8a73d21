#pragma once

#include <QString>
#include <QTime>

#include <optional>

/// What time it is where a call goes to, and whether somebody might be asleep there.
namespace telephone {

/// A difference of time, as "+5:30" has it.
struct TimeDifference {
    QChar sign;
    int hours = 0;
    int minutes = 0;

    friend bool operator==(const TimeDifference&, const TimeDifference&) = default;
};

/// How far a place is from the time of India, for its difference from GMT; written without leading zeros.
/// Empty for a text that is no difference, or one that no place on earth has.
QString differenceFromIndia(QStringView gmt);
/// Reads such a text back.
std::optional<TimeDifference> readDifference(QStringView text);

/// The time at the far end, "9:5 PM", by the time here.
QString farEndTime(const TimeDifference& difference, QTime now);
/// The time here, "09:05 PM", where all calls stay within the country.
QString timeHere(QTime now);

/// Whether a time as the two functions above write it is one at which people sleep.
bool isNight(QStringView time);
/// Whether to call all the same.
QString nightQuestion(QStringView time, const QString& place, const QString& person);

} // namespace telephone
