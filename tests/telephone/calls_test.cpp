#include <QtTest>
#include <QtWidgets>

#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/calls/call_reports.h"
#include "telephone/calls/Form1.h"
#include "telephone/calls/FrmCall.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using support::click;

/// The record of calls, and the list of what is to be done.
class CallsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        f = std::make_unique<support::ScreenFixture>();
        f->addTarget(u"FrmDialer"_s);
        f->addTarget(u"FormEmail"_s);
        f->execute(u"insert into cnt_main (name) values ('Asha')"_s);
        const char* const calls[] = {"'Asha','22',#2024-01-31#,'Order','Busy',null,false",
            "'Zed','33',#2023-12-30#,'Order','Fine',#2024-04-02#,false",
            "'Asha','44',#2024-03-01#,'Wishes','Fine',#2024-04-01#,true",
            "'Asha','55',#2024-02-01#,'Wishes','Later',#2024-03-30#,true"};
        for (const char* call : calls)
            f->execute(
                u"insert into cnt_phcall (PerId,Name,Numb,[Date],Todo,Result,NextCall,CallLater) values (1,%1)"_s
                    .arg(QString::fromLatin1(call)));
    }
    void cleanup() { QCOMPARE(f->verify(), QString()); }

    void lists_data()
    {
        support::columns<int, QString, QString, QString, QString>("tab", "combo", "value", "dates", "calls");
        const QString none;
        QTest::newRow("by name, latest first") << 0 << none << none << none << u"3,4,1,2"_s;
        QTest::newRow("of a person, as saved") << 2 << u"Combo1"_s << u"Asha"_s << none << u"1,3,4"_s;
        QTest::newRow("of a purpose") << 0 << u"CmbPurpose"_s << u"Order"_s << none << u"1,2"_s;
        QTest::newRow("of a response") << 0 << u"CmbResponse"_s << u"Fine"_s << none << u"2,3"_s;
        QTest::newRow("by person") << 1 << none << none << none << u"0,3,4,1,0,2"_s;
        QTest::newRow("months go up, years go down") << 2 << none << none << none << u"0,1,0,4,0,3,0,2"_s;
        QTest::newRow("to be made, whatever the next date") << 3 << none << none << none << u"4,3"_s;
        QTest::newRow("of some days, in any order")
            << 0 << none << none << u"2024-02-01|2024-01-01"_s << u"4,1"_s;
        QTest::newRow("of one day") << 1 << none << none << u"|2023-12-30"_s << u"0,2"_s;
    }
    void lists()
    {
        QFETCH(int, tab);
        QFETCH(QString, combo);
        QFETCH(QString, value);
        QFETCH(QString, dates);
        QFETCH(QString, calls);
        auto* screen = f->open<telephone::Form1>(u"Form1"_s);
        auto* tabs = screen->findChild<QTabBar*>(u"sstab1"_s);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
        if (!combo.isEmpty())
            support::choose(screen, combo, value);
        if (!dates.isEmpty()) {
            support::type(screen, u"ssdtFrom"_s, dates.section(u'|', 0, 0));
            support::type(screen, u"ssdtTo"_s, dates.section(u'|', 1));
            click(screen, u"Command1"_s);
        }
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"FG1"_s);
        QTRY_COMPARE(support::keysOf(grid), calls);
    }

    void whatIsDoneWithACall()
    {
        auto* screen = f->open<telephone::Form1>(u"Form1"_s);
        auto* grid = screen->findChild<widgets::HeadingGrid*>(u"FG1"_s);
        QCOMPARE(grid->model()->index(0, 2).data().toString(), u"Fri-1  Mar-24"_s);
        support::doubleClickRow(grid, 1, 1);
        QCOMPARE(f->target(u"FrmDialer"_s)->contacts, QList<qint64>{1});
        screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(screen));
        QTest::keyClick(grid, Qt::Key_F2);
        support::type(screen, u"DBResponse"_s, u"Don't"_s);
        click(screen, u"Check1"_s); // was ticked: no next call
        click(screen, u"cmdCallSave"_s);
        QCOMPARE(f->book.rows(u"select numb,todo,result,nextcall,calllater from cnt_phcall where id=4"_s),
            QStringList{u"55|Wishes|Don't|null|false"_s});
        f->boxes.expect(u"Are you sure you want to delete this record?"_s, Answer::Yes);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(support::keysOf(grid), u"3,1,2"_s);
        QCOMPARE(grid->currentKey(), 1);
        QVERIFY(f->book.data().undoLastChange() != jet::TakenBack::NotKept);
    }

    void prints()
    {
        const auto printed = [this](int report, const QString& dates) {
            const telephone::CallReportRow& row = telephone::callReports()[report];
            const output::Report made = telephone::callReport(
                row, f->book.data().openRecordset(telephone::callReportSql(row, dates)), u"yyyy"_s, {});
            QStringList numbers;
            const int key = made.source->field(made.grouping->column);
            for (int i = 0; i < made.source->count(); ++i)
                numbers << made.source->text(i, key) + u' '
                        + made.source->text(i, made.source->field(u"numb"_s));
            return numbers.join(u',');
        };
        QCOMPARE(printed(0, {}), u"Asha 44,Asha 55,Asha 22,Zed 33"_s);
        QCOMPARE(
            printed(1, telephone::callDates(QDate(2024, 1, 1), QDate(2024, 2, 28))), u"2024 55,2024 22"_s);
        QCOMPARE(printed(2, {}), u"Order 22,Order 33,Wishes 44,Wishes 55"_s);
    }

    void pendingList()
    {
        auto* screen = f->open<telephone::FrmCall>(u"FrmCall"_s);
        f->boxes.expect(u"Select Person Name"_s);
        click(screen, u"CmdCall1"_s);
        support::choose(screen, u"Callper1"_s, u"Asha"_s);
        support::type(screen, u"emailper5"_s, u"Ms O'Hara"_s);
        click(screen, u"SelectEmailPer5"_s);
        click(screen, u"CmdCall1"_s);
        QCOMPARE(f->target(u"FrmDialer"_s)->contacts, QList<qint64>{1});
        QCOMPARE(f->book.rows(u"select Callper1,SelectcallPer1,emailper5,SelectEmailPer5 from OV_PendWork"_s),
            QStringList{u"Asha|false|Ms O'Hara|true"_s});
        support::type(screen, u"letterper1"_s, u"Zed"_s); // the tool takes no focus
        f->drive.ensureFolder(u"C:\\Desktop");
        clickTool(screen, u"CopyPendingItemonDesktop"_s);
        clickTool(screen, u"GeneratetextFile"_s);
        QFile file(f->drive.local(u"C:\\Desktop\\Orvane Communicator.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray rule = QByteArray(50, '-') + "\r\n";
        QCOMPARE(file.readAll(),
            rule + "Calls\r\n" + rule + "Asha -Call Not Done\r\n" + rule + "E-mails\r\n" + rule
                + "Ms O'Hara -Email Done\r\n" + rule + "Letters\r\n" + rule + "Zed -Letter Not Done\r\n"
                + rule);
        QVERIFY(f->drive.exists(u"C:\\Orvane Communicator.txt"));
        // A line without a name has nothing to be done; all of it goes only after a question.
        support::type(screen, u"emailper5"_s, QString());
        QTest::keyClick(screen->findChild<QWidget*>(u"emailper5"_s), Qt::Key_Return);
        QCOMPARE(f->book.rows(u"select SelectEmailPer5 from OV_PendWork"_s), QStringList{u"false"_s});
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            f->boxes.expect(
                u"Do you want to delete the whole list of pending calls, e-mails and letters?"_s, answer);
            clickTool(screen, u"Delete"_s);
            QCOMPARE(
                f->book.rows(u"select Callper1 from OV_PendWork"_s).size(), answer == Answer::No ? 1 : 0);
        }
        QCOMPARE(screen->findChild<QComboBox*>(u"Callper1"_s)->currentText(), QString());
    }

private:
    static void clickTool(const QWidget* screen, const QString& name)
    {
        QWidget* button = screen->findChild<QToolBar*>()->widgetForAction(screen->findChild<QAction*>(name));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    std::unique_ptr<support::ScreenFixture> f;
};

QTEST_MAIN(CallsTest)
#include "calls_test.moc"
