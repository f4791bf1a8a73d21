#include "anniversaries/months/FrmBirthday.h"
#include "anniversaries/summary/FrmBirthSum.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/bar_chart.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace anniversaries;
using widgets::child;

/// Birthdays by month, as a list and as numbers.
class MonthListsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->clock.set(QDateTime(QDate(2026, 11, 22), QTime(12, 0)));
        for (const QString& values : {u"'Ann', 'Ann', #2/29/1980#, 'Pisces'"_s,
                 u"'Bo', 'Bo', #11/3/0100#, ''"_s, u"'Cy', 'Cy', #11/9/9999#, 'Leo'"_s,
                 u"'Di', 'Di', null, null"_s, u"'Ed', 'Ed', #11/9/2001#, 'Leo'"_s})
            m_fixture->execute(
                u"insert into cnt_main (Name, First, M_BD, sunsign) values (%1)"_s.arg(values));
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void monthsOfTheList()
    {
        auto* form = m_fixture->open<FrmBirthday>(u"FrmBirthday"_s);
        auto* grid = child<widgets::HeadingGrid>(form, u"Grid1"_s);
        auto* tabs = child<QTabBar>(form, u"SSTab"_s);
        QCOMPARE(tabs->count(), 13);
        QCOMPARE(support::keysOf(grid), u"2,3,5"_s); // this month
        QCOMPARE(grid->model()->index(0, 6).data().toString(), u"Nov-03-0100"_s);
        tabs->setCurrentIndex(0);
        QCOMPARE(support::keysOf(grid), QString());
        tabs->setCurrentIndex(12);
        QCOMPARE(support::keysOf(grid), u"1,2,3,4,5"_s);
        support::clickRow(grid, 2);
        QCOMPARE(form->position(), u"3 of 5"_s);
        m_fixture->boxes.expectChoice(u"Export"_s, m_fixture->root.filePath(u"list.csv"_s));
        support::click(form, u"SSCommand1"_s);
        QFile file(m_fixture->root.filePath(u"list.csv"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count('\n'), 6);
    }

    void counts_data()
    {
        support::columns<int, QString, QStringList>("tab", "total", "rows");
        // A blank sign counts in the total.
        QTest::newRow("signs") << 0 << u"Summary  :  4   Birthdays   "_s
                               << QStringList{u"Leo|2|50."_s, u"Pisces|1|25."_s};
        QTest::newRow("months") << 1 << u"Summary  :  4   Birthdays   "_s
                                << QStringList{u"February|1|25."_s, u"November|3|75."_s};
    }

    void counts()
    {
        QFETCH(int, tab);
        auto* form = m_fixture->open<FrmBirthSum>(u"FrmBirthSum"_s);
        form->resize(900, 600);
        child<QTabBar>(form, u"SSActiveTabs1"_s)->setCurrentIndex(tab);
        QTEST(child<QLabel>(form, u"lblTotal"_s)->text(), "total");
        auto* grid = child<widgets::HeadingGrid>(form, u"Grid1"_s);
        QStringList rows;
        for (int row = 0; row < grid->rowCount(); ++row)
            rows << QStringList{grid->textAt(row, u"Name"_s), grid->textAt(row, u"Count"_s),
                grid->textAt(row, u"Percent"_s)}
                        .join(u'|');
        QTEST(rows, "rows");
        auto* chart = child<widgets::BarChart>(form, u"Chart"_s);
        QTest::mouseClick(
            chart, Qt::LeftButton, {}, QPoint(chart->width() / 2, chart->fontMetrics().height() * 3));
        QCOMPARE(grid->currentRow(), 1);
        child<QAction>(form, u"PrintChart"_s)->trigger();
        QCOMPARE(m_fixture->printer.printed.size(), 1);
    }

    void percents_data()
    {
        support::columns<int, int, QString>("count", "total", "text");
        QTest::newRow("a third") << 1 << 3 << u"33.3"_s;
        QTest::newRow("all") << 7 << 7 << u"100."_s;
        QTest::newRow("less than one") << 1 << 200 << u".5"_s;
        QTest::newRow("hardly any") << 1 << 100'000 << u"."_s;
        QTest::newRow("of none") << 0 << 0 << QString();
    }

    void percents()
    {
        QFETCH(int, count);
        QFETCH(int, total);
        QTEST(percentText(count, total), "text");
    }

private:
    std::unique_ptr<support::ScreenFixture> m_fixture;
};

QTEST_MAIN(MonthListsTest)
#include "month_lists_test.moc"
