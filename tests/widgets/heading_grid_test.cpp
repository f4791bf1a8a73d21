#include "jet/database.h"
#include "support/columns.h"
#include "widgets/column_widths.h"
#include "widgets/grid_contents.h"
#include "widgets/heading_grid.h"
#include "widgets/record_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

/// Lines of the grid: a heading as "[text]", a row by its name.
static QStringList linesOf(const HeadingGrid& grid)
{
    QStringList lines;
    for (int line = 0; line < grid.rowCount(); ++line)
        lines += grid.isHeading(line) ? u"[%1]"_s.arg(grid.model()->index(line, 1).data().toString())
                                      : grid.textAt(line, u"Name"_s);
    return lines;
}

/// Whether a heading string becomes the right columns over the right data, and whether a long list stays
/// cheap.
class HeadingGridTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        constexpr int Many = 100'000;
        const QString path = m_folder.filePath(u"grid.db"_s);
        QVERIFY(jet::Database::create(path));
        QCOMPARE(m_data.open(path), jet::Database::OpenResult::Opened);
        const jet::Schema schema = jet::Schema::fromCsv("database,table,column,type,size\n"
                                                        "data,person,id,autonumber,\n"
                                                        "data,person,Name,text,60\n"
                                                        "data,person,city,text,60\n"
                                                        "data,person,born,date,\n"
                                                        "data,wide,id,autonumber,\n"
                                                        "data,wide,Name,text,60\n"
                                                        "data,wide,note,memo,\n"
                                                        "data,many,id,autonumber,\n"
                                                        "data,many,Name,text,60\n");
        QVERIFY(m_data.applySchema(schema, u"data"_s));
        QVERIFY(m_data.appendRows(u"person"_s, {u"Name"_s, u"city"_s, u"born"_s},
            {{u"Asha"_s, u"Pune"_s, u"1990-02-01"_s}, {u"Bina"_s, u"Delhi"_s, {}},
                {u"Bimal"_s, u"Agra"_s, {}}, {u"Chand"_s, u"Pune"_s, {}}}));
        QList<QStringList> people;
        for (int i = 0; i < Many; ++i)
            people += QStringList{u"Person %1"_s.arg(i)};
        QVERIFY(m_data.appendRows(u"many"_s, {u"Name"_s}, people));
    }

    void headings_data()
    {
        support::columns<QString, QList<Heading>>("text", "parsed");
        QTest::newRow("margin, then widths by blanks")
            << u"|Name       |City"_s << QList<Heading>{{{}, 0}, {u"Name"_s, 11}, {u"City"_s, 4}};
        QTest::newRow("blanks in front") << u"    |  Status "_s << QList<Heading>{{{}, 4}, {u"Status"_s, 9}};
        QTest::newRow("blank within the text")
            << u"Sub Category  "_s << QList<Heading>{{u"Sub Category"_s, 14}};
        QTest::newRow("empty in the middle")
            << u"Time||To"_s << QList<Heading>{{u"Time"_s, 4}, {{}, 0}, {u"To"_s, 2}};
        QTest::newRow("open at the end") << u"A|"_s << QList<Heading>{{u"A"_s, 1}, {{}, 0}};
    }

    void headings()
    {
        QFETCH(QString, text);
        QTEST(parseHeadings(text), "parsed");
    }

    void columnsUnderHeadings_data()
    {
        support::columns<QString, QString, QStringList, QStringList>(
            "headings", "sql", "columns", "firstRow");
        const QString idNameCity = u"select id,Name,city from person order by id"_s;
        const QString nameCity = u"select Name,city from person order by id"_s;
        const QStringList margin{{}, u"Asha"_s, u"Pune"_s};
        QTest::newRow("margin over the key") << u"|Name |City"_s << idNameCity << QStringList() << margin;
        QTest::newRow("margin without a column") << u"|Name |City"_s << nameCity << QStringList() << margin;
        QTest::newRow("two margins, one over the key")
            << u"||Name |City"_s << idNameCity << QStringList() << QStringList{{}, {}, u"Asha"_s, u"Pune"_s};
        QTest::newRow("no margin") << u"Name |City"_s << nameCity << QStringList()
                                   << QStringList{u"Asha"_s, u"Pune"_s};
        QTest::newRow("columns without a heading are not shown")
            << u"|Name"_s << idNameCity << QStringList() << QStringList{{}, u"Asha"_s};
        QTest::newRow("headings without a column are empty")
            << u"Name|City|More"_s << nameCity << QStringList() << QStringList{u"Asha"_s, u"Pune"_s, {}};
        QTest::newRow("columns by name")
            << u"|City |Person"_s << u"select * from person order by id"_s
            << QStringList{{}, u"CITY"_s, u"name"_s} << QStringList{{}, u"Pune"_s, u"Asha"_s};
    }

    void columnsUnderHeadings()
    {
        QFETCH(QString, headings);
        QFETCH(QString, sql);
        QFETCH(QStringList, columns);
        HeadingGrid grid;
        grid.fill(headings, rows(sql), columns);
        QTEST(shownTexts(grid, 0), "firstRow");
        QCOMPARE(grid.textAt(1, u"CITY"_s), u"Delhi"_s);
    }

    void asksOnlyForWhatIsInSight()
    {
        HeadingGrid grid;
        grid.resize(300, 400);
        grid.setHeadings(u"|Name            ");
        QSet<QString> asked;
        grid.showAs(u"Name"_s, [&asked](const QVariant& name) {
            asked.insert(name.toString());
            return name.toString();
        });
        jet::Recordset many = rows(u"select id,Name from many order by id");
        QCOMPARE(many.count(), 100'000);
        grid.show();
        QElapsedTimer timer;
        timer.start();
        grid.fill(std::move(many));
        const qint64 filling = timer.elapsed();
        QCoreApplication::processEvents();
        QVERIFY2(asked.size() < 60, qPrintable(QString::number(asked.size())));
        QVERIFY(asked.contains(u"Person 3"_s));

        grid.setCurrentRow(99'999);
        QCoreApplication::processEvents();
        QVERIFY2(asked.size() < 120, qPrintable(QString::number(asked.size())));
        QVERIFY(asked.contains(u"Person 99999"_s));
        QVERIFY2(filling < 50,
            qPrintable(QString::number(filling))); // it takes less than 1 ms; this allows for a busy computer
    }

    void keysAndHiddenColumns()
    {
        HeadingGrid grid;
        grid.hideColumn(u"city"_s);
        grid.fill(u"|Name|City|Born", rows(u"select id,Name,city,born from person order by Name desc"));
        QCOMPARE(shownTexts(grid, 3).size(), 3);
        QCOMPARE(grid.currentKey(), 0);
        QVERIFY(grid.selectKey(1));
        QCOMPARE(grid.currentRow(), 3);
        QCOMPARE(grid.currentText(u"city"_s), u"Pune"_s);
        QVERIFY(!grid.selectKey(77));
        QCOMPARE(grid.currentKey(), 1);

        // A snapshot has no keys of its own.
        grid.setKeyColumn(u"person"_s);
        grid.fill(rows(u"select distinct id as person,Name from person order by Name"));
        QCOMPARE(grid.keyAt(1), 3);
        QCOMPARE(grid.rowOf(4), 3);

        grid.setKeyColumn({});
        grid.setRows({{u"17"_s, u"Zoe"_s}}, {u"id"_s, u"Name"_s});
        QCOMPARE(grid.keyAt(0), 17);
        QCOMPARE(grid.keyAt(5), 0);
    }

    void failedSelectionIsAnEmptyList()
    {
        HeadingGrid grid;
        grid.resize(300, 200);
        grid.fill(u"|Name", rows(u"select id,Name from person"));
        grid.setCurrentRow(2);
        grid.fill(rows(u"select nothing from nowhere"));
        QCOMPARE(grid.rowCount(), 0);
        QCOMPARE(grid.currentRow(), -1);
        QCOMPARE(grid.currentKey(), 0);
        QCOMPARE(grid.textAt(0, u"Name"_s), QString());
        QTest::keyClick(&grid, Qt::Key_B);
        grid.grab(); // paints the empty state
    }

    void typingLooksForARow()
    {
        const auto pause = [] {
            QApplication::setKeyboardInputInterval(0);
            QTest::qWait(2);
        };
        const int usual = QApplication::keyboardInputInterval();
        HeadingGrid grid;
        grid.fill(u"|Name|City", rows(u"select id,Name,city from person order by id"));
        QTest::keyClicks(&grid, u"bim"_s);
        QCOMPARE(grid.currentText(u"Name"_s), u"Bimal"_s);
        pause();
        QTest::keyClick(&grid, Qt::Key_B); // onwards, and round to the top
        QCOMPARE(grid.currentText(u"Name"_s), u"Bina"_s);
        QTest::keyClick(&grid, Qt::Key_B);
        QCOMPARE(grid.currentText(u"Name"_s), u"Bimal"_s);
        pause();
        QTest::keyClick(&grid, Qt::Key_X);
        QCOMPARE(grid.currentText(u"Name"_s), u"Bimal"_s);
        QApplication::setKeyboardInputInterval(usual);
    }

    void typedLetters_data()
    {
        // name: of the row that is current then
        support::columns<QString, QString>("typed", "name");
        QTest::newRow("a letter twice, as a name has it") << u"aar"_s << u"Aarti"_s;
        QTest::newRow("a letter twice that no name has: next") << u"bb"_s << u"Bina"_s;
        QTest::newRow("what no name begins with changes nothing") << u"atma"_s << u"Atul"_s;
        QTest::newRow("a doubled letter is not forgotten") << u"bbi"_s << u"Bina"_s;
        QTest::newRow("contacts only, also in a folded group") << u"d"_s << u"Dev"_s;
    }

    void typedLetters()
    {
        QFETCH(QString, typed);
        HeadingGrid grid;
        grid.setHeadings(u"City|Name", {u"city"_s, u"name"_s});
        grid.setOutline(u"city"_s);
        grid.setRows({{u"Agra"_s, u"Atul"_s}, {u"Agra"_s, u"Bimal"_s}, {u"Agra"_s, u"Bina"_s},
                         {u"Delhi"_s, u"Aarti"_s}, {u"Delhi"_s, u"Dev"_s}},
            {u"city"_s, u"name"_s});
        QTRY_COMPARE(grid.rowCount(), 7);
        grid.foldAll(true);
        QTest::keyClicks(&grid, typed);
        QVERIFY(!grid.isHeading(grid.currentRow()));
        QTEST(grid.currentText(u"name"_s), "name");
    }

    void namesAreInSight()
    {
        HeadingGrid grid;
        grid.resize(420, 300);
        const QString wide
            = u"|Category                                   |Sub                         |Name        "_s;
        grid.fill(wide,
            rows(u"select id,'Friends' as c,'' as s,city & ' ' & Name & ' and company' as n from person"));
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        const int name = grid.model()->columnCount() - 1;
        const QString text = grid.model()->index(0, name).data().toString();
        const int room = grid.viewport()->width() - grid.columnViewportPosition(name);
        QVERIFY(room > grid.fontMetrics().horizontalAdvance(text));
        const int chosen = grid.columnWidth(1) + 60; // by the person
        const QPoint edge(grid.columnViewportPosition(1) + grid.columnWidth(1) - 1, 5);
        QTest::mousePress(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(grid.horizontalHeader()->viewport(), edge + QPoint(60, 0));
        QTest::mouseRelease(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, edge + QPoint(60, 0));
        QCOMPARE(grid.columnWidth(1), chosen);
        grid.fill(rows(u"select id,'A much longer category of contacts' as c,'' as s,Name as n from person"));
        grid.grab();
        QCOMPARE(grid.columnWidth(1), chosen);
    }

    void enterAndDoubleClickChoose()
    {
        HeadingGrid grid;
        grid.resize(400, 300);
        grid.fill(u"Name", rows(u"select Name from person order by id"));
        grid.show();
        QSignalSpy chosen(&grid, &HeadingGrid::chosen);
        QSignalSpy moved(&grid, &HeadingGrid::currentRowChanged);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(chosen.size(), 0); // no row is current
        grid.setCurrentRow(1);
        QTest::keyClick(&grid, Qt::Key_Down);
        QTest::keyClick(&grid, Qt::Key_Return);
        const QPoint cell = grid.visualRect(grid.model()->index(3, 0)).center();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(chosen, (QList<QList<QVariant>>{{2}, {3}}));
        QCOMPARE(moved, (QList<QList<QVariant>>{{1}, {2}, {3}}));
    }

    void listShowsTheNameOnly()
    {
        RecordList list;
        list.fill(rows(u"SELECT id,name FROM person ORDER BY Name "));
        QCOMPARE(list.model()->columnCount(), 1);
        QCOMPARE(shownTexts(list, 1), QStringList{u"Bimal"_s});
        list.setCurrentRow(1);
        QCOMPARE(list.currentKey(), 3);
    }

    void outlineFindsItsGroupsInSteps()
    {
        HeadingGrid grid;
        grid.setOutline(u"city"_s);
        QSignalSpy progress(&grid, &HeadingGrid::outlineProgress);
        QSignalSpy rowChanges(&grid, &HeadingGrid::currentRowChanged);
        grid.fill(u"  |City  |Name  ", rows(u"select id,city,Name from person order by city,Name"));
        QCOMPARE(grid.rowCount(), 5);
        QCOMPARE(linesOf(grid).constFirst(), u"[!!!!!]"_s);
        grid.selectKey(4);
        QCOMPARE(grid.currentText(u"Name"_s), u"Chand"_s);

        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(linesOf(grid),
            (QStringList{
                u"[Agra]"_s, u"Bimal"_s, u"[Delhi]"_s, u"Bina"_s, u"[Pune]"_s, u"Asha"_s, u"Chand"_s}));
        QCOMPARE(grid.recordCount(), 4);
        QCOMPARE(grid.currentKey(), 4); // still the same row, and nobody was told of another one
        QCOMPARE(rowChanges.size(), 1);
        QCOMPARE(grid.keyAt(4), 0);

        grid.setOutline({});
        QCOMPARE(grid.rowCount(), 4);
    }

    void outlineFolds()
    {
        HeadingGrid grid;
        grid.setOutline(u"city"_s);
        QSignalSpy progress(&grid, &HeadingGrid::outlineProgress);
        QSignalSpy chosen(&grid, &HeadingGrid::chosen);
        grid.fill(u"  |City  |Name  ", rows(u"select id,city,Name from person order by city,Name"));
        QTRY_COMPARE(progress.size(), 1);

        grid.selectKey(1);
        QTest::keyClick(&grid, Qt::Key_Left);
        QCOMPARE(grid.currentRow(), 4); // the heading
        QTest::keyClick(&grid, Qt::Key_Left);
        QCOMPARE(linesOf(grid), (QStringList{u"[Agra]"_s, u"Bimal"_s, u"[Delhi]"_s, u"Bina"_s, u"[Pune]"_s}));
        grid.setCurrentRow(0);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(linesOf(grid), (QStringList{u"[Agra]"_s, u"[Delhi]"_s, u"Bina"_s, u"[Pune]"_s}));
        QCOMPARE(chosen.size(), 0);
        QVERIFY(grid.selectKey(4)); // in a folded group
        QCOMPARE(linesOf(grid),
            (QStringList{u"[Agra]"_s, u"[Delhi]"_s, u"Bina"_s, u"[Pune]"_s, u"Asha"_s, u"Chand"_s}));
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        grid.foldAll(true);
        QCOMPARE(linesOf(grid), (QStringList{u"[Agra]"_s, u"[Delhi]"_s, u"[Pune]"_s}));
        QCOMPARE(grid.currentRow(), 2);
    }

    void outlineOfManyRows()
    {
        HeadingGrid grid;
        grid.setOutline(u"Name"_s);
        QSignalSpy progress(&grid, &HeadingGrid::outlineProgress);
        grid.fill(u"  |City  |Name  ", rows(u"select id,Name,id from many"));
        QTRY_VERIFY(!progress.isEmpty() && progress.constLast().constFirst().toInt() == 100);
        QVERIFY(progress.size() > 1); // the window could move in between
        QCOMPARE(grid.rowCount(), 2 * grid.recordCount());
        QVERIFY(grid.selectKey(77'777));
        QCOMPARE(grid.currentRow(), 2 * 77'777 - 1);
    }

    void mergedCellsArePaintedOnce()
    {
        HeadingGrid grid;
        grid.resize(400, 300);
        grid.fill(u"City  |Name  ", rows(u"select city,Name from person order by city,Name"));
        const auto pictureOf = [&grid](int row) {
            return grid.viewport()->grab(grid.visualRect(grid.model()->index(row, 0))).toImage();
        };
        grid.setAlternatingRowColors(false);
        grid.show();
        QVERIFY(pictureOf(2) == pictureOf(3)); // Pune and Pune
        grid.mergeEqual({u"city"_s});
        QVERIFY(pictureOf(2) != pictureOf(3));
        QVERIFY(pictureOf(0) != pictureOf(1)); // Agra, then Delhi in its own cell
    }

    // Rows out of sight are not found, not counted and not in a group; the current one stays.
    void showsAPartOfItsRows()
    {
        HeadingGrid grid;
        QSignalSpy progress(&grid, &HeadingGrid::outlineProgress);
        QSignalSpy rowChanges(&grid, &HeadingGrid::currentRowChanged);
        grid.setOutline(u"city"_s);
        grid.fill(u"  |City  |Name  ", rows(u"select id,city,Name from person order by city,Name"));
        QTRY_COMPARE(progress.size(), 1);
        grid.selectKey(4);
        grid.showOnly(std::vector<int>{0, 1, 3}); // without Asha of Pune
        QTRY_COMPARE(progress.size(), 2);
        QCOMPARE(linesOf(grid),
            (QStringList{u"[Agra]"_s, u"Bimal"_s, u"[Delhi]"_s, u"Bina"_s, u"[Pune]"_s, u"Chand"_s}));
        QCOMPARE(grid.currentText(u"Name"_s), u"Chand"_s);
        QCOMPARE(rowChanges.size(), 1);
        QCOMPARE(grid.placeOf(grid.sourceRow(grid.currentRow())), 2);
        QCOMPARE(grid.rowOf(1), -1);
        grid.setCurrentRow(0);
        QTest::keyClicks(&grid, u"as"_s);
        QCOMPARE(grid.currentRow(), 0);
        QCOMPARE(GridContents(&grid).text(5, 2), u"Chand"_s);
        grid.showOnly(std::nullopt);
        QCOMPARE(grid.recordCount(), 4);
    }

    void columnsGiveWay()
    {
        using Widths = QList<int>;
        const QList<ColumnWish> wishes{{100, 40}, {60, 50}, {200, 60}};
        QCOMPARE(widthsWithin(400, wishes), (Widths{100, 60, 200}));
        QCOMPARE(widthsWithin(260, wishes), (Widths{90, 60, 110}));
        QCOMPARE(widthsWithin(200, wishes), (Widths{60, 60, 80}));
        QCOMPARE(widthsWithin(10, wishes), (Widths{40, 50, 60})); // no further than what can be read
    }

    void typingLooksThroughRowsThatAreNotHeld()
    {
        QVERIFY(m_data.execute(u"insert into wide (Name) values ('Ash [1]')"_s));
        QVERIFY(m_data.execute(u"insert into wide (Name) values ('bea')"_s));
        QVERIFY(m_data.execute(u"insert into wide (Name) values ('Ash O''Hara')"_s));
        HeadingGrid grid;
        grid.fill(u"|Name  ", rows(u"select * from wide"), {{}, u"Name"_s});
        for (const QString& typed : {u"a"_s, u"s"_s, u"h"_s, u" "_s, u"o"_s, u"'"_s})
            grid.keyboardSearch(typed);
        QCOMPARE(grid.currentText(u"Name"_s), u"Ash O'Hara"_s);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        for (const QString& typed : {u"a"_s, u"s"_s, u"h"_s, u" "_s, u"["_s})
            grid.keyboardSearch(typed);
        QCOMPARE(grid.currentText(u"Name"_s), u"Ash [1]"_s);
    }

private:
    jet::Recordset rows(QStringView sql) { return m_data.openRecordset(sql); }

    static QStringList shownTexts(const QTableView& grid, int row)
    {
        QStringList texts;
        for (int column = 0; column < grid.model()->columnCount(); ++column) {
            if (!grid.isColumnHidden(column))
                texts += grid.model()->index(row, column).data().toString();
        }
        return texts;
    }

    QTemporaryDir m_folder;
    jet::Database m_data;
};

QTEST_MAIN(HeadingGridTest)
#include "heading_grid_test.moc"
