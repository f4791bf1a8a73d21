#include <QtTest>
#include <QtWidgets>

#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/dialer/FrmDialer.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using support::click;
using telephone::FrmDialer;

/// The dialer: whom it calls, how the call goes, and what is kept of it.
class FrmDialerTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        f = std::make_unique<support::ScreenFixture>();
        f->shared.NationalMode = true;
        f->clock.set(QDateTime(QDate(2024, 3, 15), QTime(15, 30)));
        f->execute(u"insert into cntb_setup (DialerCity,Prefix1,PBX) values (true,'95','0')"_s);
        f->execute(
            u"insert into cnt_main "
            u"(name,category1,h_city,h_std,W_std,B_std,H_Ph1,w_Ph1,w_Ph2,B_Ph1,Mobile,Spouse)"
            u" values ('Asha Oberoi','Friends','Pune','020','022','080','111','222','333','444','98','Ravi')"_s);
        f->execute(u"insert into cnt_main (name,H_Ph1) values ('Zed O''Hara','777')"_s);
        f->execute(
            u"insert into cnt_phonenum (List,cmbnum,PerId,phonenum,Name) values ('Office',1,1,'222','Asha Oberoi-W1')"_s);
        f->execute(
            u"insert into cnt_phonenum (List,cmbnum,PerId,phonenum,Name) values ('Office',2,99,'555','Gone & Lost-H1')"_s);
        f->execute(
            u"insert into cnt_phonenum (List,cmbnum,PerId,phonenum,Name) values ('Office',3,2,'777','Zed O''Hara-H1')"_s);
        f->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        f->modem.devices[1] = u"/dev/ttyS0"_s;
        dialer = f->open<FrmDialer>(u"FrmDialer"_s);
    }
    void cleanup() { QCOMPARE(f->verify(), QString()); }

    // The memory pairs a number with the code of its own address, a click on the number with the other one's.
    void numberOfMemoryAndLabel()
    {
        click(dialer, u"Label1_1"_s);
        QCOMPARE(number(), u"022-222"_s);
        QCOMPARE(text(u"lblhcity"_s), u"Asha Oberoi"_s);
        QVERIFY(text(u"lblPCap"_s).startsWith(u"Calling   022-222\n"));
        QCOMPARE(line(u"lblspouse"_s), u"Ravi"_s);
        click(dialer, u"lblhph_4"_s);
        QCOMPARE(number(), u"080222"_s);
        click(dialer, u"lblhph_10"_s);
        QCOMPARE(number(), u"098"_s);
        // Somebody who is gone: the name and the number are there, the details stay.
        click(dialer, u"Label1_2"_s);
        QCOMPARE(number(), u"555"_s);
        QCOMPARE(text(u"lblhcity"_s), u"Gone & Lost"_s);
        QCOMPARE(line(u"lblspouse"_s), u"Ravi"_s);
        click(dialer, u"Label1_3"_s);
        QCOMPARE(number(), u"777"_s);
        QCOMPARE(text(u"lblid"_s), u"2"_s);
    }

    void wholeCall()
    {
        QVERIFY(dialer->showContact(1));
        QCOMPARE(number(), u"020111"_s);
        f->boxes.expect(u"Please pick up the phone and either press Enter or click OK"_s);
        QTest::keyClick(control(u"txtNum"_s), Qt::Key_Return);
        QCOMPARE(f->modem.written, QByteArrayList{"ATDT020111;\r"});
        QCOMPARE(text(u"Status"_s), u"Dialing - 020111"_s);
        QVERIFY(!control(u"DialButton"_s)->isEnabled());
        f->modem.say("OK\r\n");
        QTRY_VERIFY(!f->modem.isOpen);
        QCOMPARE(f->modem.written.last(), "ATH\r");
        QVERIFY(control(u"DialButton"_s)->isEnabled());
        QCOMPARE(text(u"Status"_s), u"Ready"_s);
        QCOMPARE(f->book.rows(u"select * from cnt_phcall"_s), QStringList()); // nothing is recorded by itself
        click(dialer, u"Cmdmisc"_s);
        support::type(dialer, u"DBPurpose"_s, u"Ann's order"_s);
        for (int i = 0; i < 3; ++i)
            click(dialer, u"Check1"_s);
        support::type(dialer, u"txtNum"_s, u"020112"_s); // the number that is there counts
        click(dialer, u"Cmdmisc"_s);
        click(dialer, u"cmdCallSave"_s);
        QCOMPARE(f->book.rows(u"select PerId,Numb,Name,[date],todo,nextcall,calllater from cnt_phcall"_s),
            QStringList{u"1|020112|Asha Oberoi|2024-03-15|Ann's order|2024-03-18|true"_s});
        QCOMPARE(control<widgets::HeadingGrid>(u"GridCalls"_s)->rowCount(), 1);
        QCOMPARE(f->frame.notices.last(), u"Saved the call to Asha Oberoi [Undo]"_s);
    }

    // No answer: only the end of the call ends it, and an end that nobody waits for does not end the next
    // one.
    void endOfCall()
    {
        support::type(dialer, u"txtNum"_s, u"5"_s);
        click(dialer, u"cmdpd_12"_s);
        QTest::keyClick(dialer, Qt::Key_7);
        QCOMPARE(number(), u"5#7"_s);
        click(dialer, u"DialButton"_s);
        f->modem.say("NO DIALTONE\r\n");
        QVERIFY(text(u"Status"_s).contains(u"NO DIALTONE"));
        click(dialer, u"Cmdmisc"_s);
        QTRY_VERIFY(!f->modem.isOpen);
        support::type(dialer, u"DBResponse"_s, u"Busy"_s);
        f->boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        QTest::keyClick(control(u"DBResponse"_s), Qt::Key_Escape);
        f->boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::Yes);
        QTest::keyClick(control(u"DBResponse"_s), Qt::Key_Escape);
        click(dialer, u"DialButton"_s);
        f->modem.vanish();
        QTRY_VERIFY(text(u"Status"_s).contains(u"lost"));
        f->modem.refusal = u"no right"_s;
        f->boxes.expect(u"Please change the ComPort property to suitable port "_s);
        click(dialer, u"DialButton"_s);
        QVERIFY(text(u"Status"_s).contains(u"no right"));
        QVERIFY(control(u"DialButton"_s)->isEnabled());
        // A call under way is not given up by accident.
        f->modem.refusal.clear();
        click(dialer, u"DialButton"_s);
        f->boxes.expect(u"A number is being dialled. Do you want to end the call?"_s, Answer::No);
        QVERIFY(!dialer->mayClose());
        click(dialer, u"CancelButton"_s);
        QCOMPARE(number(), QString());
        QVERIFY(f->modem.isOpen);
        f->screens.unload(u"FrmDialer");
        QTRY_COMPARE(f->modem.written.last(), "ATH\r");
    }

    // Kept: the time is looked up by the place of the person before, with the dash in front of it.
    void nightAtTheFarEnd()
    {
        const QString night
            = u"It is night time in ' - Pune'.'Asha Oberoi' might be asleep. Are you sure, you want to call"_s;
        f->clock.set(QDateTime(QDate(2024, 3, 15), QTime(22, 5)));
        dialer->showContact(1);
        QCOMPARE(text(u"lblctime"_s), u"10:05 PM"_s);
        f->boxes.expect(night, Answer::No);
        click(dialer, u"DialButton"_s);
        QVERIFY(f->modem.written.isEmpty());
        f->shared.NationalMode = false;
        f->execute(u"insert into wia_city (city,[td gmt]) values (' - Pune','+8:00')"_s);
        dialer->showContact(2);
        QCOMPARE(text(u"lbltimediff"_s), u"+2:30"_s);
        QCOMPARE(text(u"lblctime"_s), u"12:35 AM"_s);
        dialer->showContact(1);
        QCOMPARE(text(u"lblctime"_s), QString());
        support::type(dialer, u"txtNum"_s, QString());
        click(dialer, u"DialButton"_s);
        QVERIFY(f->modem.written.isEmpty());
    }

    void telephoneProgramOfTheDesktop()
    {
        f->modem.devices.clear();
        dialer->offerNumber(u"+91 (22) 55"_s, u"Mumbai"_s);
        f->boxes.answerAll(Answer::Yes);
        click(dialer, u"DialButton"_s);
        QCOMPARE(f->shell.openedAddresses, QStringList{u"tel:+912255"_s});
        click(dialer, u"cmdCallSave"_s);
        QCOMPARE(f->book.rows(u"select PerId,Numb,Name from cnt_phcall"_s),
            QStringList{u"null|+91 (22) 55|Mumbai"_s});
    }

    void codesAndNumbers()
    {
        click(dialer, u"Label1_1"_s);
        click(dialer, u"chkDialerCity"_s);
        QCOMPARE(f->book.rows(u"select DialerCity from cntb_setup"_s), QStringList{u"false"_s});
        support::choose(dialer, u"cboPrefix"_s, u"022"_s);
        support::choose(dialer, u"cboNum"_s, u"333"_s);
        QVERIFY(support::isTold(u"Dials 022 333"_s));
    }

    void memoryIsAssigned()
    {
        click(dialer, u"CmdFilter_0"_s);
        auto* grid = control<widgets::HeadingGrid>(u"FG1"_s);
        support::choose(dialer, u"cmbcat1"_s, u"Friends"_s);
        QCOMPARE(support::keysOf(grid), u"1"_s);
        support::doubleClickRow(grid, 0, 1);
        QCOMPARE(control<QRadioButton>(u"Bph3"_s)->text(), u"222"_s); // the first number again
        click(dialer, u"Mobile"_s);
        click(dialer, u"cmdsl"_s);
        QCOMPARE(f->book.rows(u"select list,perid,phonenum,name from cnt_phonenum where cmbnum=0"_s),
            QStringList{u"Office|1|98|Asha Oberoi-Mob"_s});
        QVERIFY(support::isTold(u"Saved in Main List"_s));
        click(dialer, u"Label1_0"_s);
        QCOMPARE(number(), u"98"_s);
        support::type(dialer, u"cmbphone"_s, u" "_s);
        f->boxes.expect(u"PhoneList cannot be Empty"_s);
        click(dialer, u"CmdFilter_0"_s);
    }

    // Names of lists and prefixes; what is typed there is not lost by another tool.
    void setUp()
    {
        clickTool(u"Setup"_s);
        click(dialer, u"CmdNew"_s);
        support::type(dialer, u"Text2"_s, u"office'"_s); // takes no apostrophe
        click(dialer, u"CmdSave"_s);
        QVERIFY(support::isTold(u"There is a list of this name already"_s));
        support::type(dialer, u"Text2"_s, u"Clients"_s);
        f->boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        clickTool(u"SelectPerson"_s);
        click(dialer, u"CmdSave"_s);
        auto* lists = control<widgets::HeadingGrid>(u"Grid2"_s);
        QCOMPARE(lists->currentText(u"LIST"_s), u"Clients"_s);
        support::clickRow(lists, 1);
        click(dialer, u"CmdEdit"_s);
        support::type(dialer, u"Text2"_s, u"OFFICE"_s);
        click(dialer, u"CmdSave"_s);
        QCOMPARE(f->book.firstText(u"select count(*) from cnt_phonenum where list='OFFICE'"_s), u"3"_s);
        support::clickRow(lists, 0);
        click(dialer, u"CmdDel"_s);
        QCOMPARE(f->book.rows(u"select distinct list from cnt_phonenum"_s), QStringList{u"OFFICE"_s});
        QCOMPARE(f->frame.notices.last(), u"Deleted the list Clients [Undo]"_s);
        support::type(dialer, u"txtPrefix3"_s, u"17"_s);
        click(dialer, u"CmdPh"_s);
        support::choose(dialer, u"cmbphone"_s, u"OFFICE"_s);
        QCOMPARE(f->book.rows(u"select PBX,Prefix1,Prefix2,Prefix3 from cntb_setup"_s),
            QStringList{u"0|95||17"_s});
        click(dialer, u"Label1_1"_s);
        QCOMPARE(number(), u"022-222"_s);
    }

    // What could not be written is told, and nothing that was entered goes.
    void fullDisk()
    {
        dialer->showContact(1);
        click(dialer, u"Cmdmisc"_s);
        support::type(dialer, u"DBPurpose"_s, u"Order"_s);
        f->book.expectFailure(u"CNT_PHCALL"_s);
        f->boxes.answerAll(Answer::Yes);
        {
            const support::FullDisk full;
            click(dialer, u"cmdCallSave"_s);
        }
        QVERIFY2(f->boxes.shown.value(0).contains(u"was not stored"), qPrintable(f->boxes.shown.join(u'|')));
        f->boxes.shown.clear();
        click(dialer, u"cmdCallSave"_s);
        QCOMPARE(f->book.rows(u"select todo from cnt_phcall"_s), QStringList{u"Order"_s});
    }

    void modems()
    {
        f->modem.here = {{u"/dev/ttyUSB0"_s, u"USB modem"_s}};
        f->modem.complaints[u"/dev/ttyS1"_s] = u"You may not use it"_s;
        QTimer::singleShot(0, this, [this] {
            QWidget* setup = QApplication::activeModalWidget();
            QVERIFY(support::isTold(u"/dev/ttyUSB0 (USB modem)"_s));
            support::choose(setup, u"CmbDevice_2"_s, u"/dev/ttyUSB0"_s);
            support::type(setup, u"CmbDevice_1"_s, u"/dev/ttyS1"_s);
            QVERIFY(support::isTold(u"You may not use it"_s));
            support::type(setup, u"CmbDevice_1"_s, QString());
            click(setup, u"cmdDeviceSave"_s);
        });
        click(dialer, u"CmdDialer"_s);
        QCOMPARE(f->modem.devices.value(1), QString());
        QCOMPARE(f->modem.devices.value(2), u"/dev/ttyUSB0"_s);
        QCOMPARE(control<QComboBox>(u"CmbPort"_s)->currentText(), u"2"_s);
    }

    void personIsPicked()
    {
        support::type(dialer, u"txtNum"_s, u"4711"_s);
        clickTool(u"SelectotherPhonenumber"_s);
        support::choose(dialer, u"dbccat"_s, u"Friends"_s);
        QTest::keyClick(control(u"DBCPerson"_s), Qt::Key_Return);
        QCOMPARE(text(u"lblhcity"_s), u"Asha Oberoi"_s);
        QCOMPARE(number(), u"4711"_s); // typed by hand, so it stays
        click(dialer, u"lblhph_1"_s);
        dialer->offerNumber(u"99"_s, u"Asha Oberoi"_s);
        QCOMPARE(text(u"lblid"_s), u"1"_s);
        dialer->showContact(2); // the number was of the other one
        QCOMPARE(number(), u"777"_s);
    }

private:
    void clickTool(const QString& name) const
    {
        QWidget* button = control<QToolBar>(u"ToolBars1"_s)->widgetForAction(control<QAction>(name));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QString number() const { return dialer->findChild<QLineEdit*>(u"txtNum"_s)->text(); }
    QString text(const QString& name) const { return dialer->findChild<QLabel*>(name)->text(); }
    QString line(const QString& name) const { return dialer->findChild<QLineEdit*>(name)->text(); }
    template <class T = QWidget> T* control(const QString& name) const { return dialer->findChild<T*>(name); }

    std::unique_ptr<support::ScreenFixture> f;
    FrmDialer* dialer = nullptr;
};

QTEST_MAIN(FrmDialerTest)
#include "FrmDialer_test.moc"
