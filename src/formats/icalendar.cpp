#include "formats/icalendar.h"

#include "formats/vcard_lines.h"

using namespace Qt::StringLiterals;

namespace formats {

namespace {

QString numbers(QDate date)
{
    return u"%1%2%3"_s.arg(date.year(), 4, 10, QChar(u'0'))
        .arg(date.month(), 2, 10, QChar(u'0'))
        .arg(date.day(), 2, 10, QChar(u'0'));
}

QByteArray text(QStringView name, const QString& value)
{
    // Its texts are escaped and its lines folded as those of cards are.
    return foldVCardLine(name.toString() + u':' + escapeVCardText(value));
}

} // namespace

QByteArray calendarHead()
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Orvane//Orvane "
           "Contacts//EN\r\nCALSCALE:GREGORIAN\r\n";
}

QByteArray calendarDay(const YearlyDay& day, const QDateTime& written)
{
    // A rule "each 29 February" would skip three years of four, and a first day has to fit its rule.
    QDate first = day.first;
    QByteArray rule = "RRULE:FREQ=YEARLY";
    if (day.isLeapDay) {
        first = QDate(first.year(), 2, QDate(first.year(), 2, 1).daysInMonth());
        rule += ";BYMONTH=2;BYMONTHDAY=-1";
    }
    const QDateTime stamp = written.toUTC();
    const QString time = numbers(stamp.date()) + stamp.toString(u"'T'HHmmss'Z'"_s);
    QByteArray lines = "BEGIN:VEVENT\r\n" + text(u"UID", day.uid) + text(u"DTSTAMP", time)
        + text(u"DTSTART;VALUE=DATE", numbers(first)) + rule + "\r\n" + text(u"SUMMARY", day.summary);
    if (!day.description.isEmpty())
        lines += text(u"DESCRIPTION", day.description);
    return lines + "TRANSP:TRANSPARENT\r\nEND:VEVENT\r\n";
}

QByteArray calendarFoot()
{
    return "END:VCALENDAR\r\n";
}

} // namespace formats
