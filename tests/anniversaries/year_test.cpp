#include <QtTest>
#include <QtWidgets>

#include "anniversaries/register_anniversaries.h"
#include "anniversaries/year/year_sign.h"
#include "anniversaries/year/zodiac_sql.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/day_calendar.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;

/// The views of the year and the page of the signs, as a person uses them.
class YearTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>(support::TestBook::Rows::None);
        m_fixture->clock.set(QDate(2026, 7, 20).startOfDay());
        anniversaries::registerAnniversaries(m_fixture->screens);
        m_fixture->execute(
            u"insert into cnt_main (name,priority,m_bd,spouse,sp_bd,kid2,kid2_bd,h_email1) values "
            "('Dan O''Hara','2',#22-Jul-1950#,'Mia',#22-Jul-0100#,'Leo',#29-Feb-2020#,'d@e.org')"_s);
        m_fixture->execute(u"insert into cnt_main (name,priority,m_bd) values ('Zoe','3',#22-Jul-2026#)"_s);
        m_fixture->execute(u"insert into cnt_main (name,spouse,sp_bd) values ('Al','Bo',#1-Jan-9999#)"_s);
    }
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void signs_data()
    {
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QString>("sign");
        QTest::newRow("the end of Cancer") << QDate(2026, 7, 21) << u"Cancer"_s;
        QTest::newRow("Leo counts in the overlap") << QDate(2026, 7, 30) << u"Leo"_s;
        QTest::newRow("June") << QDate(2026, 6, 20) << u"Gemini"_s;
        QTest::newRow("over New Year") << QDate(2026, 1, 19) << u"Capricon"_s;
        QTest::newRow("no sign") << QDate(2024, 2, 29) << QString();
        QTest::newRow("behind it") << QDate(2024, 3, 1) << u"Pisces"_s;
    }
    void signs()
    {
        QFETCH(QDate, day);
        QTEST(anniversaries::yearSign(day), "sign");
    }

    // Clicks on days, the mark of each, wishes of who is listed, everybody at once and back.
    void aDayOfTheYear_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("told");
        QTest::addColumn<QStringList>("all");
        QTest::newRow("birthdays") << u"FormAviewbday"_s << u"Jul 22  is Birthday of Mia"_s
                                   << QStringList{QString(), u"Dan O'Hara"_s, u"Leo"_s, u"Mia"_s, u"Zoe"_s};
        QTest::newRow("signs") << u"FormZodiacYr"_s << u"Jul 22  is Anniversary of Dan O'Hara"_s
                               << QStringList();
    }
    void aDayOfTheYear()
    {
        QFETCH(QString, form);
        QFETCH(QStringList, all);
        m_fixture->shared.NationalMode = false;
        QVERIFY(m_fixture->screens.show(form));
        core::Screen* screen = m_fixture->screens.find(form);
        auto* year = screen->findChild<widgets::DayCalendar*>();
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s);
        QTRY_COMPARE(year->styleOf(7, 22), u"PriI"_s);
        QCOMPARE(year->styleOf(2, 29), u"PriI"_s);
        QCOMPARE(year->styleOf(1, 1), QString()); // of no priority
        QCOMPARE(grid->rowCount(), 0);
        for (int day = 20; day < 22; ++day)
            QTest::keyClick(year, Qt::Key_Right);
        QCOMPARE(textOf(screen, u"lblsaka"_s), u"Leo--7Jul 22"_s);
        QCOMPARE(names(grid), (QStringList{u"Dan O'Hara"_s, u"Mia"_s, u"Zoe"_s}));
        grid->setCurrentRow(0);
        QTEST(textOf(screen, u"lbldate"_s), "told");
        screen->findChild<QAction*>(u"sendtoday"_s)->trigger();
        QCOMPARE(m_fixture->mail.sent.back().To, u"d@e.org"_s);
        support::click(screen, u"CmdView"_s);
        if (!all.isEmpty())
            QCOMPARE(names(grid), all);
        QVERIFY(!year->isVisible());
        support::click(screen, u"CmdView"_s);
        QCOMPARE(names(grid), QStringList{u"Zoe"_s}); // born on this very date
    }

    // 29 February belongs to no sign: the one before stays.
    void leapDay()
    {
        m_fixture->clock.set(QDate(2024, 2, 28).startOfDay());
        QVERIFY(m_fixture->screens.show(u"FormAviewbday"_s));
        core::Screen* screen = m_fixture->screens.find(u"FormAviewbday"_s);
        QTest::keyClick(screen->findChild<widgets::DayCalendar*>(), Qt::Key_Right);
        QCOMPARE(textOf(screen, u"lblsaka"_s), u"Pisces--2Feb 29"_s);
        QCOMPARE(names(screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s)), QStringList{u"Leo"_s});
    }

    void underASign()
    {
        QVERIFY(m_fixture->screens.show(u"frmzodiac"_s));
        core::Screen* screen = m_fixture->screens.find(u"frmzodiac"_s);
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"VSFlexGrid1"_s);
        QCOMPARE(screen->frameTitle(), u"Zodiac"_s);
        QCOMPARE(grid->rowCount(), 0);
        support::click(screen, u"Leo"_s);
        QCOMPARE(names(grid), (QStringList{u"Dan O'Hara"_s, u"Mia"_s, u"Zoe"_s}));
        QCOMPARE(grid->textAt(1, u"sunsign"_s), u"Leo"_s);
        support::click(screen, u"Capricorn"_s);
        QCOMPARE(names(grid), QStringList{u"Bo"_s});
        QCOMPARE(grid->textAt(0, u"sunsign"_s), u"Capricon"_s);
    }

private:
    static QString textOf(const QWidget* screen, const QString& label)
    {
        return screen->findChild<QLabel*>(label)->text();
    }

    static QStringList names(widgets::HeadingGrid* grid)
    {
        QStringList all;
        for (int row = 0; row < grid->rowCount(); ++row)
            all << grid->textAt(row, u"name"_s);
        all.sort();
        return all;
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
};

QTEST_MAIN(YearTest)
#include "year_test.moc"
