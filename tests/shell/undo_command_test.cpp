#include "core/shell/undo_command.h"
#include "support/screen_fixture.h"

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

/// Whether the Edit menu says what it will take back, does so, and the open screens hear of it.
class UndoCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysAndTakesBack();
    void nothingToTakeBack();
    void anotherProgramHasBeenThere();
};

namespace {

/// The text of the command as the menu shows it when it drops down.
QString offered(QMenu& edit, const QString& name = u"Undo"_s)
{
    edit.popup({});
    const auto* action = edit.findChild<QAction*>(name);
    const QString text = action->isEnabled() ? action->text().remove(u'&') : QString();
    edit.close();
    return text;
}

} // namespace

void UndoCommandTest::saysAndTakesBack()
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

void UndoCommandTest::nothingToTakeBack()
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

void UndoCommandTest::anotherProgramHasBeenThere()
{
    support::ScreenFixture fixture;
    QMenu edit;
    new shell::UndoCommand(fixture.context, &edit);
    fixture.execute(u"insert into cnt_main (Name) values ('Ann')"_s);
    fixture.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
    fixture.execute(u"update cnt_main set Name='Anna'"_s);
    jet::Database other;
    QCOMPARE(other.open(fixture.book.path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(u"update cnt_main set Name='Theirs'"_s));
    fixture.boxes.expect(u"This can not be taken back (changing Ann): it has been changed since."_s);
    edit.actions().constFirst()->trigger();
    QCOMPARE(fixture.book.firstText(u"select name from cnt_main"_s), u"Theirs"_s);
    QCOMPARE(fixture.verify(), QString());
}

QTEST_MAIN(UndoCommandTest)
#include "undo_command_test.moc"
