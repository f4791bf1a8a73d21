#include "anniversaries/list/day_sign.h"
#include "anniversaries/list/list_filter.h"
#include "anniversaries/list/scheduler_copy.h"
#include "support/columns.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace anniversaries;

/// What a day means: its sign, whether it is near, and how often it may be copied.
class DayRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signOfDay_data()
    {
        support::columns<QDate, QString>("day", "sign");
        // On both sides of each limit.
        const struct {
            int month, day;
            const char* before;
            const char* since;
        } limits[] = {{1, 20, "Capricorn", "Aquarius"}, {2, 19, "Aquarius", "Pisces"},
            {3, 20, "Pisces", "Aries"}, {4, 19, "Aries", "Taurus"}, {5, 20, "Taurus", "Gemini"},
            {6, 20, "Gemini", "Cancer"}, {7, 22, "Cancer", "Leo"}, {8, 22, "Leo", "Virgo"},
            {9, 21, "Virgo", "Libra"}, {10, 23, "Libra", "Scorpio"}, {11, 22, "Scorpio", "Sagittarius"},
            {12, 23, "Sagittarius", "Capricorn"}};
        for (const auto& limit : limits) {
            const QDate day(2000, limit.month, limit.day);
            QTest::addRow("before %d/%d", limit.day, limit.month)
                << day.addDays(-1) << QString::fromLatin1(limit.before);
            QTest::addRow("from %d/%d", limit.day, limit.month) << day << QString::fromLatin1(limit.since);
        }
        QTest::newRow("leap day") << QDate(2000, 2, 29) << u"Pisces"_s;
        QTest::newRow("no day") << QDate() << QString();
    }

    void signOfDay()
    {
        QFETCH(QDate, day);
        QTEST(anniversaries::signOfDay(day), "sign");
    }

    void shownDays_data()
    {
        support::columns<QDate, QDate, bool>("today", "date", "shown");
        const QDate summer(2026, 6, 1);
        QTest::newRow("today, of another century") << summer << QDate(1899, 6, 1) << true;
        QTest::newRow("yesterday") << summer << QDate(1980, 5, 31) << false;
        QTest::newRow("the last of 60 days") << summer << QDate(1980, 7, 31) << true;
        QTest::newRow("one too late") << summer << QDate(1980, 8, 1) << false;
        // Kept: the span ends with the year.
        QTest::newRow("beyond New Year") << QDate(2026, 12, 20) << QDate(1980, 1, 2) << false;
        QTest::newRow("29 February, none this year") << QDate(2026, 2, 1) << QDate(1980, 2, 29) << false;
        QTest::newRow("29 February in a leap year") << QDate(2028, 2, 1) << QDate(1980, 2, 29) << true;
        QTest::newRow("year 100") << summer << QDate(100, 6, 2) << true;
        QTest::newRow("year 9999") << summer << QDate(9999, 6, 2) << true;
        QTest::newRow("no date") << summer << QDate() << false;
    }

    void shownDays()
    {
        QFETCH(QDate, today);
        QFETCH(QDate, date);
        QTEST(isShown({.date = date}, {.next60 = true}, today), "shown");
    }

    void copyTimes_data()
    {
        support::columns<QString, int>("typed", "times"); // -1 for refused
        QTest::newRow("one") << u"1"_s << 1;
        QTest::newRow("nine") << u" 9 "_s << 9;
        for (const char* refused : {"", "0", "10", "-1", "1.5", "x"})
            QTest::newRow(refused) << QString::fromLatin1(refused) << -1;
    }

    void copyTimes()
    {
        QFETCH(QString, typed);
        QTEST(anniversaries::copyTimes(typed).value_or(-1), "times");
    }
};

QTEST_GUILESS_MAIN(DayRulesTest)
#include "day_rules_test.moc"
