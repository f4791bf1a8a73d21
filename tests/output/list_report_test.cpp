#include <QtTest>
#include <QtWidgets>

#include "output/grid/grid_reader.h"
#include "output/grid/list_report.h"
#include "output/report/report_pager.h"
#include "support/columns.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

/// The texts of a page, a line each, the cells with "|" between.
QStringList linesOf(const Page& page)
{
    QStringList lines;
    for (const PlacedBlock& placed : page.blocks) {
        for (const Line& line : placed.block.lines) {
            QStringList cells;
            for (const Cell& cell : line.cells)
                cells << cell.text();
            lines << cells.join(u'|');
        }
    }
    return lines;
}

} // namespace

/// A list of the screen as pages.
class ListReportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void groupsAndHeadingsOnEachPage()
    {
        auto grid = std::make_unique<widgets::HeadingGrid>();
        grid->setHeadings(u"City |Name {x} |Number ");
        QList<QStringList> rows;
        for (int i = 0; i < 120; ++i)
            rows << QStringList{i < 3 ? QString() : u"Pune"_s, u"Person %1"_s.arg(i), QString::number(i)};
        grid->setOutline(u"City"_s);
        grid->setRows(rows, {u"City"_s, u"Name"_s, u"Number"_s});
        const GridTable table = gridTableOf(grid.get(), u"List"_s);
        const Report report = listReport(table, u"List - 05 Mar-2026"_s, ListSize::Medium);
        // What the pages show does not need the screen any more.
        grid.reset();
        QCOMPARE(report.title, u"List - 05 Mar-2026"_s);
        ReportPager pager(report);
        while (pager.step(1000)) { }
        QVERIFY(pager.pageCount() > 1);
        QStringList all;
        for (int number = 1; number <= pager.pageCount(); ++number) {
            const QStringList lines = linesOf(pager.page(number));
            QCOMPARE(lines.first(), u"Name (x)|Number"_s);
            all << lines.mid(1);
        }
        QCOMPARE(all.mid(0, 6),
            (QStringList{
                u"(none)"_s, u"Person 0|0"_s, u"Person 1|1"_s, u"Person 2|2"_s, u"Pune"_s, u"Person 3|3"_s}));
        QCOMPARE(all.last(), u"Person 119|119"_s);
        QCOMPARE(all.size(), 122);
    }

    void paper_data()
    {
        support::columns<int, int, bool, double>("width", "size", "isAcross", "scale");
        QTest::newRow("narrow") << 5000 << int(ListSize::Medium) << false << 1.0;
        QTest::newRow("wide") << 12'000 << int(ListSize::Medium) << true << 1.0;
        QTest::newRow("wide, in smaller texts") << 12'000 << int(ListSize::VerySmall) << false << 0.7;
        QTest::newRow("narrow, in larger texts") << 9000 << int(ListSize::Large) << true << 1.25;
        QTest::newRow("wider than the paper") << 20'184 << int(ListSize::Medium) << true << 0.75;
        QTest::newRow("as wide as nothing is") << 200'000 << int(ListSize::Medium) << true << 0.5;
    }

    void paper()
    {
        QFETCH(int, width);
        QFETCH(int, size);
        const GridTable table{.columns
            = {{u"A"_s, width / 2}, {u"hidden"_s, 9000, CellKind::Text, 0, true}, {u"B"_s, width / 2}}};
        const Report report = listReport(table, {}, ListSize(size));
        QTEST(report.paper.width > report.paper.height, "isAcross");
        QTEST(report.textScale, "scale");
        QVERIFY(report.isEmpty());
    }

    void canBeStopped()
    {
        widgets::HeadingGrid grid;
        grid.setHeadings(u"A ");
        grid.setRows(QList<QStringList>(200, {u"x"_s}));
        int asked = 0;
        const Report report
            = listReport(gridTableOf(&grid, {}), {}, ListSize::Medium, [&asked](int) { return ++asked < 2; });
        QVERIFY(report.isEmpty());
        QCOMPARE(asked, 2);
    }
};

QTEST_MAIN(ListReportTest)
#include "list_report_test.moc"
