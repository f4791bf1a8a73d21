#include <QtTest>
#include <QtWidgets>

#include "core/handover/contacts_target.h"
#include "letters/labels/FrmlblReport.h"
#include "letters/labels/own_sheets.h"
#include "letters/labels/sheet_picture.h"
#include "letters/lists/FormMailList.h"
#include "letters/lists/FrmList.h"
#include "letters/lists/FrmMailLstAdd.h"
#include "letters/lists/list_members.h"
#include "output/register_output.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using support::click;
using support::clickRow;
using widgets::child;
using widgets::HeadingGrid;

namespace {

/// Stands for the group letter.
class LetterTarget final : public core::Screen, public core::ContactsTarget {
public:
    using Screen::Screen;
    void load() override { }
    bool takeContacts(const QList<qint64>& ids, const QString& listName) override
    {
        taken = ids;
        list = listName;
        return true;
    }
    QList<qint64> taken;
    QString list;
};

constexpr int kTick = 2; // column of the members

} // namespace

/// Mailing lists as a person keeps them: made, filled, printed, saved, written to and deleted.
class MailListScreensTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        m_f->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        for (const QString& values : {u"'Ann O''Hara','Ann','Pune','1 Hill','ann@example.com','F'"_s,
                 u"'Bob','Bob','Goa','2 Dale','','M'"_s,
                 u"'Bob','Rob','Goa','2 Dale','bob@example.com','M'"_s})
            m_f->execute(
                u"insert into cnt_main (name,first,h_city,h_add1,h_email1,sex) values (%1)"_s.arg(values));
        m_f->screens.add<letters::FrmMailLstAdd>(u"FrmMailLstAdd"_s);
        output::registerOutput(m_f->screens);
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    void theFirstListOfANewcomer()
    {
        m_form = m_f->open<letters::FormMailList>(u"FormMailList"_s);
        click(m_form, u"SSCommand2"_s);
        core::Screen* picker = m_f->screens.find(u"FrmMailLstAdd");
        m_f->boxes.expect(u"Please define Mail List Name"_s);
        click(picker, u"Cmd1"_s);
        support::type(picker, u"cmbListName"_s, u"Bob's friends"_s);
        m_f->boxes.expect(u"Record not selected"_s);
        click(picker, u"Cmd1"_s);
        auto* contacts = child<HeadingGrid>(picker, u"Grid2"_s);
        clickRow(contacts, 0, 6);
        support::choose(picker, u"DBCcity"_s, u"Goa"_s); // the tick stays
        QCOMPARE(contacts->rowCount(), 2);
        clickRow(contacts, 1, 6);
        clickRow(contacts, 0, 6);
        clickRow(contacts, 0, 6);
        m_f->boxes.expect(
            u"What you entered was not saved. Do you want to discard it?"_s, platform::Answer::No);
        QVERIFY(!picker->mayClose());
        click(picker, u"Cmd1"_s);
        QCOMPARE(listRows(), (QStringList{u"1|Ann O'Hara|Bob's friends"_s, u"3|Bob|Bob's friends"_s}));
        QCOMPARE(
            m_f->book.rows(u"select sex from cnt_main order by id"_s), (QStringList{u"F"_s, u"M"_s, u"M"_s}));
        QCOMPARE(support::keysOf(members()), u"1,3"_s); // the new list is shown
        m_f->frame.noticeAction();
        QCOMPARE(listRows(), QStringList());
    }

    void ticksArePrinted()
    {
        openWith(u"Kin"_s, {1, 2, 3});
        clickRow(members(), 1, kTick);
        QCOMPARE(selected(), u"2"_s);
        click(m_form, u"cmdSelectAll"_s);
        QCOMPARE(selected(), u"1,2,3"_s);
        m_f->execute(u"insert into cnt_main (name,selected) values ('Zoe',true)"_s);
        click(m_form, u"cmdSelectNone"_s); // of the list
        QCOMPARE(selected(), u"4"_s);

        trigger(u"PrintSelected"_s);
        m_f->boxes.expect(u"No records are available for the selection"_s);
        click(dialog(), u"cmdPreview"_s);
        clickRow(members(), 1, kTick);
        clickRow(members(), 2, kTick);
        QVERIFY(support::isTold(u"3 in all, 2 selected"_s));
        trigger(u"PrintSelected"_s);
        QVERIFY(support::isTold(u"Kin: those selected, 2"_s));
        auto* sheet = child<letters::SheetPicture>(dialog(), u"SheetPicture"_s);
        QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->labelPlace(4).center().toPoint());
        QCOMPARE(child<QSpinBox>(dialog(), u"spnFirst"_s)->value(), 5);
        click(dialog(), u"cmdPreview"_s);
        QVERIFY(m_f->frame.placed.contains(u"FrmReportViewer"_s));
        QVERIFY(!dialog()->isVisible());
    }

    void aPersonIsTakenOff()
    {
        m_f->execute(u"update cnt_main set name='Bobby' where id=3"_s);
        openWith(u"Kin"_s, {1, 2, 3});
        clickRow(members(), 0);
        m_f->boxes.expect(u"Do you want to take Ann O'Hara off the list Kin?"_s, platform::Answer::No);
        click(m_form, u"SSCommand7"_s);
        QCOMPARE(listRows().size(), 3);
        m_f->execute(u"update cnt_maillist set name='Bob'"_s);
        m_form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_form));
        members()->setFocus();
        clickRow(members(), 1);
        m_f->boxes.expect(
            u"Do you want to take Bob off the list Kin?\n\n3 members have this name, and all of them go."_s,
            platform::Answer::Yes);
        QTest::keyClick(members(), Qt::Key_Delete);
        QCOMPARE(listRows(), QStringList());
        QCOMPARE(m_f->book.rows(u"select count(*) from cnt_main"_s), QStringList{u"3"_s});
    }

    void aListIsRenamedAndDeleted()
    {
        openWith(u"Kin"_s, {1});
        m_f->execute(u"insert into cnt_maillist (perid,name,listname) values (1,'Ann','Old')"_s);
        m_form->bookChanged();
        m_f->boxes.expectChoice(u"Rename the list"_s, u" old "_s);
        m_f->boxes.expect(
            u"There is a list old already. Do you want to make one list of both?"_s, platform::Answer::Yes);
        click(m_form, u"cmdRenameList"_s);
        QCOMPARE(m_f->book.rows(u"select perid from cnt_maillist"_s), QStringList{u"1"_s});
        QCOMPARE(support::keysOf(members()), u"1"_s);
        m_f->boxes.expect(u"Are you sure you want to delete the list old? Its members stay in the book."_s,
            platform::Answer::Yes);
        m_f->book.expectFailure(u"delete"_s);
        m_f->boxes.answerAll(platform::Answer::Yes);
        {
            const support::FullDisk full;
            click(m_form, u"cmdDeleteList"_s);
        }
        QVERIFY(m_f->boxes.shown.last().contains(u"the disk is full"_s));
        QCOMPARE(listRows().size(), 1);
        click(m_form, u"cmdDeleteList"_s);
        QCOMPARE(listRows(), QStringList());
        QVERIFY(support::isTold(u"Members"_s));
        m_f->boxes.verify();
    }

    void filesOfAList_data()
    {
        support::columns<QString, QString, QByteArray>("option", "address", "bytes");
        QTest::newRow("csv")
            << u"Option8"_s << u"optadd_1"_s
            << QByteArray("\xEF\xBB\xBF"
                          "Name,Address1,Address2,City,State,Country,pin\r\nAnn O'Hara,1 Hill,,Pune,,,\r\n");
        QTest::newRow("text, work") << u"Option7"_s << u"optadd_2"_s
                                    << QByteArray("Name,Address1,Address2,City,State,Country,pin\r\nAnn "
                                                  "O'Hara,\"5, Dock\",,,,,\r\n");
    }
    void filesOfAList()
    {
        QFETCH(QString, option);
        QFETCH(QString, address);
        m_f->execute(u"update cnt_main set w_add1='5, Dock'"_s);
        openWith(u"Kin"_s, {1});
        m_f->clock.set(QDateTime({2026, 6, 5}, {12, 0}));
        const QString path = m_f->root.filePath(option == u"Option7" ? u"out.txt"_s : u"out.csv"_s);
        m_f->boxes.expectChoice(u"Export"_s, path);
        click(m_form, option);
        click(m_form, address);
        click(m_form, u"SSCommand3"_s);
        QTEST(support::bytesOf(path), "bytes");
        QVERIFY(m_f->boxes.suggested.last().contains(
            u"/Exported Files/Excel/Kin-05 Jun-26."_s, Qt::CaseInsensitive));
    }

    void lettersToMembers()
    {
        m_f->screens.add<LetterTarget>(u"FrmGrpLetter"_s);
        openWith(u"Kin"_s, {3, 1});
        trigger(u"GroupLetter"_s);
        auto* letter = static_cast<LetterTarget*>(m_f->screens.find(u"FrmGrpLetter"));
        QCOMPARE(letter->taken, (QList<qint64>{1, 3}));
        QCOMPARE(letter->list, u"Kin"_s);
        clickRow(members(), 1);
        trigger(u"MSWord"_s);
        QVERIFY(support::bytesOf(m_f->shell.openedFiles.value(0)).contains("\nDear    Bob\\par"));
    }

    // Of tabs whose rows have no ids, and of the whole book.
    void otherTabs()
    {
        m_f->execute(u"insert into wma_handycontacts (cntid) values (1)"_s);
        m_f->execute(u"insert into wma_handycontacts (cntid) values (2)"_s);
        m_f->execute(u"insert into wma_partyplanner ([event]) values ('Ball')"_s);
        m_f->execute(u"insert into wma_partyguest (gid,PID) values (3,1)"_s);
        openWith(u"Kin"_s, {1});
        auto* tabs = child<QTabBar>(m_form, u"SSActiveTabs1"_s);
        tabs->setCurrentIndex(4);
        clickRow(members(), 1, kTick); // not the other Bob, who is not handy
        QCOMPARE(selected(), u"2"_s);
        tabs->setCurrentIndex(6);
        clickRow(child<HeadingGrid>(m_form, u"list1"_s), 0);
        QCOMPARE(support::keysOf(members()), u"3"_s);
        tabs->setCurrentIndex(1);
        QCOMPARE(members()->rowCount(), 3);
        click(m_form, u"Check1"_s);
        QCOMPARE(members()->rowCount(), 0);
        trigger(u"PrintAll"_s);
        m_f->boxes.expect(u"No records are available for the selection"_s);
        click(dialog(), u"cmdPreview"_s);
    }

    void addressesAreAskedFor()
    {
        auto* picker = m_f->screens.load(u"FrmMailLstAdd");
        m_f->screens.show(u"FrmMailLstAdd"_s);
        click(picker, u"cmdTickAll"_s);
        m_f->boxes.expect(
            u"Do you want to ask 3 of them for the address by e-mail?"_s, platform::Answer::Yes);
        m_f->boxes.expect(
            u"2 messages are in the outbox. These were not written:\n\nBob (no e-mail address)"_s);
        click(picker, u"CmdEmail"_s);
        QCOMPARE(m_f->mail.sent.size(), size_t(2));
        QCOMPARE(m_f->mail.sent[0].Body, u"Dear Ann O'Hara\rPlease update your address"_s);
        const QStringList attached = m_f->mail.sent[1].Attachments;
        QVERIFY(support::bytesOf(attached.value(0)).contains("Hi! Bob,")); // written anew
        QVERIFY(attached.value(0).endsWith(u"/John.html"_s));
    }

    void thePrintSelection()
    {
        m_f->execute(u"update cnt_main set selected=true where id=2"_s);
        m_form = m_f->open<letters::FormMailList>(u"FormMailList"_s);
        click(m_form, u"cmdSelect"_s);
        core::Screen* picker = m_f->screens.find(u"FrmMailLstAdd");
        QVERIFY(support::isTold(u"Select Contacts to Print"_s));
        auto* contacts = child<HeadingGrid>(picker, u"Grid2"_s);
        clickRow(contacts, 1, 6);
        clickRow(contacts, 2, 6);
        click(picker, u"Cmd1"_s);
        QCOMPARE(selected(), u"3"_s);
        click(m_form, u"cmdSelect"_s);
        click(m_f->screens.find(u"FrmMailLstAdd"), u"CmdRefresh"_s);
        QCOMPARE(selected(), QString());
    }

    void peopleOfOtherScreens()
    {
        m_f->execute(u"insert into cnt_assogrp ([Group]) values ('Club')"_s);
        auto* list = m_f->open<letters::FrmList>(u"FrmList"_s);
        QVERIFY(list->takeContacts({3, 1, 3, 99}, {}));
        support::choose(list, u"cmbList"_s, u"Association  -Club"_s);
        click(list, u"cmdOk"_s);
        QCOMPARE(m_f->book.rows(u"select cntid from cnt_assomember order by cntid"_s),
            (QStringList{u"1"_s, u"3"_s}));
        list->showContact(1);
        m_f->boxes.expect(u"This person is in Club already."_s);
        click(list, u"cmdOk"_s);
        support::type(list, u"cmbList"_s, u"New one"_s);
        QVERIFY(support::isTold(u"Makes the mailing list New one"_s));
        QTest::keyClick(child<QComboBox>(list, u"cmbList"_s)->lineEdit(), Qt::Key_Return);
        QCOMPARE(listRows(), QStringList{u"1|Ann O'Hara|New one"_s});
    }

    // The second Bob is meant, from the fifth label on; then a sheet of one's own, which is kept.
    void labelsOfOnePerson()
    {
        m_f->execute(u"update cnt_main set w_add1='9 Quay' where id=3"_s);
        auto* screen = m_f->open<letters::FrmlblReport>(u"FrmlblReport"_s);
        QVERIFY(screen->showContact(3));
        click(screen, u"OptWork12"_s);
        child<QSpinBox>(screen, u"spnFirst"_s)->setValue(5);
        click(screen, u"cmdPreview"_s);
        QCOMPARE(m_f->book.rows(u"select name,h_add1 from OV_temp"_s), QStringList(4, u"Bob|9 Quay"_s));

        QTimer::singleShot(0, this, [] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* save = child<QDialogButtonBox>(dialog, {})->button(QDialogButtonBox::Save);
            support::type(dialog, u"txtSheetName"_s, u"Mine"_s);
            child<QDoubleSpinBox>(dialog, u"spnWidth"_s)->setValue(150);
            QVERIFY(!save->isEnabled()
                && support::isTold(
                    u"Labels overlap: from one to the next it is less than a label is large."_s));
            child<QDoubleSpinBox>(dialog, u"spnWidth"_s)->setValue(90);
            save->click();
        });
        click(screen, u"cmdNewSheet"_s);
        const QList<output::LabelSheet> kept = letters::readOwnSheets(m_f->drive);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(kept[0].layout.width, 90 * output::kTwipsAMillimetre);
        QVERIFY(child<QRadioButton>(screen, u"OptOwnWork1"_s)->isChecked());
        m_f->boxes.expect(u"Do you want to forget the sheet Mine?"_s, platform::Answer::Yes);
        click(screen, u"cmdDeleteSheet"_s);
        QVERIFY(letters::readOwnSheets(m_f->drive).isEmpty());
        QVERIFY(child<QRadioButton>(screen, u"Option2"_s)->isChecked());
    }

    void aStrangeFileOfSheets()
    {
        const QString path = m_f->drive.local(u"C:\\OVUserFiles\\Labels\\sheets.json");
        for (const QByteArray& bytes :
            {QByteArray("[{\"name\":\"x\",\"columns\":99999999,\"rows\":9999999}]"),
                QByteArray("[[[1]],null,{\"name\":\"y\",\"paperWidth\":1e308,\"columns\":1,\"rows\":1}]"),
                QByteArray("{"), QByteArray(2'000'000, '[')}) {
            support::put(path, bytes);
            QVERIFY(letters::readOwnSheets(m_f->drive).isEmpty());
        }
        QCOMPARE(letters::writeOwnSheets(m_f->drive, {output::builtinSheets()[3]}), QString());
        QCOMPARE(letters::readOwnSheets(m_f->drive).size(), 1);
        QCOMPARE(support::bytesOf(path + u".damaged"_s).size(), 2'000'000);
    }

private:
    void openWith(const QString& list, const QList<qint64>& ids)
    {
        letters::addListMembers(m_f->book.data(), list, ids);
        m_form = m_f->open<letters::FormMailList>(u"FormMailList"_s);
        clickRow(child<HeadingGrid>(m_form, u"list1"_s), 0);
    }
    HeadingGrid* members() const { return child<HeadingGrid>(m_form, u"FG"_s); }
    QDialog* dialog() const { return child<QDialog>(m_form, u"PrintDialog"_s); }
    void trigger(const QString& tool) const { m_form->findChild<QAction*>(tool)->trigger(); }
    QStringList listRows()
    {
        return m_f->book.rows(u"select perid,name,listname from cnt_maillist order by perid"_s);
    }
    QString selected()
    {
        return m_f->book.rows(u"select id from cnt_main where selected=true order by id"_s).join(u',');
    }

    std::unique_ptr<support::ScreenFixture> m_f;
    letters::FormMailList* m_form = nullptr;
};

QTEST_MAIN(MailListScreensTest)
#include "mail_list_screens_test.moc"
