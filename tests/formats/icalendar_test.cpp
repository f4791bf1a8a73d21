#include <QtTest>

#include "formats/icalendar.h"
#include "support/other_program.h"

using namespace Qt::StringLiterals;

/// Yearly days, read back by another program.
class ICalendarTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anotherProgramReadsIt()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"a.ics"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QDateTime now(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
        const QString odd = u"Birthday of Ann, Bo; \\ C\nÉléonore "_s + u"née Müller 🎂 "_s.repeated(9);
        file.write(formats::calendarHead());
        file.write(formats::calendarDay({u"a-1"_s, {1990, 7, 22}, false, odd, {}}, now));
        file.write(formats::calendarDay({u"a-2"_s, {1972, 2, 29}, true, u"Leap"_s, u"born"_s}, now));
        file.write(formats::calendarDay({u"a-3"_s, {1971, 2, 28}, true, u"Leap too"_s, {}}, now));
        file.write(formats::calendarFoot());
        file.close();
        QCOMPARE(support::linesOfScript(u"formats/data/read_calendar.py"_s, {file.fileName()}).join(u'\n'),
            u"a-1|%1|2024-07-22|2025-07-22\na-2|Leap|2024-02-29|2025-02-28\na-3|Leap too|2024-02-29|2025-02-28"_s
                .arg(odd));
    }
};

QTEST_GUILESS_MAIN(ICalendarTest)
#include "icalendar_test.moc"
