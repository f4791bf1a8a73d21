#include <QtTest>
#include <QtWidgets>

#include "output/grid/grid_export.h"
#include "output/grid/grid_files.h"
#include "output/grid/grid_reader.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/other_program.h"
#include "support/screen_fixture.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

/// As many rows as one likes, none of which is held.
class ManyRows final : public GridRows {
public:
    explicit ManyRows(int rows)
        : m_rows(rows)
    {
    }
    int count() const override { return m_rows; }
    GridCell cell(int row, int) const override { return {u"Person %1"_s.arg(row)}; }

private:
    int m_rows;
};

} // namespace

/// Lists of the program as files, as another program and a person see them.
class GridExportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        m_f->clock.set(QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    // A grid with all that one of the program can have: a margin, a hidden column, groups of which one is
    // folded, dates in another wording, a tick, a text longer than a list shows.
    void everyFormatOfAList()
    {
        const auto add = [this](const QString& values) {
            m_f->execute(
                u"insert into cnt_main (Name, category1, M_BD, cpsmnbd, memo1) values ("_s + values + u')');
        };
        add(u"'Ann, A', 'Friends', #05-Mar-1980#, true, 'x'"_s);
        add(u"'ना', 'Friends', null, false, 'a\nb'"_s);
        add(u"'=1+1', 'Work', #06-Apr-1850#, true, '%1'"_s.arg(QString(600, u'y')));
        const auto grid = listOfContacts();
        const GridTable table = gridTableOf(grid.get(), u"Contacts"_s);
        QCOMPARE(gridTableOf(grid.get(), {}).shownColumns().size(), 6);

        QCOMPARE(exported(table, u"a.csv"_s), QString());
        QCOMPARE(support::linesOfScript(u"formats/data/read_csv.py"_s, {path(u"a.csv"_s)}),
            (QStringList{u"['Category', 'Name', 'Birthday', 'Copied', 'Note', 'No']"_s,
                u"['Friends', 'Ann, A', '05/03/80', 'Y', 'x', '1']"_s,
                u"['Friends', 'ना', '', '', 'a\\nb', '2']"_s,
                u"['Work', '=1+1', '06/04/50', 'Y', '%1', '3']"_s.arg(QString(600, u'y'))}));
        QCOMPARE(exported(table, u"a.xls"_s), QString());
        const QStringList cells
            = support::linesOfScript(u"formats/data/read_workbook.py"_s, {path(u"a.xls"_s)});
        QVERIFY(cells.first() == u"sheet Contacts 4 6 1"_s);
        for (const QString& cell : {u"1 2 3 0 '1980-03-05 00:00:00'"_s, u"2 1 1 0 'ना'"_s,
                 u"3 2 1 0 '06/04/50'"_s, u"3 4 1 0 600 yyy yyy"_s, u"3 5 2 0 3.0"_s})
            QVERIFY2(cells.contains(cell), qPrintable(cell + u" in "_s + cells.join(u'\n')));

        QCOMPARE(
            exported(table, u"a.txt"_s,
                u"1 rows have letters that a text file has no room for; \"?\" stands in their place. An Excel or CSV file holds them."_s),
            QString());
        QCOMPARE(support::bytesOf(path(u"a.txt"_s)).split('\n').value(2), "Friends\t??\t\t\ta b\t2\r");
        // A page looks like the list: folded rows are out of sight, and groups have their headings.
        QCOMPARE(exported(table, u"a.HTML"_s), QString());
        const QByteArray page = support::bytesOf(path(u"a.HTML"_s));
        QVERIFY(page.contains("<B>&nbsp&nbsp&nbsp&nbspFriends</B>") && page.contains("Ann, A"));
        QVERIFY(page.contains("&nbspWork") && !page.contains("=1+1"));
    }

    void mergedCells()
    {
        widgets::HeadingGrid grid;
        grid.setHeadings(u"Country |City |Name ");
        grid.setRows({{u"India"_s, u"Pune"_s, u"A"_s}, {u"India"_s, u"Pune"_s, u"B"_s},
                         {u"India"_s, u"Agra"_s, u"C"_s}, {u"Nepal"_s, u"Agra"_s, u"D"_s}},
            {u"Country"_s, u"City"_s, u"Name"_s});
        grid.mergeEqual({u"Country"_s, u"City"_s});
        const GridTable table = gridTableOf(&grid, {});
        QStringList ranges;
        for (const int column : {0, 1, 2}) {
            for (int row = 0; row < 4; ++row) {
                const MergedRange range = table.rows->mergedRange(row, column);
                ranges << u"%1+%2"_s.arg(range.row).arg(range.rows);
            }
        }
        QCOMPARE(ranges.join(u' '), u"0+3 0+3 0+3 3+1 0+2 0+2 2+1 3+1 0+1 1+1 2+1 3+1"_s);
    }

    void dialogBeginsWithTheDatedTitle()
    {
        const GridTable table = namesTable(3, u"Dr. A/B"_s);
        m_f->boxes.expectChoice(u"Export"_s, std::nullopt);
        QVERIFY(!GridXLS(m_f->context, table, nullptr));
        m_f->shared.NationalMode = true;
        m_f->boxes.expectChoice(u"Export"_s, std::nullopt);
        QVERIFY(!GridXLS(m_f->context, table, nullptr));
        const QString folder = m_f->drive.local(u"C:\\OVUserFiles\\Exported Files\\Excel");
        QCOMPARE(m_f->boxes.suggested,
            (QStringList{
                folder + u"/Dr. A_B - Mar 05-2026.xls"_s, folder + u"/Dr. A_B - 05 Mar-2026.xls"_s}));
    }

    // The dialog takes what stands behind a point for an ending.
    void nameWithAPoint()
    {
        const GridTable table = namesTable(3);
        QCOMPARE(exported(table, u"Dr. Ann"_s), QString());
        QVERIFY(support::bytesOf(path(u"Dr. Ann.xls"_s)).startsWith("\xD0\xCF\x11\xE0"));
        m_f->boxes.expectChoice(u"Export"_s, path(u"Dr. Ann"_s));
        m_f->boxes.expect(u"Dr. Ann.xls is there already. Replace it?"_s, platform::Answer::No);
        QVERIFY(!GridXLS(m_f->context, table, nullptr));
    }

    void offersToOpen()
    {
        QCOMPARE(exported(namesTable(3), u"a.csv"_s), QString());
        QCOMPARE(m_f->frame.notices, QStringList{u"Exported to a.csv [Open]"_s});
        m_f->frame.noticeAction();
        QCOMPARE(m_f->shell.openedFiles, QStringList{path(u"a.csv"_s)});
    }

    void tooManyRowsForAWorkbook()
    {
        const GridTable table = namesTable(65'536);
        const QString question
            = u"This list has 65536 rows and 1 columns. An Excel file takes 65535 rows and 256 columns only. "
              "Save it as a CSV file instead?"_s;
        m_f->boxes.expectChoice(u"Export"_s, path(u"a.xls"_s));
        m_f->boxes.expect(question, platform::Answer::No);
        QVERIFY(!GridXLS(m_f->context, table, nullptr));
        m_f->boxes.expectChoice(u"Export"_s, path(u"a.xls"_s));
        m_f->boxes.expect(question, platform::Answer::Yes);
        m_f->boxes.expectChoice(u"Export"_s, path(u"b.csv"_s));
        QVERIFY(GridXLS(m_f->context, table, nullptr));
        QCOMPARE(support::bytesOf(path(u"b.csv"_s)).count('\n'), 65'537);
        QVERIFY(!QFile::exists(path(u"a.xls"_s)));
        QVERIFY(fitsWorkbook(namesTable(65'535)));
    }

    void textTooLongForACell()
    {
        widgets::HeadingGrid grid;
        grid.setHeadings(u"Note ");
        grid.setRows({{QString(40'000, u'x')}});
        QCOMPARE(
            exported(gridTableOf(&grid, u"Notes"_s), u"a.xls"_s,
                u"1 texts were cut, as a cell of an Excel file takes 32767 letters. A CSV file holds them whole."_s),
            QString());
    }

    // Whatever goes wrong leaves the old file whole and nothing beside it, and the person hears why.
    void oldFileStays_data()
    {
        support::columns<QString, int>("file", "bytes");
        QTest::newRow("workbook whose disk is full when it is put together") << u"a.xls"_s << 100'000;
        for (const QString& file : {u"a.xls"_s, u"a.csv"_s, u"a.txt"_s, u"a.html"_s}) {
            QTest::newRow(qPrintable(file + u" on a full disk"_s)) << file << 0;
            QTest::newRow(qPrintable(file + u" on a disk that fills up"_s)) << file << 30'000;
            QTest::newRow(qPrintable(file + u" stopped"_s)) << file << -1;
        }
    }

    void oldFileStays()
    {
        QFETCH(QString, file);
        QFETCH(int, bytes);
        support::put(path(file), "old");
        GridWritten written;
        {
            const std::optional<support::FullDisk> full
                = bytes < 0 ? std::nullopt : std::optional<support::FullDisk>(std::in_place, rlim_t(bytes));
            written = writeGrid(namesTable(5000), path(file), u"dd"_s, [bytes](int) { return bytes >= 0; });
        }
        using Outcome = GridWritten::Outcome;
        QCOMPARE(int(written.outcome), int(bytes < 0 ? Outcome::Stopped : Outcome::Failed));
        QCOMPARE(written.why.isEmpty(), bytes < 0);
        QCOMPARE(support::bytesOf(path(file)), "old");
        QCOMPARE(QDir(m_f->root.path()).entryList(QDir::Files | QDir::Hidden), QStringList{file});
    }

    void whereNothingCanBeWritten()
    {
        const QString said = u"The file %1 was not written: %2."_s;
        QVERIFY(!exported(namesTable(1), u"gone/a.csv"_s,
            said.arg(path(u"gone/a.csv"_s), u"the folder could not be made"_s))
                     .isEmpty());
        QVERIFY(QDir(m_f->root.path()).mkdir(u"b.csv"_s));
        QVERIFY(!exported(namesTable(1), u"b.csv"_s, said.arg(path(u"b.csv"_s), u"a folder has this name"_s))
                     .isEmpty());
    }

    // What the grid showed is gone with it.
    void gridThatGoes()
    {
        auto grid = listOfContacts();
        const GridTable table = gridTableOf(grid.get(), u"Contacts"_s);
        grid.reset();
        QCOMPARE(table.rowCount(), 0);
        QCOMPARE(exported(table, u"a.csv"_s), QString());
    }

private:
    std::unique_ptr<widgets::HeadingGrid> listOfContacts()
    {
        auto grid = std::make_unique<widgets::HeadingGrid>();
        grid->resize(600, 300);
        grid->setOutline(u"category1"_s);
        grid->showAs(
            u"M_BD"_s, [](const QVariant& day) { return QLocale::c().toString(day.toDate(), u"dd/MM/yy"); });
        grid->fill(u" |Category |Name |Birthday |Copied |Note |No |Hidden ",
            m_f->book.data().openRecordset(
                u"select category1,Name,M_BD,cpsmnbd,memo1,id,gen_id from cnt_main order by category1,id"),
            {{}, u"category1"_s, u"Name"_s, u"M_BD"_s, u"cpsmnbd"_s, u"memo1"_s, u"id"_s, u"gen_id"_s});
        grid->hideColumn(u"gen_id"_s);
        // The groups are not known yet; the first look at the grid as a value finds them.
        gridTableOf(grid.get(), {});
        for (int line = 0; line < grid->rowCount(); ++line) {
            if (grid->isHeading(line) && grid->model()->index(line, 1).data().toString() == u"Work") {
                grid->setCurrentRow(line);
                QTest::keyClick(grid.get(), Qt::Key_Left);
            }
        }
        return grid;
    }

    static GridTable namesTable(int rows, const QString& title = u"Names"_s)
    {
        return {.title = title, .columns = {{u"Name"_s, 1000}}, .rows = std::make_shared<ManyRows>(rows)};
    }

    QString path(const QString& file) const { return m_f->root.filePath(file); }

    /// Empty, or that nothing was written.
    QString exported(const GridTable& table, const QString& file, const QString& said = {})
    {
        m_f->boxes.expectChoice(u"Export"_s, path(file));
        if (!said.isEmpty())
            m_f->boxes.expect(said);
        return GridXLS(m_f->context, table, nullptr) ? QString() : u"not written"_s;
    }

    std::unique_ptr<support::ScreenFixture> m_f;
};

QTEST_MAIN(GridExportTest)
#include "grid_export_test.moc"
