#include <QtTest>
#include <QtWidgets>

#include "support/person.h"
#include "widgets/day_calendar.h"

using namespace Qt::StringLiterals;
using widgets::DayCalendar;

/// What a person does with the days of a month or a year.
class DayCalendarTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keysWalk()
    {
        DayCalendar calendar(DayCalendar::Span::Year);
        calendar.setToday({2026, 3, 31});
        calendar.show();
        QSignalSpy pages(&calendar, &DayCalendar::pageShown);
        struct Step {
            int key;
            Qt::KeyboardModifiers with;
            QDate then;
        };
        const Step steps[] = {{Qt::Key_Right, {}, {2026, 4, 1}}, {Qt::Key_Up, {}, {2026, 3, 25}},
            {Qt::Key_End, {}, {2026, 3, 31}}, {Qt::Key_PageUp, {}, {2025, 3, 31}},
            {Qt::Key_Home, {}, {2025, 3, 1}}, {Qt::Key_Home, Qt::ControlModifier, {2026, 3, 31}}};
        for (const Step& step : steps) {
            QTest::keyClick(&calendar, Qt::Key(step.key), step.with);
            QCOMPARE(calendar.selectedDate(), step.then);
        }
        QCOMPARE(pages.size(), 2); // to 2025 and back
    }

    // Each day that is drawn can be clicked, also in the narrow months of a year, and 29 February has a place
    // in leap years only.
    void clicksFindTheDay()
    {
        DayCalendar calendar(DayCalendar::Span::Year);
        calendar.setToday({2024, 1, 1});
        calendar.resize(900, 600);
        calendar.show();
        QSet<QDate> found;
        QDate told;
        connect(&calendar, &DayCalendar::dateSelected, this, [&](QDate date) { told = date; });
        for (int y = 30; y < 600; y += 8) {
            for (int x = 4; x < 900; x += 12) {
                QTest::mouseClick(&calendar, Qt::LeftButton, {}, {x, y});
                found << told;
            }
        }
        found.remove({});
        QCOMPARE(found.size(), 366);
        QVERIFY(found.contains({2024, 2, 29}));
    }

    void rangeAndStyles()
    {
        DayCalendar calendar(DayCalendar::Span::Month);
        calendar.setRange({2026, 11, 22}, {2026, 12, 22});
        calendar.setToday({2026, 11, 22});
        calendar.show();
        QVERIFY(!calendar.findChild<QToolButton*>(u"calendarBack"_s)->isEnabled());
        QTest::keyClick(&calendar, Qt::Key_Left);
        QCOMPARE(calendar.selectedDate(), QDate(2026, 11, 22));
        support::click(&calendar, u"calendarAhead"_s);
        QCOMPARE(calendar.selectedDate(), QDate(2026, 12, 22));
        calendar.setStyles({u"one"_s, u"two"_s});
        calendar.setDayStyle(12, 31, u"two"_s);
        calendar.setDayStyle(13, 1, u"two"_s);
        QCOMPARE(calendar.styleOf(12, 31), u"two"_s);
        const QImage with = calendar.grab().toImage();
        calendar.clearDays();
        QVERIFY(calendar.grab().toImage() != with);
    }
};

QTEST_MAIN(DayCalendarTest)
#include "day_calendar_test.moc"
