#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

namespace formats {

/// A day that comes again every year, for the calendar programs of others.
struct YearlyDay {
    QString uid; ///< the same each time it is written, so that a program knows it again
    QDate first; ///< the first year in which it is shown
    bool isLeapDay = false; ///< 29 February; in other years it is the last day of the month
    QString summary;
    QString description;
};

/// The pieces of an iCalendar file (RFC 5545), in UTF-8 with CR LF: head, any number of days, foot.
QByteArray calendarHead();
QByteArray calendarDay(const YearlyDay& day, const QDateTime& written);
QByteArray calendarFoot();

} // namespace formats
