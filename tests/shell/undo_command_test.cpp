#include "core/handover/contact_screen.h"
#include "core/setup/register_setup.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/undo_command.h"
#include "entry/register_entry.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/register_views.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// A screen that shows contacts, and counts how often it is told to read them anew.
class ListeningScreen final : public core::Screen {
    Q_OBJECT

public:
    using Screen::Screen;
    void load() override { }
    void bookChanged() override { ++changes; }
    int changes = 0;
};

namespace {

/// All screens in the real frame, on the sample book.
class WholeFrame : public support::ScreenFixture {
public:
    WholeFrame()
        : ScreenFixture(support::TestBook::Rows::Sample)
        , all{book.data(), book.data(), schema, shared, registry, window, context.services}
    {
        registry.setContext(all);
        setup::registerSetup(registry);
        entry::registerEntry(registry);
        views::registerViews(registry);
        execute(u"update time_email set confirm=false"_s); // one that is due would ask
        execute(u"update cntb_setup set UpdOutllook=true,AddFav=true"_s);
        boxes.answerAll(platform::Answer::Yes);
        window.build(all);
        window.loadFrame();
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the frame does not become active");
    }
    ~WholeFrame() { registry.unloadAll(); }
    /// All rows of all tables; null is told from an empty text.
    QStringList dump()
    {
        QStringList lines;
        for (const QString& table : book.data().tables()) {
            for (const QString& row : book.rows(u"select * from ["_s + table + u']'))
                lines << table + u": "_s + row;
        }
        lines.sort();
        return lines;
    }

    core::Screens registry;
    shell::MDIForm1 window;
    core::Context all;
};

void showContact(core::Screen* screen, qint64 id)
{
    QVERIFY(dynamic_cast<core::ContactScreen*>(screen)->showContact(id));
}

void chooseRow(const core::Screen* screen, const QString& list, int row)
{
    support::clickRow(qobject_cast<QAbstractItemView*>(support::reach(screen, list)), row);
}

/// The text of the command while nobody has opened the menu; nothing when it is grey.
QString offered(QMenu& edit, const QString& name = u"Undo"_s)
{
    QCoreApplication::processEvents();
    const auto* action = edit.findChild<QAction*>(name);
    return action->isEnabled() ? action->text().remove(u'&') : QString();
}

} // namespace

/// Whether the Edit menu says what it will take back, does so, and the open screens hear of it.
class UndoCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyScreenIsTakenBack_data()
    {
        using support::choose;
        using support::click;
        using support::type;
        using Act = std::function<void(core::Screen*)>;
        support::columns<QString, Act>("form", "act");
        const auto row = [](const char* name, const QString& form, const Act& act) {
            QTest::newRow(name) << form << act;
        };
        const Act add = [](core::Screen* s) {
            click(s, u"SSCommand3"_s);
            type(s, u"dtcmbfname"_s, u"Zed"_s);
            choose(s, u"cmbnview"_s, u"First,Last"_s);
            click(s, u"Command1"_s);
        };
        row("add, detailed", u"FormMain"_s, add);
        row("add, brief", u"FormMain1"_s, add);
        row("add, turbo", u"TurboAdd"_s, [](core::Screen* s) {
            type(s, u"txtfirst"_s, u"Zed"_s);
            click(s, u"Command1"_s);
        });
        row("add, simple", u"FrmContacts"_s, [](core::Screen* s) {
            type(s, u"dtcmbfname"_s, u"Zed"_s);
            click(s, u"Command1"_s);
        });
        row("change", u"FormMain"_s, [](core::Screen* s) {
            showContact(s, 3);
            type(s, u"dtcmbnick"_s, u"Zed"_s);
            click(s, u"Command1"_s);
        });
        row("edit page", u"FullView"_s, [](core::Screen* s) {
            showContact(s, 3);
            type(s, u"CmbEFirst"_s, u"Zed"_s);
            click(s, u"CmdSave"_s);
        });
        row("name in a list", u"FullView"_s, [](core::Screen* s) {
            showContact(s, 3);
            widgets::child<QAction>(s, u"Edit"_s)->trigger();
            support::reach(s, u"DBList1"_s)->setFocus();
            QTest::keyClick(s->focusWidget(), Qt::Key_F2);
            type(s, u"DBList1Editor"_s, u"Zed"_s);
            QTest::keyClick(support::reach(s, u"DBList1Editor"_s), Qt::Key_Return);
        });
        row("deletion", u"frmSelector"_s, [](core::Screen* s) {
            chooseRow(s, u"FG1"_s, 3);
            widgets::child<QAction>(s, u"Delete"_s)->trigger();
        });
        row("word", u"FrmOthers"_s, [](core::Screen* s) {
            type(s, u"txtJobTitle"_s, u"Pilot"_s);
            click(s, u"cmdjtadd"_s);
        });
        row("category renamed", u"FrmOthers"_s, [](core::Screen* s) {
            chooseRow(s, u"FG"_s, 0);
            type(s, u"DBCcat"_s, u"Zed"_s);
            click(s, u"CmdAdd"_s);
        });
        row("category moved", u"FrmOthers"_s, [](core::Screen* s) {
            chooseRow(s, u"FG"_s, 0);
            click(s, u"CmdCatDel"_s);
            click(s, u"optDel3"_s);
            choose(s, u"cmbCateg1"_s, u"Friends"_s);
            choose(s, u"cmbCateg2"_s, u"School"_s);
            click(s, u"cmddelok"_s);
        });
        row("city", u"FrmOthers"_s, [](core::Screen* s) {
            chooseRow(s, u"lstCities"_s, 0);
            click(s, u"LblAdd"_s);
        });
        row("defaults", u"FrmOthers"_s, [](core::Screen* s) {
            type(s, u"TxtEMilCat"_s, u"Post-Out"_s);
            click(s, u"SSCommand12"_s);
        });
        row("replacing", u"FrmFind"_s, [](core::Screen* s) {
            choose(s, u"Combo1"_s, u"Type"_s);
            type(s, u"txtfind"_s, u"Sent"_s);
            type(s, u"txtrep"_s, u"Zed"_s);
            click(s, u"CmdSave"_s);
        });
        row("duplicate", u"FrmDuplicator"_s, [](core::Screen* s) {
            chooseRow(s, u"DBCombo1"_s, 1);
            click(s, u"CmdDuplicate"_s);
        });
    }

    // What each screen writes, by whatever statements, goes back to the last cell, and comes again.
    void everyScreenIsTakenBack()
    {
        QFETCH(QString, form);
        QFETCH(const std::function<void(core::Screen*)>, act);
        WholeFrame f;
        f.shared.CallerForm = u"FrmEmailRecord"_s;
        QVERIFY(f.registry.show(form));
        QCoreApplication::processEvents();
        f.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        const QStringList before = f.dump();
        act(f.registry.find(form));
        QCoreApplication::processEvents();
        const QStringList after = f.dump();
        QVERIFY(after != before);
        f.window.findChild<QAction*>(u"Undo"_s)->trigger();
        QCOMPARE(f.dump(), before);
        QCoreApplication::processEvents(); // Redo is no longer grey
        f.window.findChild<QAction*>(u"Redo"_s)->trigger();
        QCOMPARE(f.dump(), after);
        QCOMPARE(f.verify(), QString());
    }

    void saysAndTakesBack()
    {
        support::ScreenFixture fixture;
        QMenu edit;
        new shell::UndoCommand(fixture.context, &edit);
        auto* screen = fixture.open<ListeningScreen>(u"FullView"_s);
        fixture.execute(u"insert into cnt_main (Name) values ('Ann')"_s);
        fixture.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        fixture.execute(u"insert into cnt_main (Name) values ('Bob')"_s);
        QCOMPARE(offered(edit), u"Undo adding Bob"_s);
        fixture.execute(u"update cnt_main set Name='Bob Rao' where Name='Bob'"_s);
        QCOMPARE(offered(edit), u"Undo changing Bob"_s);
        fixture.execute(u"delete * from cnt_main"_s);
        // Which of several is named is not told.
        const QRegularExpression several(u"^Undo deleting (Ann|Bob Rao) and 1 more$"_s);
        QVERIFY2(several.match(offered(edit)).hasMatch(), qPrintable(offered(edit)));
        for (int i = 0; i < 3; ++i)
            edit.actions().constFirst()->trigger();
        QCOMPARE(fixture.book.rows(u"select name from cnt_main"_s), QStringList{u"Ann"_s});
        QCOMPARE(screen->changes, 3);
        QCOMPARE(fixture.frame.notices.constLast(), u"Undone: adding Bob [Redo]"_s);
        QCOMPARE(offered(edit), QString());
        QCOMPARE(offered(edit, u"Redo"_s), u"Redo adding Bob"_s);
        edit.findChild<QAction*>(u"Redo"_s)->trigger();
        QCOMPARE(fixture.frame.notices.constLast(), u"Done again: adding Bob [Undo]"_s);
        QCOMPARE(fixture.book.rows(u"select name from cnt_main"_s), (QStringList{u"Ann"_s, u"Bob"_s}));
        {
            const jet::Step step(fixture.book.data(), u"sorting R & D"_s);
            fixture.execute(u"update cnt_main set Name='Bob'"_s);
        }
        QCOMPARE(offered(edit), u"Undo sorting R  D"_s);
        QCOMPARE(offered(edit, u"Redo"_s), QString());
        QCOMPARE(fixture.verify(), QString());
    }

    void nothingToTakeBack()
    {
        support::ScreenFixture fixture;
        QMenu edit;
        new shell::UndoCommand(fixture.context, &edit);
        fixture.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        QCOMPARE(offered(edit), QString());
        edit.actions().constFirst()->trigger(); // by its shortcut
        QCOMPARE(fixture.frame.notices, QStringList());
        QCOMPARE(fixture.verify(), QString());
    }

    void anotherProgramHasBeenThere()
    {
        support::ScreenFixture fixture;
        QMenu edit;
        new shell::UndoCommand(fixture.context, &edit);
        fixture.execute(u"insert into cnt_main (Name) values ('Ann')"_s);
        fixture.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        fixture.execute(u"update cnt_main set Name='Anna'"_s);
        QCOMPARE(offered(edit), u"Undo changing Ann"_s);
        jet::Database other;
        QCOMPARE(other.open(fixture.book.path()), jet::Database::OpenResult::Opened);
        QVERIFY(other.execute(u"update cnt_main set Name='Theirs'"_s));
        fixture.boxes.expect(u"This can not be taken back (changing Ann): it has been changed since."_s);
        edit.actions().constFirst()->trigger();
        QCOMPARE(fixture.book.firstText(u"select name from cnt_main"_s), u"Theirs"_s);
        QCOMPARE(fixture.verify(), QString());
    }
};

QTEST_MAIN(UndoCommandTest)
#include "undo_command_test.moc"
