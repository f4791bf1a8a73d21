#include <QtTest>
#include <QtWidgets>

#include "anniversaries/register_anniversaries.h"
#include "core/handover/entry_form.h"
#include "core/setup/register_setup.h"
#include "core/shell/action_performer.h"
#include "core/shell/frame_settings.h"
#include "core/shell/frmSplash.h"
#include "core/shell/key_arbiter.h"
#include "core/shell/launch_pages.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/register_shell.h"
#include "core/shell/window_state.h"
#include "core/store/book_schema.h"
#include "entry/register_entry.h"
#include "letters/register_letters.h"
#include "output/register_output.h"
#include "reports/register_reports.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/screen_fixture.h"
#include "telephone/register_telephone.h"
#include "transfer/register_transfer.h"
#include "views/register_views.h"
#include "widgets/fields.h"

using namespace Qt::StringLiterals;
using core::Action;
using platform::Answer;
using support::ScreenFixture;
using support::TargetScreen;
using support::TestBook;

namespace {

/// A screen that may refuse to close, and that looks at the deferred key when it is loaded.
class StubbornScreen final : public core::Screen {
public:
    explicit StubbornScreen(core::Context& context)
        : Screen(context)
    {
        auto* close = new QPushButton(this);
        close->setObjectName(u"CmdExit"_s);
        connect(close, &QPushButton::clicked, this, &core::Screen::closeRequested);
    }
    void load() override
    {
        setWindowTitle(u"Stubborn"_s);
        keyAtLoad = context().data.openRecordset(u"select [key] from ov_setup"_s).textAt(0);
    }
    bool isTouched() const override { return touched; }
    bool mayClose() override
    {
        ++asked;
        return mayGo && Screen::mayClose();
    }
    using Screen::setFrameTitle;
    using Screen::setPosition;
    int asked = 0;
    bool touched = false;
    QString keyAtLoad = u"not loaded"_s;
    bool mayGo = true;
};

class EntryScreen final : public core::Screen, public core::EntryForm {
public:
    using Screen::Screen;
    void load() override { }
    bool beginNew() override { return ++begun > 0; }
    int begun = 0;
};

/// The frame itself, on the recording services of a screen fixture.
class FrameFixture : public ScreenFixture {
public:
    explicit FrameFixture(TestBook::Rows rows = TestBook::Rows::None)
        : ScreenFixture(rows)
        , all{book.data(), book.data(), schema, shared, registry, window, context.services}
    {
        registry.setContext(all);
        shell::registerShell(registry);
    }
    ~FrameFixture() { registry.unloadAll(); }
    void start()
    {
        window.build(all);
        window.loadFrame();
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the frame does not become active");
    }
    void comeBack()
    {
        QEvent activate(QEvent::WindowActivate);
        QApplication::sendEvent(&window, &activate);
    }
    void showWhatIsToCome()
    {
        tool(u"ShowWhatIsToCome"_s)->trigger();
        window.resize(2000, 800); // the tool bar with all its groups
        QCoreApplication::processEvents();
    }
    QAction* tool(const QString& id) { return window.findChild<QAction*>(id); }
    void addTargets()
    {
        registry.add<TargetScreen>(u"FullView"_s);
        registry.add<EntryScreen>(u"FormMain"_s);
    }
    void bringForward(const QString& form) { window.bringForward(registry.find(form)); }
    QTabWidget* tabs() { return window.findChild<QTabWidget*>(u"ScreenTabs"_s); }
    QString pane(const QString& name) { return window.findChild<QLabel*>(name)->text(); }
    /// By the cross on the tab.
    void closeTab(int index)
    {
        auto* cross = tabs()->tabBar()->tabButton(index, QTabBar::RightSide);
        QTest::mouseClick(
            cross ? cross : tabs()->tabBar()->tabButton(index, QTabBar::LeftSide), Qt::LeftButton);
    }
    static void leave(core::Screen* screen)
    {
        QTest::mouseClick(widgets::child<QPushButton>(screen, u"CmdExit"_s), Qt::LeftButton);
    }

    core::Screens registry;
    shell::MDIForm1 window;
    core::Context all;
};

} // namespace

/// The frame: what its commands do, what it shows of them, and how it holds the screens.
class FrameTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void actions_data()
    {
        // box: "yes" or "no" answers the question before Link & Sync; outcome: result; screens; titles;
        // programs started; ends; key/module/report
        support::columns<Action, QStringList, QString, QString>("action", "siblings", "box", "outcome");
        const QString linkAndSync = u"Orvane Link & Sync.exe"_s;
        const QString personal = u"Orvane PersonalRecords.exe"_s;
        const QString pages = u"FrmProjectMsg modally"_s;
        const auto row
            = [](const char* tag, const Action& action, const QStringList& siblings, const QString& box,
                  const QString& outcome) { QTest::newRow(tag) << action << siblings << box << outcome; };
        row("screen", core::OpenScreen{u"FullView"}, {}, {}, u"1;FullView;;;0;//"_s);
        row("screen with page and title",
            core::OpenScreen{.form = u"FullView", .page = u"Full", .title = u"A title"}, {}, {},
            u"1;FullView on Full;A title;;0;//"_s);
        row("modal screen", core::OpenScreen{.form = u"FullView", .shown = core::Shown::Modally}, {}, {},
            u"1;FullView modally;;;0;//"_s);
        row("absent screen changes no title", core::OpenScreen{.form = u"FormX", .title = u"A title"}, {}, {},
            u"0;;;;0;//"_s);
        row("links, absent", core::ShowLinkedRecords{}, {}, {}, u"0;;;;0;//"_s);
        row("columns", core::EditColumns{u"Priority"}, {}, {}, u"1;FormUserEdit on Priority;;;0;//"_s);
        row("link and sync there", core::LaunchLinkAndSync{}, {linkAndSync}, {},
            u"1;;;"_s + linkAndSync + u";1;//"_s);
        row("link and sync absent", core::LaunchLinkAndSync{}, {}, {}, u"0;"_s + pages + u";;;0;//"_s);
        row("asked, no", core::LaunchLinkAndSync{core::Ask::Yes}, {linkAndSync}, u"no"_s, u"0;;;;0;//"_s);
        row("sibling with a key",
            core::StartSibling{.program = u"Orvane PersonalRecords.exe", .key = u"userdefined1"}, {personal},
            {}, u"1;;;"_s + personal + u";1;userdefined1//"_s);
        row("sibling absent leaves no key",
            core::StartSibling{.program = u"Orvane PersonalRecords.exe", .key = u"userdefined1"}, {}, {},
            u"0;"_s + pages + u";;;0;//"_s);
        row("report", core::RequestReport{u"Address Book-Short"}, {linkAndSync}, {},
            u"1;;;"_s + linkAndSync + u";1;report/Contacts/Address Book-Short"_s);
        row("end", core::EndProgram{}, {}, {}, u"1;;;;1;//"_s);
        row("inert", core::Inert{}, {}, {}, u"1;;;;0;//"_s);
    }

    void actions()
    {
        QFETCH(Action, action);
        QFETCH(QStringList, siblings);
        QFETCH(QString, box);
        ScreenFixture f;
        f.execute(u"insert into ov_setup ([key]) values ('')"_s);
        shell::registerShell(f.screens);
        f.addTarget(u"FullView"_s);
        f.addTarget(u"FormUserEdit"_s);
        f.shell.siblings = siblings;
        if (!box.isEmpty())
            f.boxes.expect(u"Do you wish to close  Orvane Contact and Open Orvane Link & Sync? "_s,
                box == u"yes" ? Answer::Yes : Answer::No);
        shell::ActionPerformer performer(f.context);
        const bool done = performer.perform(action);
        QString screens = f.frame.placed.join(u',');
        for (const auto& form : {u"FullView"_s, u"FormUserEdit"_s}) {
            if (f.target(form) && !f.target(form)->pages.isEmpty())
                screens += u" on "_s + f.target(form)->pages.join(u',');
        }
        const core::Screen* opened = f.screens.find(u"FullView");
        const QString title = opened ? opened->frameTitle() : QString();
        const auto setup = f.book.rows(u"select [key],rptMod,rptSubMod from ov_setup"_s).constFirst();
        QTEST(QStringList(
                  {QString::number(done), screens, title, f.shell.startedSiblings.join(u','),
                      QString::number(f.shell.ends), QString(setup).remove(u"null"_s).replace(u'|', u'/')})
                  .join(u';'),
            "outcome");
        QCOMPARE(f.verify(), QString());
    }

    void actionSignals_data()
    {
        support::columns<Action, QString>("action", "heard");
        QTest::newRow("drop-down") << Action(core::DropDown{u"Data"}) << u"drop Data"_s;
        QTest::newRow("close") << Action(core::CloseFrame{}) << u"close"_s;
        QTest::newRow("restore") << Action(core::Restore{}) << u"restore"_s;
        QTest::newRow("list bar") << Action(core::HideListBar{}) << u"hide"_s;
        QTest::newRow("an absent screen without the list bar")
            << Action(core::OpenScreen{.form = u"FormX", .listBar = core::ListBar::Hidden}) << u"hide"_s;
        QTest::newRow("help") << Action(core::OpenHelpFile{}) << u"help \\UserFiles\\Help\\OrvaneHelp.chm"_s;
        QTest::newRow("file") << Action(core::OpenFile{u"\\UserFiles\\a.htm"})
                              << u"file \\UserFiles\\a.htm"_s;
        QTest::newRow("letters") << Action(core::OpenScreen{.form = u"FormX", .letterKind = u"Business"})
                                 << u"kind Business"_s;
        QTest::newRow("launch pad") << Action(core::OpenLaunchPad{u"From Edit"}) << u"pad From Edit"_s;
    }

    void actionSignals()
    {
        QFETCH(Action, action);
        ScreenFixture f;
        QVERIFY(QDir(f.book.folder()).mkpath(u"UserFiles"_s));
        QFile file(f.book.folder() + u"/UserFiles/a.htm"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        shell::ActionPerformer performer(f.context);
        QStringList heard;
        connect(&performer, &shell::ActionPerformer::dropDownWanted, this,
            [&](const QString& page) { heard << u"drop "_s + page; });
        connect(&performer, &shell::ActionPerformer::closeWanted, this, [&] { heard << u"close"_s; });
        connect(&performer, &shell::ActionPerformer::restoreWanted, this, [&] { heard << u"restore"_s; });
        connect(&performer, &shell::ActionPerformer::listBarHidden, this, [&] { heard << u"hide"_s; });
        performer.perform(action);
        for (const QString& path : f.help.opened)
            heard << u"help "_s + path;
        for (const QString& path : f.shell.openedFiles)
            heard << u"file "_s + path;
        if (!f.shared.LetterKind.isEmpty())
            heard << u"kind "_s + f.shared.LetterKind;
        if (!f.shared.LaunchMode.isEmpty())
            heard << u"pad "_s + f.shared.LaunchMode;
        QTEST(heard.join(u','), "heard");
        QCOMPARE(f.verify(), QString());
    }

    void loadSetsTheState()
    {
        FrameFixture f;
        f.execute(u"insert into ov_setup (national) values (true)"_s);
        f.shared.AppTitle.clear();
        f.start();
        QCOMPARE(f.shared.AppTitle, u"Orvane Contacts"_s);
        QCOMPARE(f.shared.ModuleName, u"Contacts"_s);
        QCOMPARE(f.shared.DocumentsPath, u"C:\\Documents"_s);
        QCOMPARE(f.pane(u"DatePane"_s), u"15 Mar-2024"_s);
        QVERIFY(f.drive.exists(u"C:\\OVUserFiles\\Exported Files\\Emails"));
        QCOMPARE(f.verify(), QString());
    }

    void businessEdition()
    {
        const QString personal
            = u"Ann AnnivOther BAV BirthdayList Btask FamilyTree ID_Anniv ID_Bday ID_FamilyTree ID_Zodiac Linked PersonalView PhoneDialer ZAV"_s;
        for (const bool business : {true, false}) {
            FrameFixture f;
            f.execute(u"insert into ov_setup (national,Business) values (true,%1)"_s.arg(
                business ? u"true"_s : u"false"_s));
            f.start();
            f.showWhatIsToCome();
            QStringList hidden;
            for (const core::Command& command : core::toolCommands()) {
                if (!f.tool(command.id.toString())->isVisible())
                    hidden << command.id.toString();
            }
            hidden.sort(Qt::CaseInsensitive);
            QCOMPARE(hidden.join(u' '), business ? personal : QString());
            // The groups of the tool bar go with their tools.
            const auto* group = f.window.findChild<QToolButton*>(u"group_PhoneDialer"_s);
            QCOMPARE(group->isVisibleTo(&f.window), !business);
            QCOMPARE(f.verify(), QString());
        }
    }

    void cityTools()
    {
        for (const auto& [national, tools] : {std::pair{u"true"_s, u"CitypinStd CitypinStdI CityUtility"_s},
                 std::pair{u"false"_s, u"CitypinStdI"_s}}) {
            FrameFixture f;
            f.execute(u"insert into ov_setup (national) values (%1)"_s.arg(national));
            f.start();
            f.showWhatIsToCome();
            QStringList shown;
            for (const auto& id : {u"CitypinStd"_s, u"CitypinStdI"_s, u"CityUtility"_s}) {
                if (f.tool(id)->isVisible())
                    shown << id;
            }
            QCOMPARE(shown.join(u' '), tools);
            QCOMPARE(f.verify(), QString());
        }
    }

    void dueMails_data()
    {
        // answer: 0: no question
        support::columns<QString, int>("day", "answer");
        QTest::newRow("due, yes") << u"#15-Mar-2024#"_s << 1;
        QTest::newRow("due, no") << u"#15-Mar-2024#"_s << 2;
        QTest::newRow("not due") << u"#16-Mar-2024#"_s << 0;
    }

    void dueMails()
    {
        QFETCH(QString, day);
        QFETCH(int, answer);
        FrameFixture f;
        f.registry.add<TargetScreen>(u"frmTimedEmail"_s);
        f.execute(u"insert into time_email ([Date],confirm) values (%1,true)"_s.arg(day));
        if (answer)
            f.boxes.expect(u"Do you want to send all confirmed pending emails"_s,
                answer == 1 ? Answer::Yes : Answer::No);
        f.start();
        QCOMPARE(f.registry.find(u"frmTimedEmail") != nullptr, answer == 1);
        QCOMPARE(f.book.rows(u"select id from time_email"_s).size(), 1);
        QCOMPARE(f.verify(), QString());
    }

    void toolsOfAbsentScreens()
    {
        FrameFixture f;
        f.registry.add<TargetScreen>(u"FullView"_s);
        f.start();
        // What can not be used is out of sight, with the pages on which nothing else stands.
        for (const core::Command& command : core::toolCommands()) {
            const QAction* tool = f.tool(command.id.toString());
            QVERIFY2(tool->isEnabled() == tool->isVisible(), qPrintable(command.id.toString()));
        }
        const auto isShown = [&f](const QString& name) {
            return f.window.findChild<QWidget*>(name)->isVisibleTo(&f.window);
        };
        QVERIFY(f.window.findChild<QMenu*>(u"page_ID_AddBook"_s)->menuAction()->isVisible());
        QVERIFY(!f.window.findChild<QMenu*>(u"page_ID_Letter"_s)->menuAction()->isVisible());
        QVERIFY(isShown(u"group_ID_View"_s) && !isShown(u"group_E=Mail"_s));
        QVERIFY(isShown(u"start_FullView"_s) && !isShown(u"start_Phone"_s));
        auto* bar = f.window.findChild<QTreeWidget*>(u"ListBar"_s);
        const auto letters = bar->findItems(u"Letters"_s, Qt::MatchExactly).first();
        QVERIFY(letters->isHidden());
        QVERIFY(bar->width() >= 190);
        f.showWhatIsToCome();
        for (const core::Command& command : core::toolCommands())
            QCOMPARE(f.tool(command.id.toString())->isEnabled(), f.window.canPerform(command.action));
        QVERIFY(!letters->isHidden() && isShown(u"group_E=Mail"_s) && isShown(u"start_Phone"_s));
        QVERIFY(f.tool(u"FullView"_s)->isEnabled());
        QVERIFY(!f.tool(u"Edit"_s)->isEnabled());
        f.tool(u"Edit"_s)->trigger();
        QVERIFY(!f.window.perform(core::OpenScreen{u"FormMain"}));
        QCOMPARE(f.tabs()->count(), 0);
        QCOMPARE(f.verify(), QString());
    }

    void tabsAndClosing()
    {
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"FullView"_s);
        f.registry.add<TargetScreen>(u"FormMain"_s);
        f.start();
        auto* start = f.window.findChild<QWidget*>(u"StartPage"_s);
        QVERIFY(start->isVisible());
        f.tool(u"FullView"_s)->trigger();
        f.tool(u"Edit"_s)->trigger();
        f.tool(u"FullView"_s)->trigger();
        QCOMPARE(f.tabs()->count(), 2);
        QCOMPARE(f.tabs()->tabText(f.tabs()->currentIndex()), u"Stubborn"_s);
        QVERIFY(!start->isVisible());
        auto* screen = dynamic_cast<StubbornScreen*>(f.registry.find(u"FullView"));
        screen->mayGo = false;
        f.closeTab(f.tabs()->indexOf(screen));
        QCOMPARE(f.tabs()->count(), 2);
        QVERIFY(!f.window.close());
        QCOMPARE(f.shell.ends, 0);
        screen->mayGo = true;
        f.leave(screen);
        QCOMPARE(f.tabs()->count(), 1);
        QVERIFY(!f.registry.find(u"FullView"));
        f.closeTab(0);
        QVERIFY(start->isVisible());
        QCOMPARE(f.window.windowTitle(), u"Orvane Contacts"_s);
        f.tool(u"Exit"_s)->trigger();
        QCOMPARE(f.shell.ends, 1);
        QCOMPARE(f.verify(), QString());
    }

    void titleAndPositionOfTheScreenInFront()
    {
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"FullView"_s);
        f.registry.add<StubbornScreen>(u"FormMain"_s);
        f.start();
        const auto shown = [&f] { return f.window.windowTitle() + u'|' + f.pane(u"PositionPane"_s); };
        f.tool(u"FullView"_s)->trigger();
        auto* first = dynamic_cast<StubbornScreen*>(f.registry.find(u"FullView"));
        first->setFrameTitle(u"Contacts Full View"_s);
        first->setPosition(u"3 of 120"_s);
        QCOMPARE(shown(), u"Contacts Full View - Orvane Contacts|3 of 120"_s);
        f.tool(u"Edit"_s)->trigger();
        first->setPosition(u"4 of 120"_s);
        QCOMPARE(shown(), u"Stubborn - Orvane Contacts|"_s);
        const QTabBar* bar = f.tabs()->tabBar();
        QTest::mouseClick(const_cast<QTabBar*>(bar), Qt::LeftButton, {}, bar->tabRect(0).center());
        QCOMPARE(shown(), u"Contacts Full View - Orvane Contacts|4 of 120"_s);
        QCOMPARE(f.verify(), QString());
    }

    void typedTextIsAskedForBeforeTheProgramIsLeft()
    {
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"FullView"_s);
        f.registry.add<StubbornScreen>(u"FormMain"_s);
        f.execute(u"insert into ov_setup ([key]) values ('')"_s);
        f.shell.siblings = QStringList{u"Orvane Link & Sync.exe"_s};
        f.start();
        f.tool(u"FullView"_s)->trigger();
        f.tool(u"Edit"_s)->trigger();
        dynamic_cast<StubbornScreen*>(f.registry.find(u"FullView"))->touched = true;
        const QString question = u"What you entered was not saved. Do you want to discard it?"_s;
        const core::Action ways[]
            = {core::RequestReport{u"Phone List"}, core::EndProgram{}, core::CloseFrame{}};
        for (const core::Action& way : ways) {
            f.tabs()->setCurrentIndex(1);
            f.boxes.expect(question, Answer::No);
            f.window.perform(way);
            QCOMPARE(f.tabs()->currentIndex(), 0);
        }
        QCOMPARE(f.shell.ends, 0);
        QCOMPARE(f.book.rows(u"select [key],rptMod from ov_setup"_s), QStringList{u"|null"_s});
        f.boxes.expect(question, Answer::Yes);
        QVERIFY(f.window.perform(core::RequestReport{u"Phone List"}));
        QCOMPARE(f.shell.startedSiblings.size(), 1);
        QCOMPARE(f.verify(), QString());
    }

    void deferredKeys_data()
    {
        support::columns<QString, bool>("key", "opens");
        QTest::newRow("mixed case, the basic form") << u"'FormMain'"_s << true;
        QTest::newRow("the other key of that form") << u"'formmain1'"_s << true;
        QTest::newRow("unknown") << u"'formmain2'"_s << false;
        QTest::newRow("a screen that is not there") << u"'frmdialer'"_s << false;
        QTest::newRow("null") << u"null"_s << false;
    }

    void deferredKeys()
    {
        QFETCH(QString, key);
        QFETCH(bool, opens);
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"FormMain1"_s);
        f.execute(u"insert into ov_setup ([key]) values (%1)"_s.arg(key));
        f.start();
        auto* screen = dynamic_cast<StubbornScreen*>(f.registry.find(u"FormMain1"));
        QCOMPARE(screen != nullptr, opens);
        if (opens)
            QCOMPARE(
                screen->keyAtLoad, QString()); // blanked before it opens, so that it can not come for ever
        QCOMPARE(f.book.firstText(u"select [key] from ov_setup"_s), QString());
        if (opens)
            f.closeTab(0);
        f.comeBack();
        QVERIFY(!f.registry.find(u"FormMain1"));
        f.execute(u"update ov_setup set [key]='formmain'"_s);
        f.comeBack();
        QVERIFY(f.registry.find(u"FormMain1"));
        QCOMPARE(f.verify(), QString());
    }

    void modalScreen()
    {
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"frmbday"_s);
        f.execute(u"insert into ov_setup ([key]) values ('frmbday')"_s);
        f.start();
        auto* dialog = f.window.findChild<QDialog*>();
        QVERIFY(dialog && dialog->isModal());
        QCOMPARE(dialog->windowTitle(), u"Stubborn"_s);
        QCOMPARE(f.tabs()->count(), 0);
        auto* screen = dynamic_cast<StubbornScreen*>(f.registry.find(u"frmbday"));
        screen->mayGo = false; // it is asked, by whatever way it is closed
        QTest::keyClick(dialog, Qt::Key_Escape);
        dialog->close();
        f.leave(screen);
        QVERIFY(dialog->isVisible());
        screen->mayGo = true;
        f.leave(screen);
        QTRY_VERIFY(!f.registry.find(u"frmbday"));
        QCOMPARE(f.verify(), QString());
    }

    // Each tool that opens the launch pad shows the page of its mode: its title, what it is for, and the
    // tiles that are shipped for it.
    void launchPages()
    {
        FrameFixture f;
        QHash<QString, QStringList> shipped;
        for (const core::ShippedRows& rows : core::shippedRows(core::BookPart::Data)) {
            if (rows.table.compare(u"ov_cnt_launch", Qt::CaseInsensitive) != 0)
                continue;
            QVERIFY(f.book.data().appendRows(rows.table, rows.columns, rows.rows));
            for (const QStringList& row : rows.rows)
                shipped[row.at(1)] << row.at(2)
                        + (row.at(1).startsWith(u"Desc") ? u'\n' + row.at(3) : QString());
        }
        f.start();
        f.showWhatIsToCome();
        QSet<QString> described;
        for (const core::Command& command : core::toolCommands()) {
            const auto* page = std::get_if<core::OpenLaunchPad>(&command.action);
            if (!page)
                continue;
            const QString mode = page->mode.toString();
            f.tool(command.id.toString())->trigger();
            QCOMPARE(f.shared.LaunchMode, mode);
            auto* pad = f.registry.find(u"FrmLaunchDisk");
            QVERIFY(pad);
            const QString title = pad->windowTitle();
            QVERIFY2(title.contains(mode.mid(5)), qPrintable(title));
            QStringList shown;
            const auto* tiles = widgets::child<QListView>(pad, u"Grid1"_s)->model();
            for (int row = 0; row < tiles->rowCount(); ++row)
                shown << tiles->index(row, 0).data().toString();
            QCOMPARE(shown, shipped.value(mode));
            QVERIFY2(shown.size() > 1, qPrintable(mode));
            described << title + u'\n' + widgets::child<QLabel>(pad, u"LblFrmDesc"_s)->text();
        }
        // What is left are titles and descriptions, one for each page.
        QSet<QString> left;
        for (const auto& [page, texts] : std::as_const(shipped).asKeyValueRange()) {
            if (page.startsWith(u"Desc"))
                left << texts.join(u' ');
        }
        QCOMPARE(described, left);
        QCOMPARE(shipped.size(), 2 * left.size()); // a page without a tool is not seen
        QCOMPARE(f.verify(), QString());
    }

    void launchPadStarts()
    {
        FrameFixture f;
        f.registry.add<TargetScreen>(u"FormMain"_s);
        f.execute(u"insert into ov_cnt_launch (Main,Title) values ('From Add','Turbo Add')"_s);
        f.execute(u"insert into ov_cnt_launch (Main,Title) values ('From Add','Detailed Add')"_s);
        f.start();
        f.tool(u"ID_Add"_s)->trigger();
        auto* grid = widgets::child<QListView>(f.registry.find(u"FrmLaunchDisk"), u"Grid1"_s);
        QVERIFY(!(grid->model()->index(0, 0).flags() & Qt::ItemIsEnabled));
        const QModelIndex detailed = grid->model()->index(1, 0);
        QTest::mouseMove(grid->viewport(), grid->visualRect(detailed).center());
        QCOMPARE(f.window.findChild<QLabel*>(u"LblTitle"_s)->text(), u" - Detailed Add"_s);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(detailed).center());
        QVERIFY(f.registry.find(u"FormMain"));
        QCOMPARE(f.tabs()->count(), 2);
        f.window.perform(core::OpenLaunchPad{u"From Edit"});
        QCOMPARE(f.window.findChild<QLabel*>(u"LblTitle"_s)->text(), QString());
        QCOMPARE(f.verify(), QString());
    }

    // Open and asked for again, either way: there is one of it, in sight.
    void askedForBothWays()
    {
        FrameFixture f;
        for (const auto& form : {u"FrmOthers"_s, u"FullView"_s, u"FormSearch"_s})
            f.registry.add<StubbornScreen>(form);
        f.start();
        QVERIFY(f.registry.show(u"FrmOthers"));
        QVERIFY(f.registry.show(u"FullView"));
        QVERIFY(f.registry.show(u"FrmOthers", core::Shown::Modally));
        QVERIFY(f.registry.find(u"FrmOthers")->isVisible() && f.tabs()->currentIndex() == 0);
        QVERIFY(!f.window.findChild<QDialog*>());
        QVERIFY(f.registry.show(u"FormSearch", core::Shown::Modally));
        auto* dialog = f.window.findChild<QDialog*>();
        QVERIFY(f.registry.show(u"FormSearch"));
        QVERIFY(dialog->isVisible() && f.registry.find(u"FormSearch")->window() == dialog);
        QCOMPARE(f.tabs()->count(), 2);
        // From within a dialog a tab is out of reach, so it comes forward as one.
        QVERIFY(f.registry.show(u"FullView", core::Shown::Modally));
        const core::Screen* view = f.registry.find(u"FullView");
        QVERIFY(view->isVisible());
        QVERIFY(qobject_cast<QDialog*>(view->window()));
        QCOMPARE(f.tabs()->count(), 1);
        QTest::keyClick(view->window(), Qt::Key_Escape);
        QTRY_VERIFY(!f.registry.find(u"FullView"));
        QCOMPARE(f.verify(), QString());
    }

    // A key that frame and screen both have is the screen's, while it is in front and can use it.
    void keyOfTheScreenInFront()
    {
        FrameFixture f;
        f.registry.add<StubbornScreen>(u"FullView"_s);
        f.registry.add<StubbornScreen>(u"FormSearch"_s);
        f.start();
        f.window.perform(core::OpenScreen{u"FullView"});
        core::Screen* view = f.registry.find(u"FullView");
        auto* find = new QAction(view);
        find->setShortcut(QKeySequence(u"Ctrl+F"_s));
        find->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        view->addAction(find);
        int found = 0;
        connect(find, &QAction::triggered, this, [&found] { ++found; });
        view->setFocusPolicy(Qt::StrongFocus);
        for (int i = 1; i <= 3; ++i) {
            view->setFocus();
            QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
            QCOMPARE(found, i);
        }
        QVERIFY(!f.registry.find(u"FormSearch"));
        find->setEnabled(false);
        QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(f.registry.find(u"FormSearch"));
        QCOMPARE(found, 3);
        QCOMPARE(f.verify(), QString());
    }

    // In the frame with each of its screens, at each place where the focus may be, no key has two owners.
    void keysHaveOneOwner()
    {
        FrameFixture f(TestBook::Rows::Sample);
        f.execute(u"update time_email set confirm=false"_s);
        setup::registerSetup(f.registry);
        entry::registerEntry(f.registry);
        output::registerOutput(f.registry);
        reports::registerReports(f.registry);
        anniversaries::registerAnniversaries(f.registry);
        telephone::registerTelephone(f.registry);
        letters::registerLetters(f.registry);
        transfer::registerTransfer(f.registry);
        views::registerViews(f.registry);
        f.start();
        QStringList doubled;
        const auto look = [&](const core::Screen* screen, QWidget* focus) {
            QHash<QKeySequence, int> keys;
            for (const QAction* action : f.window.findChildren<QAction*>())
                ++keys[action->shortcut()];
            for (const QShortcut* shortcut : f.window.findChildren<QShortcut*>())
                ++keys[shortcut->key()];
            for (const auto& [key, claims] : std::as_const(keys).asKeyValueRange()) {
                if (key.isEmpty() || claims < 2)
                    continue;
                QKeyEvent press(QEvent::ShortcutOverride, key[0].key(), key[0].keyboardModifiers());
                QCoreApplication::sendEvent(focus, &press);
                if (shell::ownersOfKey(&f.window, key).size() > 1)
                    doubled << screen->objectName() + u' ' + key.toString();
            }
        };
        for (const QString& form : f.registry.names()) {
            QVERIFY(f.registry.show(form));
            QCoreApplication::processEvents();
            core::Screen* screen = f.registry.find(form);
            for (auto* tabs : screen->findChildren<QTabWidget*>()) {
                for (int page = 0; page < tabs->count(); ++page) {
                    tabs->setCurrentIndex(page);
                    look(screen, screen->focusWidget() ? screen->focusWidget() : screen);
                }
            }
            look(screen, screen);
            f.registry.unload(form);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        doubled.removeDuplicates();
        QCOMPARE(doubled, QStringList());
        f.boxes.verify();
    }

    void noticeWithAWayBack()
    {
        FrameFixture f;
        f.start();
        auto* label = f.window.findChild<QLabel*>(u"lblNotice"_s);
        int undone = 0;
        const QString name = u"<b>Asha</b> "_s + QString(4000, u'x');
        f.window.showNotice(u"Saved "_s + name, u"Undo"_s, [&] { ++undone; });
        QVERIFY(label->isVisible() && label->textFormat() == Qt::PlainText);
        QVERIFY(label->text().startsWith(u"Saved <b>Asha") && f.window.width() <= 1240);
        QTest::keyClick(&f.window, Qt::Key_F8);
        QCOMPARE(undone, 1);
        QVERIFY(!label->isVisible());
        f.window.showNotice(u"Saved"_s);
        QVERIFY(label->isVisible() && !f.window.findChild<QToolButton*>(u"cmdNotice"_s)->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!label->isVisible(), 9500);
    }

    // Ctrl+W, the middle button, and the tabs of the last run.
    void tabsComeBack()
    {
        FrameFixture f;
        const auto add = [](core::Screens& registry) {
            for (const auto& form : {u"FullView"_s, u"FormSearch"_s, u"frmNoteView"_s})
                registry.add<StubbornScreen>(form);
        };
        add(f.registry);
        f.start();
        for (const auto& form : {u"FullView"_s, u"FormSearch"_s, u"frmNoteView"_s})
            QVERIFY(f.registry.show(form));
        f.bringForward(u"FullView"_s);
        QVERIFY(f.window.close());
        {
            shell::MDIForm1 next;
            core::Screens registry;
            core::Context all{
                f.book.data(), f.book.data(), f.schema, f.shared, registry, next, f.context.services};
            registry.setContext(all);
            add(registry);
            next.build(all);
            next.loadFrame();
            next.show();
            next.activateWindow();
            auto* tabs = next.findChild<QTabWidget*>(u"ScreenTabs"_s);
            // A note has nothing to show without somebody who says whose.
            QTRY_COMPARE(tabs->count(), 2);
            QCOMPARE(tabs->currentWidget()->objectName(), u"FullView"_s);
            QTest::keyClick(&next, Qt::Key_W, Qt::ControlModifier);
            QCOMPARE(tabs->count(), 1);
            QTest::mouseClick(tabs->tabBar(), Qt::MiddleButton, {}, tabs->tabBar()->tabRect(0).center());
            QCOMPARE(tabs->count(), 0);
            registry.unloadAll();
        }
        QCOMPARE(shell::withinScreen({-500, 20, 3000, 600}, {0, 0, 1024, 768}), QRect(0, 20, 1024, 600));
    }

    void startPage()
    {
        FrameFixture f;
        f.addTargets();
        f.start();
        auto* first = f.window.findChild<QToolButton*>(u"cmdFirstContact"_s);
        QTRY_VERIFY(first->isVisible());
        QTest::mouseClick(first, Qt::LeftButton);
        auto* form = dynamic_cast<EntryScreen*>(f.registry.find(u"FormMain"));
        QVERIFY(form && form->begun == 1);
        f.execute(
            u"insert into cnt_main (name,mobile,datemodi) values ('Asha O''Hara','98 100',#01-feb-2023#)"_s);
        f.execute(u"insert into cnt_main (name,datemodi) values ('<i>Bela</i>',#01-mar-2024#)"_s);
        QTest::keyClick(&f.window, Qt::Key_W, Qt::ControlModifier);
        auto* list = f.window.findChild<QListWidget*>(u"lstStartContacts"_s);
        QTRY_COMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->text(), u"<i>Bela</i>"_s);
        QVERIFY(!first->isVisible());
        QCOMPARE(f.pane(u"lblContacts"_s), u"2 contacts"_s);
        QVERIFY(!f.window.findChild<QListWidget*>(u"lstStartBirthdays"_s)->isVisible());
        auto* search = f.window.findChild<QLineEdit*>(u"txtStartSearch"_s);
        QTest::keyClicks(search, u"o'h"_s);
        QTRY_COMPARE(list->item(0)->text(), u"Asha O'Hara"_s);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(dynamic_cast<TargetScreen*>(f.registry.find(u"FullView"))->contacts, QList<qint64>{1});
        QCOMPARE(f.verify(), QString());
    }

    void everyCommand_data()
    {
        QTest::addColumn<bool>("sample");
        QTest::newRow("empty book") << false;
        QTest::newRow("sample rows") << true;
    }

    // Every tool, key, short code and label is performed as often as it is listed, with all screens there
    // are; nothing asserts, and no statement fails.
    void everyCommand()
    {
        QFETCH(bool, sample);
        FrameFixture f(sample ? TestBook::Rows::Sample : TestBook::Rows::None);
        setup::registerSetup(f.registry);
        entry::registerEntry(f.registry);
        anniversaries::registerAnniversaries(f.registry);
        telephone::registerTelephone(f.registry);
        letters::registerLetters(f.registry);
        transfer::registerTransfer(f.registry);
        views::registerViews(f.registry);
        if (sample) // a mail that is due would ask
            f.execute(u"update time_email set confirm=false"_s);
        f.start();
        int performed = 0;
        for (const auto commands : {core::toolCommands(), core::keyCommands(), core::shortCodeCommands(),
                 core::launchPadCommands(), core::dropDownCommands()}) {
            for (const core::Command& command : commands) {
                const auto* launch = std::get_if<core::LaunchLinkAndSync>(&command.action);
                // Closing the frame and restoring have tests of their own.
                if (std::holds_alternative<core::CloseFrame>(command.action)
                    || std::holds_alternative<core::Restore>(command.action))
                    continue;
                if (launch && launch->ask == core::Ask::Yes)
                    f.boxes.expect(
                        u"Do you wish to close  Orvane Contact and Open Orvane Link & Sync? "_s, Answer::Yes);
                if (std::holds_alternative<core::EditContact>(command.action)) {
                    f.shared.selectedContactId = 0;
                    f.boxes.expect(u"Record not selected"_s);
                }
                const auto* text = std::get_if<core::TextReport>(&command.action);
                if (text)
                    f.boxes.expect(sample ? u"File saved on C:\\Desktop\\All Contact Address.txt"_s
                                          : u"Record not selected"_s);
                f.window.perform(command.action);
                ++performed;
                if (text && sample)
                    QCOMPARE(support::bytesOf(f.drive.local(u"C:\\Desktop\\All Contact Address.txt"))
                                 .contains("\r\nName-           "),
                        text->labels);
                QCoreApplication::processEvents();
                if (QWidget* popup = QApplication::activePopupWidget())
                    popup->close();
                for (QDialog* dialog : f.window.findChildren<QDialog*>())
                    delete dialog;
                QCOMPARE(QString(command.id.toString() + u": "_s + f.verify()),
                    QString(command.id.toString() + u": "_s));
            }
        }
        QVERIFY(performed > 300);
        for (const QString& form : f.registry.names()) {
            QVERIFY(f.registry.show(form));
            QCoreApplication::processEvents();
            QVERIFY2(f.registry.find(form)->isVisible(), qPrintable(form));
        }
        for (int tabs = f.tabs()->count(); tabs > 0; --tabs) {
            f.closeTab(0);
            QCOMPARE(f.tabs()->count(), tabs - 1);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(f.verify(), QString());
    }

    void splashTicks_data()
    {
        support::columns<QString, bool, QString>("statement", "escape", "heard");
        const QString setup = u"insert into ov_setup (Email) values (%1)"_s;
        QTest::newRow("main shell") << setup.arg(u"false"_s) << false << u"main"_s;
        QTest::newRow("null") << setup.arg(u"null"_s) << false << u"main"_s;
        QTest::newRow("e-mail shell") << setup.arg(u"true"_s) << false << u"e-mail"_s;
        QTest::newRow("Esc brings the main shell first, the tick goes on")
            << setup.arg(u"true"_s) << true << u"main,e-mail"_s;
        QTest::newRow("unreadable, told at the tick") << u"drop table ov_setup"_s << false << u"unreadable"_s;
    }

    void splashTicks()
    {
        QFETCH(QString, statement);
        QFETCH(bool, escape);
        QFETCH(QString, heard);
        ScreenFixture f;
        f.execute(statement);
        if (statement.startsWith(u"drop"))
            f.book.expectFailure(u"ov_Setup"_s);
        shell::frmSplash splash(f.context);
        QStringList signalsHeard;
        connect(&splash, &shell::frmSplash::mainShellWanted, this, [&] { signalsHeard << u"main"_s; });
        connect(&splash, &shell::frmSplash::emailShellWanted, this, [&] { signalsHeard << u"e-mail"_s; });
        connect(&splash, &shell::frmSplash::bookUnreadable, this, [&] { signalsHeard << u"unreadable"_s; });
        QElapsedTimer time;
        time.start();
        splash.load();
        splash.show();
        QCOMPARE(signalsHeard, QStringList());
        if (escape)
            QTest::keyClick(&splash, Qt::Key_Escape);
        QTRY_COMPARE(signalsHeard.join(u','), heard);
        QVERIFY(time.elapsed() >= 99);
        QCOMPARE(f.boxes.shown, QStringList());
        QCOMPARE(f.verify(), QString());
    }

    void splashPassword()
    {
        ScreenFixture f;
        shell::frmSplash splash(f.context);
        QSignalSpy passed(&splash, &shell::frmSplash::previousCallsWanted);
        auto* box = widgets::child<QLineEdit>(&splash, u"txtpassword"_s);
        auto* next = widgets::child<QPushButton>(&splash, u"cmdNext"_s);
        auto* bar = widgets::child<QProgressBar>(&splash, u"dxProgressBar1"_s);
        splash.show();
        QTest::keyClicks(box, u" "_s);
        f.boxes.expect(u"Invalid Password. Try again !!!!"_s);
        QTest::mouseClick(next, Qt::LeftButton);
        QCOMPARE(f.boxes.shown, QStringList{u"information: Invalid Password. Try again !!!!"_s});
        QCOMPARE(box->text(), QString());
        QCOMPARE(passed.count(), 0);
        QVERIFY(bar->isHidden());
        QTest::mouseClick(next, Qt::LeftButton);
        QCOMPARE(passed.count(), 1);
        QVERIFY(!bar->isHidden());
        QCOMPARE(splash.cursor().shape(), Qt::WaitCursor);
        bar->setValue(96);
        QTRY_COMPARE_WITH_TIMEOUT(bar->value(), 0, 1500);
        QCOMPARE(f.verify(), QString());
    }
};

Q_DECLARE_METATYPE(core::Action)
QTEST_MAIN(FrameTest)
#include "frame_test.moc"
