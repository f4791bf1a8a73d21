#include <QSaveFile>
#include <QtTest>

#include "formats/delimited.h"
#include "formats/workbook.h"
#include "support/disk.h"
#include "support/other_program.h"

using namespace Qt::StringLiterals;
using namespace formats;

/// Workbooks and lines of values, as other programs read them.
class WorkbookTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCellReturns()
    {
        const QString emoji = QString(4111, u'x') + u"😀"_s + QString(28'000, u'ж');
        write({{u"Name"_s, 20}, {u"Amount"_s, 8}, {u"Day"_s, 12}},
            {{u"Zoé"_s, 12.5, QDate(1980, 3, 5)},
                {u"ना 😀"_s, -3, QDateTime(QDate(2026, 1, 2), QTime(18, 30))},
                {QString(), QVariant(), QDate(1899, 1, 1)}, {u"\"<b>&\r\n"_s, 100'000'000'000LL, u"none"_s},
                {QString(300, u'a'), QString(32'767, u'é'), emoji}});
        QCOMPARE(m_cut, 0);
        QCOMPARE(read(),
            (QStringList{u"sheet A_B 6 3 1"_s, u"width 0 20.0"_s, u"width 1 8.0"_s, u"width 2 12.0"_s,
                u"0 0 1 1 'Name'"_s, u"0 1 1 1 'Amount'"_s, u"0 2 1 1 'Day'"_s, u"1 0 1 0 'Zoé'"_s,
                u"1 1 2 0 12.5"_s, u"1 2 3 0 '1980-03-05 00:00:00'"_s, u"2 0 1 0 'ना 😀'"_s, u"2 1 2 0 -3.0"_s,
                u"2 2 3 0 '2026-01-02 18:30:00'"_s, u"4 0 1 0 '\"<b>&\\r\\n'"_s, u"4 1 2 0 100000000000.0"_s,
                u"4 2 1 0 'none'"_s, u"5 0 1 0 300 aaa aaa"_s, u"5 1 1 0 32767 ééé ééé"_s,
                u"5 2 1 0 32112 xxx жжж"_s}));
    }

    // A text may go on in the next record at any of its letters, never within its head.
    void textsOverTheEdgesOfRecords()
    {
        QList<QVariantList> rows;
        for (int length = 8150; length < 8230; ++length)
            rows << QVariantList{QString(length, u'a'), u"€"_s, QString(length / 2, u'ж'), u"b"_s};
        write({{u"1"_s}, {u"2"_s}, {u"3"_s}, {u"4"_s}}, rows);
        const QStringList cells = read();
        QCOMPARE(cells.size(), 1 + 4 + 4 + 4 * 80);
        for (int row = 0; row < 80; ++row) {
            const int length = 8150 + row;
            QCOMPARE(cells[9 + 4 * row], u"%1 0 1 0 %2 aaa aaa"_s.arg(row + 1).arg(length));
            QCOMPARE(cells[10 + 4 * row], u"%1 1 1 0 '€'"_s.arg(row + 1));
            QCOMPARE(cells[11 + 4 * row], u"%1 2 1 0 %2 жжж жжж"_s.arg(row + 1).arg(length / 2));
        }
    }

    void longTextsAreCutAndCounted()
    {
        write({{u"Note"_s}}, {{QString(40'000, u'x')}, {QString(32'766, u'x') + u"😀"_s}});
        QCOMPARE(m_cut, 2);
        QCOMPARE(read().mid(3), (QStringList{u"1 0 1 0 32767 xxx xxx"_s, u"2 0 1 0 32766 xxx xxx"_s}));
    }

    void fullSheet()
    {
        QSaveFile file(m_folder.filePath(u"a.xls"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        WorkbookWriter book(file, u"S"_s, {{u"Name"_s}}, u"dd"_s);
        for (int row = 1; row < maxSheetRows; ++row)
            QVERIFY(book.addRow({u"Person %1"_s.arg(row)}));
        QVERIFY(!book.addRow({u"one too many"_s}));
        QVERIFY(book.finish() && file.commit());
        const QStringList cells = read();
        QCOMPARE(cells.first(), u"sheet S 65536 1 1"_s);
        QCOMPARE(cells.last(), u"65535 0 1 0 'Person 65535'"_s);
    }

    void sheetNames()
    {
        QCOMPARE(safeSheetName({}), u"Sheet1"_s);
        QCOMPARE(safeSheetName(u"'a/b:[c]*?\\\n'"_s), u"a_b__c_____"_s);
        QCOMPARE(safeSheetName(QString(40, u'é')), QString(31, u'é'));
    }

    void linesOfValues()
    {
        const QList<QStringList> rows{{u"Name"_s, u"b,c"_s, u"d\"e"_s}, {u"=1+1"_s, u"+91 98"_s, u"@x"_s},
            {u" edge "_s, u"two\r\nlines"_s, {}}, {{}, {}, {}}, {{}}, {u"Zoé ना 😀 <b>&"_s, u"-"_s, u"'"_s}};
        QByteArray bytes = utf8Mark;
        for (const QStringList& row : rows)
            bytes += csvLine(row);
        const QString path = support::put(m_folder.filePath(u"a.csv"_s), bytes);
        QCOMPARE(support::linesOfScript(u"formats/data/read_csv.py"_s, {path}),
            (QStringList{u"['Name', 'b,c', 'd\"e']"_s, u"['=1+1', '+91 98', '@x']"_s,
                u"[' edge ', 'two\\r\\nlines', '']"_s, u"['', '', '']"_s, u"['']"_s,
                u"['Zoé ना 😀 <b>&', '-', \"'\"]"_s}));
        // Quotes only where they are needed.
        QCOMPARE(csvLine({u"a b"_s, u"=1"_s, u"c,d"_s}), QByteArray("a b,=1,\"c,d\"\r\n"));
        QCOMPARE(tabbedLine({u"a\tb"_s, {}, u"c\r\nd\ne"_s, u"\"q\""_s}), u"a b\t\tc d e\t\"q\""_s);
    }

private:
    void write(const QList<SheetColumn>& columns, const QList<QVariantList>& rows)
    {
        QSaveFile file(m_folder.filePath(u"a.xls"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        WorkbookWriter book(file, u"A/B"_s, columns, u"dd mmm-yyyy"_s);
        for (const QVariantList& row : rows)
            QVERIFY(book.addRow(row));
        QVERIFY(book.finish() && file.commit());
        m_cut = book.cutTexts();
    }

    QStringList read() const
    {
        return support::linesOfScript(u"formats/data/read_workbook.py"_s, {m_folder.filePath(u"a.xls"_s)});
    }

    QTemporaryDir m_folder;
    int m_cut = 0;
};

QTEST_GUILESS_MAIN(WorkbookTest)
#include "workbook_test.moc"
