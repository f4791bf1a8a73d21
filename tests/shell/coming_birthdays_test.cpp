#include <QtTest>

#include "core/shell/coming_birthdays.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;

/// The birthdays that the start page tells of.
class ComingBirthdaysTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theNextDays_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("coming");
        QTest::newRow("over New Year")
            << QDate(2025, 12, 28) << u"2025-12-28 Eve 0;2026-01-03 Mia/Dan O'H 36"_s;
        QTest::newRow("within a month") << QDate(2026, 1, 2) << u"2026-01-03 Mia/Dan O'H 36"_s;
        QTest::newRow("29 February, elsewhen")
            << QDate(2026, 2, 20) << u"2026-02-28 Dan O'H 38;2026-03-01 Old"_s;
        QTest::newRow("29 February") << QDate(2028, 2, 29) << u"2028-02-29 Dan O'H 40;2028-03-01 Old"_s;
        QTest::newRow("the day after it") << QDate(2026, 3, 1) << u"2026-03-01 Old"_s;
        QTest::newRow("no more than two") << QDate(2026, 7, 1) << u"2026-07-04 A 1;2026-07-05 B"_s;
        QTest::newRow("none") << QDate(2026, 5, 1) << QString();
    }
    void theNextDays()
    {
        support::TestBook book(support::TestBook::Rows::None);
        const auto add = [&](const QString& values) {
            QVERIFY(book.data().execute(
                u"insert into cnt_main (name,m_bd,spouse,sp_bd) values (%1)"_s.arg(values)));
        };
        add(u"'Dan O''H',#29-Feb-1988#,'Mia',#3-Jan-1990#"_s);
        add(u"'Eve',#28-Dec-2025#,null,null"_s);
        add(u"'Old',#1-Mar-0100#,null,#2-May-1990#"_s);
        add(u"'C',#6-Jul-2020#,'',#4-May-1990#"_s);
        add(u"'B',#5-Jul-9999#,null,null"_s);
        add(u"'A',#4-Jul-2025#,null,null"_s);
        QFETCH(QDate, today);
        QStringList coming;
        for (const shell::ComingBirthday& one : shell::comingBirthdays(book.data(), today, 14, 2)) {
            coming << one.day.toString(Qt::ISODate) + u' ' + one.name
                    + (one.contact.isEmpty() ? QString() : u'/' + one.contact)
                    + (one.age ? u' ' + QString::number(*one.age) : QString());
        }
        QTEST(coming.join(u';'), "coming");
        QCOMPARE(book.unexpected(), QString());
    }
};

QTEST_GUILESS_MAIN(ComingBirthdaysTest)
#include "coming_birthdays_test.moc"
