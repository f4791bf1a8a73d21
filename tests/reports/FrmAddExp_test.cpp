#include <QtTest>
#include <QtWidgets>

#include "reports/export_columns.h"
#include "reports/FrmAddExp.h"
#include "support/disk.h"
#include "support/other_program.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using reports::FrmAddExp;

/// The export of the book by columns: which, in which order, of which contacts.
class FrmAddExpTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        for (const QString& values :
            {u"'Bob', 'Work', '1', null, false, 'x'"_s, u"'Ann', 'Kid''s', '2', #05-Mar-1980#, true, null"_s,
                u"'Cyd', 'Work', '2', null, false, null"_s})
            m_f->execute(u"insert into cnt_main (Name, category1, Priority, M_BD, cpsmnbd, User1) values ("_s
                + values + u')');
        m_f->shared.NationalMode = true;
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    void everyColumnIsOfferedOnce()
    {
        QStringList offered;
        QSet<QString> captions;
        for (const reports::ExportColumn& column : reports::exportColumns()) {
            offered << column.name.toString().toLower();
            captions << reports::exportCaption(column, {u"One"_s, u"Two"_s, u"Three"_s});
        }
        QStringList columns = m_f->book.data().columns(u"cnt_main"_s);
        for (QString& column : columns)
            column = column.toLower();
        QCOMPARE(captions.size(), offered.size());
        offered.sort();
        columns.sort();
        QCOMPARE(offered, columns);
    }

    void chosenColumnsInTheirOrder()
    {
        m_f->execute(u"insert into cntb_setup (lbluse1) values ('Club')"_s);
        FrmAddExp* screen = open();
        QVERIFY(support::headingsOf(sample(screen)).startsWith(u"Name"_s));
        support::click(screen, u"CmdNone"_s);
        QCOMPARE(sample(screen)->rowCount(), 0);
        QVERIFY(!screen->findChild<QPushButton*>(u"SSCommand1"_s)->isEnabled());
        for (const QString& caption :
            {u"Name"_s, u"Birthday"_s, u"Club"_s, u"Birthday in the scheduler"_s, u"Number of the contact"_s})
            tick(screen, caption);
        // The number to the front of the tick.
        auto* list = widgets::child<QListWidget>(screen, u"LstColumns"_s);
        list->setCurrentRow(rowOf(list, u"Number of the contact"_s));
        support::click(screen, u"CmdDown"_s);
        support::click(screen, u"CmdUp"_s);
        while (list->currentRow() > 0)
            support::click(screen, u"CmdUp"_s);
        QCOMPARE(support::headingsOf(sample(screen)),
            (QStringList{u"Number of the contact"_s, u"Name"_s, u"Birthday"_s, u"Club"_s,
                u"Birthday in the scheduler"_s}));
        QCOMPARE(sample(screen)->textAt(0, u"M_BD"_s), u"05 Mar-1980"_s);

        exportTo(screen, u"a.csv"_s);
        QCOMPARE(support::bytesOf(path(u"a.csv"_s)).mid(3),
            "Number of the contact,Name,Birthday,Club,Birthday in the scheduler\r\n"
            "2,Ann,05 Mar-1980,,Y\r\n1,Bob,,x,\r\n3,Cyd,,,\r\n");
        exportTo(screen, u"a.xls"_s);
        const QStringList cells
            = support::linesOfScript(u"formats/data/read_workbook.py"_s, {path(u"a.xls"_s)});
        for (const QString& cell : {u"1 0 2 0 2.0"_s, u"1 1 1 0 'Ann'"_s, u"1 2 3 0 '1980-03-05 00:00:00'"_s})
            QVERIFY2(cells.contains(cell), qPrintable(cells.join(u'\n')));
        // The next time they are chosen already.
        m_f->screens.unload(u"FrmAddExp");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(support::headingsOf(sample(open())).mid(0, 3),
            (QStringList{u"Number of the contact"_s, u"Name"_s, u"Birthday"_s}));
    }

    void onlyTheContactsThatAreWanted()
    {
        FrmAddExp* screen = open();
        support::click(screen, u"CmdNone"_s);
        tick(screen, u"Name"_s);
        support::choose(screen, u"CmbCategory"_s, u"Work"_s);
        QCOMPARE(namesOf(sample(screen)), u"Bob Cyd"_s);
        support::choose(screen, u"CmbPriority"_s, u"2"_s);
        QCOMPARE(namesOf(sample(screen)), u"Cyd"_s);
        QVERIFY(support::isTold(u"1 contacts, 1 columns"_s));
        exportTo(screen, u"a.csv"_s);
        QCOMPARE(support::bytesOf(path(u"a.csv"_s)).mid(3), "Name\r\nCyd\r\n");
        // An apostrophe in a category ends no statement.
        support::choose(screen, u"CmbCategory"_s, u"Kid's"_s);
        QCOMPARE(namesOf(sample(screen)), u"Ann"_s);
        support::choose(screen, u"CmbCategory"_s, u"All"_s);
        QCOMPARE(namesOf(sample(screen)), u"Ann Cyd"_s);
        m_f->execute(u"update cnt_main set Name='Dan' where id=2"_s);
        screen->bookChanged();
        QCOMPARE(namesOf(sample(screen)), u"Cyd Dan"_s);
    }

    void sampleIsShortAndTheExportIsNot()
    {
        QList<QStringList> rows;
        for (int i = 0; i < 117; ++i)
            rows << QStringList{u"Person %1"_s.arg(i)};
        QVERIFY(m_f->book.data().appendRows(u"cnt_main"_s, {u"Name"_s}, rows));
        FrmAddExp* screen = open();
        QCOMPARE(sample(screen)->rowCount(), 50);
        exportTo(screen, u"a.csv"_s);
        QCOMPARE(support::bytesOf(path(u"a.csv"_s)).count('\n'), 121);
    }

    void emptyBook()
    {
        m_f->execute(u"delete * from cnt_main"_s);
        FrmAddExp* screen = open();
        QVERIFY(support::isTold(u"0 contacts"_s));
        QVERIFY(!screen->findChild<QPushButton*>(u"SSCommand1"_s)->isEnabled());
        support::click(screen, u"CmdAll"_s);
        QCOMPARE(sample(screen)->rowCount(), 0);
    }

private:
    FrmAddExp* open()
    {
        auto* screen = m_f->open<FrmAddExp>(u"FrmAddExp"_s);
        screen->resize(1000, 600);
        return screen;
    }
    static widgets::HeadingGrid* sample(const FrmAddExp* screen)
    {
        return screen->findChild<widgets::HeadingGrid*>(u"FG1"_s);
    }
    static QString namesOf(const widgets::HeadingGrid* grid)
    {
        QStringList names;
        for (int row = 0; row < grid->rowCount(); ++row)
            names << grid->textAt(row, u"Name"_s);
        return names.join(u' ');
    }
    static int rowOf(const QListWidget* list, const QString& caption)
    {
        return list->row(list->findItems(caption, Qt::MatchExactly).value(0));
    }
    static void tick(FrmAddExp* screen, const QString& caption)
    {
        auto* list = widgets::child<QListWidget>(screen, u"LstColumns"_s);
        list->setCurrentRow(rowOf(list, caption));
        QTest::keyClick(list, Qt::Key_Space);
    }
    QString path(const QString& file) const { return m_f->root.filePath(file); }
    void exportTo(const FrmAddExp* screen, const QString& file)
    {
        m_f->boxes.expectChoice(u"Export"_s, path(file));
        support::click(screen, u"SSCommand1"_s);
    }

    std::unique_ptr<support::ScreenFixture> m_f;
};

QTEST_MAIN(FrmAddExpTest)
#include "FrmAddExp_test.moc"
