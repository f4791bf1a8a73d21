#include <QtTest>
#include <QtWidgets>

#include "output/register_output.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/lists/FrmPhList.h"
#include "telephone/lists/FrmTelTxt.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using support::click;
using widgets::child;

/// The maker of telephone lists, and the numbers of the lists as a text file.
class FrmPhListTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        m_f->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        for (const QString& values : {u"'Ann O''Hara','111','900','Work','Mumbai','1'"_s,
                 u"'Bob','222','','Home','Pune','2'"_s, u"'Cyd','333','901','Work','Munich','3'"_s})
            m_f->execute(
                u"insert into cnt_main (Name,H_Ph1,Mobile,category1,h_city,Priority) values (%1)"_s.arg(
                    values));
        m_f->execute(
            u"insert into cnt_phlist (listname,Name,[desc],phone,PerId,category1,city,Priority) values "
            "('Old','Bob','Bob','222',2,'Home','Pune','2')"_s);
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    void aListIsMadeAndFilled()
    {
        open();
        m_f->boxes.expect(u"List Name should be selected"_s);
        click(m_form, u"CmdList"_s);
        click(m_form, u"ssNewList"_s);
        for (const QString& name : {u"new list NAME"_s, u""_s}) {
            m_f->boxes.expect(u"Not a valid List name"_s);
            support::type(m_form, u"Text1"_s, name);
            click(m_form, u"SSCommand5"_s);
        }
        support::type(m_form, u"Text1"_s, u"Bob's"_s);
        m_f->boxes.expect(
            u"What you entered was not saved. Do you want to discard it?"_s, platform::Answer::No);
        child<QTabBar>(m_form, u"SSActiveTabs1"_s)->setCurrentIndex(1);
        QTest::keyClick(child<QLineEdit>(m_form, u"Text1"_s), Qt::Key_Return);
        QCOMPARE(rows(u"listname='Bob''s'"_s), QStringList{u"Bob's|null|null|null|null"_s});
        QCOMPARE(shown(u"list1"_s, u"listname"_s), u"Bob's,Old"_s);
        m_f->boxes.expect(u"Record not selected"_s);
        click(m_form, u"CmdList"_s);
        support::clickRow(grid(u"FG"_s), 0);
        click(m_form, u"CmdList"_s); // no number is ticked
        QCOMPARE(m_f->frame.notices.size(), 1);

        for (const QString& tick : {u"Ckh1_1"_s, u"Ckh1_2"_s, u"Ckh1_10"_s})
            click(m_form, tick);
        click(m_form, u"CmdList"_s);
        QCOMPARE(child<QPushButton>(m_form, u"CmdList"_s)->text(), u"Add >"_s);
        QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), u"111,900"_s);
        QCOMPARE(rows(u"phone='900'"_s), QStringList{u"Bob's|Ann O'Hara Mob|1|Mumbai|1"_s});
        click(m_form, u"SSCommand9"_s); // a person may stand in a list twice
        QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), u"111,111,900,900"_s);
        const auto undo = m_f->frame.noticeAction; // both numbers are one step
        undo();
        m_form->bookChanged();
        QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), u"111,900"_s);

        support::type(m_form, u"DBCombo1"_s, u"ol"_s); // no list has this name
        m_f->boxes.expect(u"List Name should be selected"_s);
        click(m_form, u"SSCommand9"_s);
        support::type(m_form, u"DBCombo1"_s, u"old"_s);
        QCOMPARE(grid(u"list1"_s)->currentRow(), 1);
        // Only rows without a tag count as known.
        support::clickRow(grid(u"FG"_s), 1);
        m_f->boxes.expect(u"This Person is already in this list"_s);
        click(m_form, u"CmdList"_s);
    }

    void deletingTakesTheNumberOfOthersToo()
    {
        m_f->execute(u"insert into cnt_phlist (listname,Name,phone,PerId) values ('Old','Cyd H1','222',3)"_s);
        m_f->execute(u"insert into cnt_phlist (listname,Name,phone,PerId) values ('Old','Cyd H2','333',3)"_s);
        m_f->execute(u"insert into cnt_phlist (listname,Name,PerId) values ('Old','Ann Mob',1)"_s);
        m_f->execute(u"insert into cnt_phlist (listname) values ('Old')"_s);
        m_f->execute(u"insert into cnt_phlist (listname,Name,phone,PerId) values ('Kin','Bob H1','222',2)"_s);
        open();
        support::choose(m_form, u"DBCombo1"_s, u"Old"_s);
        support::clickRow(grid(u"FGPhone"_s), 1, 2);
        QCOMPARE(child<QLabel>(m_form, u"lblname"_s)->text(), u"Bob  222"_s);
        m_f->boxes.expect(u"Are you sure you want to delete ? "_s, platform::Answer::No);
        click(m_form, u"SSCommand10"_s);
        QCOMPARE(grid(u"FGPhone"_s)->rowCount(), 4);
        m_form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_form));
        grid(u"FGPhone"_s)->setFocus();
        for (const QString& left : {u"Ann Mob,Cyd H2"_s, u"Ann Mob"_s, u""_s}) {
            m_f->boxes.expect(u"Are you sure you want to delete ? "_s, platform::Answer::Yes);
            QTest::keyClick(grid(u"FGPhone"_s), Qt::Key_Delete);
            QCOMPARE(shown(u"FGPhone"_s, u"name"_s), left);
        }
        m_f->boxes.expect(
            u"Are you sure you want to delete the list Old with all its numbers?"_s, platform::Answer::Yes);
        grid(u"list1"_s)->setFocus();
        QTest::keyClick(grid(u"list1"_s), Qt::Key_Delete);
        QCOMPARE(rows(u"1=1"_s), QStringList{u"Kin|Bob H1|2|null|null"_s});
        QCOMPARE(child<widgets::FilledCombo>(m_form, u"DBCombo1"_s)->values(), QStringList{u"Kin"_s});
    }

    void whatFailsIsTold()
    {
        open();
        support::clickRow(grid(u"list1"_s), 0);
        support::clickRow(grid(u"FG"_s), 2);
        click(m_form, u"Ckh1_1"_s);
        m_f->book.expectFailure(u"commit"_s);
        m_f->boxes.expect(u"This was not stored: the disk is full.\n\nMake room on the disk and save again. "
                          "What was stored before is not lost."_s);
        {
            const support::FullDisk full;
            click(m_form, u"CmdList"_s);
        }
        QCOMPARE(rows(u"phone='333'"_s), QStringList());
    }

    // The names of the dialer's lists, with the numbers of the user's list of that name; associations; and
    // the contacts by their ticks, unless there is a default city.
    void theOtherTabs()
    {
        m_f->execute(u"insert into cnt_phonenum (List,cmbnum) values ('Old',1)"_s);
        m_f->execute(u"insert into cnt_assogrp ([Group]) values ('Club')"_s);
        m_f->execute(u"insert into cnt_assomember (GroupID,cntid) values (1,3)"_s);
        m_f->execute(u"insert into cnt_user (h_city) values ('Mumbai')"_s);
        open();
        auto* tabs = child<QTabBar>(m_form, u"SSActiveTabs1"_s);
        for (const auto& [tab, phones] : {std::pair{1, u"222"_s}, {3, u"333"_s}}) {
            tabs->setCurrentIndex(tab);
            support::clickRow(grid(u"list1"_s), 0);
            QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), phones);
            QVERIFY(!child<QWidget>(m_form, u"SSCommand10"_s)->isVisible());
        }
        tabs->setCurrentIndex(2);
        const QString wanted[] = {u""_s, u"111"_s, u"111,222"_s, u"111"_s};
        for (int step = 0; step < 4; ++step) {
            if (step > 0)
                click(m_form, u"Check%1"_s.arg(step));
            QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), wanted[step]);
        }
        m_f->execute(u"insert into cnt_topcities (city,[default]) values ('Pune',true)"_s);
        click(m_form, u"Check1"_s);
        QCOMPARE(shown(u"FGPhone"_s, u"phone"_s), u"111,222,333"_s);
    }

    void contactsAreFiltered()
    {
        open();
        support::choose(m_form, u"dcmbcat"_s, u"Work"_s);
        QCOMPARE(support::keysOf(grid(u"FG"_s)), u"1,3"_s);
        support::type(m_form, u"dcmbcity"_s, u"Mum%"_s);
        QCOMPARE(support::keysOf(grid(u"FG"_s)), u"1"_s);
        click(m_form, u"SSCommand3"_s);
        QCOMPARE(support::keysOf(grid(u"FG"_s)), u"1,2,3"_s);
        m_f->execute(u"update cnt_main set category1='[VIP]' where id=2"_s);
        m_form->bookChanged();
        support::choose(m_form, u"dcmbcat"_s, u"[VIP]"_s);
        QCOMPARE(support::keysOf(grid(u"FG"_s)), u"2"_s);
    }

    void numbersLeaveTheProgram()
    {
        output::registerOutput(m_f->screens);
        m_f->execute(u"insert into cnt_phlist (listname,Name,PerId) values ('Old','Cyd',3)"_s);
        open();
        m_f->boxes.expect(u"There are no numbers to export"_s);
        child<QAction>(m_form, u"Export"_s)->trigger();
        support::clickRow(grid(u"list1"_s), 0);
        const QByteArray head = "Name           ,Phone                      ,Description\r\n";
        for (const auto& [name, line] : {std::pair{u"a.xls"_s, "Bob, 222"}, {u"a.txt"_s, "Bob 222"}}) {
            const QString file = m_f->root.filePath(name);
            m_f->boxes.expectChoice(u"Export"_s, file);
            child<QAction>(m_form, u"Export"_s)->trigger();
            QCOMPARE(support::bytesOf(file), head + line + "\r\nCyd\r\n");
        }
        for (const QString& button : {u"dxColorBtn2"_s, u"dxColorBtn3"_s}) {
            click(m_form, button);
            QCOMPARE(m_f->frame.placed.constLast(), u"FrmReportViewer"_s);
            if (button == u"dxColorBtn3")
                break;
            m_f->boxes.expectChoice(u"Phone List"_s, m_f->root.filePath(u"list"_s));
            child<QAction>(m_f->screens.find(u"FrmReportViewer"), u"SaveHtml"_s)->trigger();
            const QByteArray page = support::bytesOf(m_f->root.filePath(u"list.html"_s));
            QVERIFY(page.contains("Phone List - Old") && page.contains("222"));
            QVERIFY(m_f->boxes.suggested.constLast().endsWith(u"Exported Files/Html/Phone List.html"));
        }
    }

    void textFileOfNumbers_data()
    {
        support::columns<QString, QString, QString, QString>("category", "priority", "city", "lines");
        QTest::newRow("all") << u"All"_s << u"All"_s << u"All"_s << u"Bob, 222;Cyd H1, 333;Dee"_s;
        QTest::newRow("city") << u"All"_s << u"All"_s << u"Pune"_s << u"Bob, 222"_s;
        QTest::newRow("one priority") << u"All"_s << u"3"_s << u"All"_s << u"Cyd H1, 333"_s;
        // The "or" has no brackets: the city holds for the last priority alone.
        QTest::newRow("up to") << u"All"_s << u"<=3"_s << u"Nowhere"_s << u"Bob, 222"_s;
        QTest::newRow("category and priorities") << u"Home"_s << u"<=2"_s << u"All"_s << u"Bob, 222"_s;
    }
    void textFileOfNumbers()
    {
        QFETCH(QString, category);
        QFETCH(QString, priority);
        QFETCH(QString, city);
        QFETCH(QString, lines);
        m_f->execute(u"insert into cnt_phlist (listname,[desc],phone,category1,city,Priority) values "
                     "('Old','Cyd H1','333','Work','Goa','3')"_s);
        m_f->execute(
            u"insert into cnt_phlist (listname,[desc],category1,Priority) values ('O','Dee','Work','4')"_s);
        auto* form = m_f->open<telephone::FrmTelTxt>(u"FrmTelTxt"_s);
        support::type(form, u"cmbgcat"_s, category);
        support::choose(form, u"cmbpriority"_s, priority);
        support::type(form, u"cmbgcity"_s, city);
        const QStringList wanted = lines.split(u';');
        m_f->book.expectFailure(u"["_s); // what is no pattern changes neither the list nor the file
        support::type(form, u"cmbgcity"_s, u"["_s);
        m_f->book.unexpected();
        QVERIFY(support::isTold(u"%1 Records Selected"_s.arg(wanted.size())));
        click(form, u"Cmd2"_s);
        QCOMPARE(support::bytesOf(m_f->drive.local(u"C:\\OVUserfiles\\OV_Timex.txt")),
            (u"Name           ,Phone                      \r\n"_s + wanted.join(u"\r\n"_s) + u"\r\n"_s)
                .toUtf8());
        click(form, u"Cmd1"_s);
        QVERIFY(support::isTold(u"3 Records Selected"_s));
    }

private:
    void open() { m_form = m_f->open<telephone::FrmPhList>(u"FrmPhList"_s); }
    widgets::HeadingGrid* grid(const QString& name) const
    {
        return child<widgets::HeadingGrid>(m_form, name);
    }
    QString shown(const QString& name, const QString& column) const
    {
        QStringList texts;
        for (int row = 0; row < grid(name)->rowCount(); ++row)
            texts << grid(name)->textAt(row, column);
        texts.sort();
        return texts.join(u',');
    }
    QStringList rows(const QString& where) const
    {
        return m_f->book.rows(u"select listname,Name,PerId,city,Priority from cnt_phlist where "_s + where);
    }

    std::unique_ptr<support::ScreenFixture> m_f;
    telephone::FrmPhList* m_form = nullptr;
};

QTEST_MAIN(FrmPhListTest)
#include "FrmPhList_test.moc"
