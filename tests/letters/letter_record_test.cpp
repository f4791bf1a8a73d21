#include <QtTest>
#include <QtWidgets>

#include "core/take_back.h"
#include "letters/record/contact_choice.h"
#include "letters/record/FrmEditLetterRecord.h"
#include "letters/record/Frmgmail.h"
#include "letters/record/FrmLetterRecord.h"
#include "letters/record/FrmLettSum.h"
#include "letters/record/PaperLetter.h"
#include "platform/sane_scanner.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using support::click;

namespace {

QByteArray picture()
{
    QImage page(60, 80, QImage::Format_RGB32);
    page.fill(Qt::yellow);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    page.save(&buffer, "PNG");
    return bytes;
}

} // namespace

/// The record of letters: lists, changes, what comes on paper.
class LetterRecordTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        f = std::make_unique<support::ScreenFixture>();
        f->execute(u"insert into cnt_main (name,h_add1,h_city) values ('Asha','1 Hill','Pune')"_s);
        f->execute(u"insert into cnt_main (name,h_city) values ('Asha','Goa')"_s);
        f->execute(u"insert into gf_mast (item,itmtyp,delst) values ('Club','Ltcat','N')"_s);
        const char* const letters[] = {"1,'Asha',#2024-01-31#,'Sent','Wish','Old',''",
            "2,'Asha',#2024-02-01#,'Received','Bill',null,'pay 50% [now]'",
            "null,'O''Hara',#2023-12-30#,'Sent','Wish','Old','Thanks'"};
        for (const char* letter : letters)
            f->execute(
                u"insert into cnt_letters (PerId,person,[Date],type1,Mailtype,mailcateg,MERGED) values (%1)"_s
                    .arg(QString::fromUtf8(letter)));
    }
    void cleanup() { QCOMPARE(f->verify(), QString()); }

    // A deleted letter is seen until the list is read anew, and can be taken back.
    void recordAndItsDeletion()
    {
        auto* screen = f->open<letters::FrmLetterRecord>(u"FrmLetterRecord"_s);
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s);
        QCOMPARE(support::keysOf(grid), u"3,1,2"_s);
        screen->findChild<QAction*>(u"SortByType"_s)->trigger();
        QCOMPARE(support::keysOf(grid), u"2,3,1"_s);
        screen->findChild<QAction*>(u"ViewAddressField"_s)->trigger();
        QVERIFY(support::headingsOf(grid).contains(u"Address 2"_s));
        support::clickRow(grid, 1);
        QCOMPARE(screen->findChild<QPlainTextEdit*>(u"Merged"_s)->toPlainText(), u"Thanks"_s);
        screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(screen));
        f->boxes.expect(u"Are you sure you want to delete this record?"_s, Answer::No);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(f->book.rows(u"select count(*) from cnt_letters"_s), QStringList{u"3"_s});
        f->boxes.expect(u"Are you sure you want to delete this record?"_s, Answer::Yes);
        f->boxes.expect(u"Data deleted.To see effect click Refresh"_s);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(f->book.rows(u"select id from cnt_letters order by id"_s), (QStringList{u"1"_s, u"2"_s}));
        QCOMPARE(support::keysOf(grid), u"2,3,1"_s);
        QTest::keyClick(screen, Qt::Key_F5);
        QCOMPARE(support::keysOf(grid), u"1,2"_s);
        QVERIFY(screen->showContact(2));
        QCOMPARE(support::keysOf(grid), u"2"_s);
    }

    void groupsAndSearch_data()
    {
        support::columns<int, QString, QString, QString>("tab", "sought", "groups", "letters");
        const QString none;
        QTest::newRow("two people of one name")
            << 0 << none << u"All letters 3,Asha 1,Asha 1,O'Hara 1"_s << u"2,1,3"_s;
        QTest::newRow("categories, also an empty one")
            << 1 << none << u"All letters 3,(none) 1,Old 2,Club 0"_s << u"2,1,3"_s;
        QTest::newRow("months") << 2 << none
                                << u"All letters 3,February 2024 1,January 2024 1,December 2023 1"_s
                                << u"2,1,3"_s;
        QTest::newRow("words") << 0 << u"bill asha"_s << u"All letters 3,Asha 1,Asha 1,O'Hara 1"_s << u"2"_s;
        QTest::newRow("letters of patterns")
            << 0 << u"0% [now]"_s << u"All letters 3,Asha 1,Asha 1,O'Hara 1"_s << u"2"_s;
        QTest::newRow("an apostrophe")
            << 0 << u"o'hara"_s << u"All letters 3,Asha 1,Asha 1,O'Hara 1"_s << u"3"_s;
    }
    void groupsAndSearch()
    {
        QFETCH(int, tab);
        QFETCH(QString, sought);
        QFETCH(QString, groups);
        QFETCH(QString, letters);
        auto* screen = f->open<letters::Frmgmail>(u"Frmgmail"_s);
        auto* tabs = screen->findChild<QTabBar*>(u"SSActiveTabs1"_s);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
        auto* list = screen->findChild<widgets::HeadingGrid*>(u"Groups"_s);
        QStringList shown;
        for (int row = 0; row < list->rowCount(); ++row)
            shown << list->textAt(row, u"shown"_s) + u' ' + list->textAt(row, u"letters"_s);
        QCOMPARE(shown.join(u','), groups);
        if (!sought.isEmpty()) {
            support::type(screen, u"txtSearch"_s, sought);
            QTest::keyClick(screen->findChild<QLineEdit*>(u"txtSearch"_s), Qt::Key_Return);
        }
        QCOMPARE(support::keysOf(screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s)), letters);
    }

    void lettersAreArranged()
    {
        auto* screen = f->open<letters::Frmgmail>(u"Frmgmail"_s);
        screen->openPage(u"Arrange"_s);
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s);
        grid->selectAll();
        auto* groups = screen->findChild<widgets::HeadingGrid*>(u"Groups"_s);
        QMenu* menu = screen->findChild<QAction*>(u"MoveTo"_s)->menu();
        menu->popup({});
        for (QAction* action : menu->actions()) {
            if (action->text() == u"Club")
                action->trigger();
        }
        menu->close();
        QCOMPARE(f->book.rows(u"select distinct mailcateg from cnt_letters"_s), QStringList{u"Club"_s});
        QCOMPARE(groups->textAt(1, u"letters"_s), u"3"_s);
    }

    // Only what was changed is written, and a typed text is asked about before another letter is shown.
    void oneLetterIsChanged()
    {
        auto* screen = f->open<letters::FrmEditLetterRecord>(u"FrmEditLetterRecord"_s);
        QVERIFY(screen->editLetter(2));
        support::type(screen, u"DBCcity"_s, u"Oslo"_s);
        f->boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        click(screen, u"CmdNext"_s);
        f->execute(u"update cnt_letters set mailcateg='Other' where id=2"_s);
        support::type(screen, u"Ssdate1"_s, u"05 Mar-2025"_s);
        click(screen, u"CmdSave"_s);
        QCOMPARE(f->book.rows(u"select city,mailcateg,Date,Year,MERGED from cnt_letters where id=2"_s),
            QStringList{u"Oslo|Other|2025-03-05|2025|pay 50% [now]"_s});
        QVERIFY(!screen->isTouched());
    }

    void summaryCounts()
    {
        auto* screen = f->open<letters::FrmLettSum>(u"FrmLettSum"_s);
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"Grid1"_s);
        QCOMPARE(grid->textAt(0, u"Name"_s) + grid->textAt(0, u"Count"_s) + grid->textAt(0, u"Percent"_s),
            u"Sent266.7"_s);
    }

    // Pages from the scanner become one file in the person's folder, and a row that points to it.
    void paperIsScanned()
    {
        f->scanner.devices = {{u"test:0"_s, u"A scanner"_s}};
        f->scanner.picture = picture();
        auto* screen = f->open<letters::frmScan>(u"frmScan"_s);
        QVERIFY(screen->showContact(1));
        click(screen, u"CmdFindScanners"_s);
        click(screen, u"CmdScan"_s);
        click(screen, u"CmdScan"_s);
        QCOMPARE(f->scanner.orders.size(), 2);
        QVERIFY(screen->isTouched());
        click(screen, u"CmdSave"_s);
        QCOMPARE(
            f->book.rows(u"select PerId,person,type1,type2,city,Year,path from cnt_letters where id=4"_s),
            QStringList{u"1|Asha|Received|Scan|Pune|2024|C:\\OVUserFiles\\Letters\\Asha (1)\\Letter.pdf"_s});
        QVERIFY(f->drive.exists(u"C:\\OVUserFiles\\Letters\\Asha (1)\\Letter.pdf"));
        QVERIFY(!screen->isTouched());
        f->scanner.picture.clear();
        click(screen, u"CmdScan"_s);
        QVERIFY(support::isTold(u"Out of paper"_s));
    }

    // A file is copied, and goes again when the step is taken back; a name that climbs out of the folder does
    // not.
    void aFileIsKept()
    {
        QFile file(f->root.filePath(u"bill.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("bill") == 4);
        file.close();
        f->shared.PhotoStoreMode = u"Copy"_s;
        f->book.data().keepChanges({{u"cnt_letters"_s, u"person"_s}});
        auto* screen = f->open<letters::frmgmail1>(u"frmgmail1"_s);
        support::type(screen, u"txtperson"_s, u"..\\..\\Bob"_s);
        f->boxes.expect(u"Please choose the file of the letter"_s);
        click(screen, u"CmdSave"_s);
        f->boxes.expectChoice(u"Save Letters"_s, file.fileName());
        click(screen, u"CmdFile"_s);
        click(screen, u"CmdSave"_s);
        const QString path = f->book.rows(u"select path from cnt_letters where id=4"_s).value(0);
        QVERIFY2(path.startsWith(u"C:\\OVUserFiles\\Letters\\") && path.count(u'\\') == 4, qPrintable(path));
        QVERIFY(f->drive.exists(path));
        core::takeBack(f->context);
        QVERIFY(!f->drive.exists(path));
        QCOMPARE(f->book.rows(u"select count(*) from cnt_letters"_s), QStringList{u"3"_s});
    }

    void twoOfOneNameAreToldByTheTown()
    {
        auto* screen = f->open<letters::frmgmail1>(u"frmgmail1"_s);
        auto* person = screen->findChild<letters::ContactChoice*>(u"txtperson"_s);
        support::type(screen, u"txtperson"_s, u"Ash"_s);
        QAbstractItemView* popup = person->completer()->popup();
        QCOMPARE(popup->model()->index(1, 0).data().toString(), u"Asha \u2013 Goa"_s);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(popup, key);
        QCOMPARE(person->text(), u"Asha"_s);
        QCOMPARE(f->book.rows(u"select h_city from cnt_main where id=%1"_s.arg(person->contactId())),
            QStringList{u"Goa"_s});
    }

    // The real program, with the device that SANE has for tests.
    void scannerOfTheDesktop()
    {
        platform::SaneScanner scanner;
        QVERIFY(scanner.isAvailable());
        QTemporaryDir folder;
        const QString page = folder.filePath(u"page.png"_s);
        QString cause = u"nothing"_s;
        scanner.scan({u"test:0"_s, 50, false, page}, [&cause](const QString& why) { cause = why; });
        QTRY_COMPARE_WITH_TIMEOUT(cause, QString(), 20000);
        QVERIFY(!QImage(page).isNull());
        scanner.scan({u"no such:1"_s, 50, false, page + u'2'}, [&cause](const QString& why) { cause = why; });
        QTRY_VERIFY_WITH_TIMEOUT(!cause.isEmpty(), 20000);
        QCOMPARE(platform::SaneScanner::devicesOf("a:1\tMaker Model\nbroken\n\t\n").size(), 1);
    }

private:
    std::unique_ptr<support::ScreenFixture> f;
};

QTEST_MAIN(LetterRecordTest)
#include "letter_record_test.moc"
