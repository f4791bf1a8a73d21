#include "jet/database.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Whether a change can be taken back as a whole, whatever made it, nothing else is touched, and any change
/// shows.
class UndoLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesBack_data();
    void takesBack();
    void namesTheChange();
    void stepsComeBackInTurn();
    void batchIsOneStep();
    void whatFailsIsNoStep();
    void upkeepIsNoStep();
    void anotherProgramsChangeIsKept();
    void oldStepsAreLetGo();
    void tooMuchIsNoStep();
    void stateTellsOfAnyChange();

private:
    QStringList all();
    bool execute(const QString& sql) { return bool(m_book.execute(sql)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    jet::Database m_book;
};

void UndoLogTest::init()
{
    m_book.close();
    m_folder = std::make_unique<QTemporaryDir>();
    const QString path = m_folder->filePath(u"book.db"_s);
    QVERIFY(jet::Database::create(path));
    QCOMPARE(m_book.open(path), jet::Database::OpenResult::Opened);
    QVERIFY(m_book.applySchema(jet::Schema::fromCsv("database,table,column,type,size\n"
                                                    "data,person,id,autonumber,\n"
                                                    "data,person,born,date,\n"
                                                    "data,person,Name,text,60\n"
                                                    "data,person,marked,yesno,\n"
                                                    "data,call,id,autonumber,\n"
                                                    "data,call,Name,text,60\n"),
        u"data"_s));
    QVERIFY(m_book.appendRows(u"person"_s, {u"Name"_s, u"born"_s, u"marked"_s},
        {{u"Asha"_s, u"1990-02-01"_s, u"true"_s}, {u"Émile"_s, {}, u"false"_s},
            {u"Bina"_s, {}, u"false"_s}}));
    m_book.keepChanges(u"person"_s, u"name"_s);
}

QStringList UndoLogTest::all()
{
    QStringList texts;
    const jet::Recordset rows = m_book.openRecordset(u"select * from person order by id");
    for (int row = 0; row < rows.count(); ++row) {
        QStringList cells;
        for (int column = 0; column < rows.columns().size(); ++column)
            cells << (rows.valueAt(row, column).isValid() ? rows.textAt(row, column) : u"null"_s);
        texts << cells.join(u'|');
    }
    return texts;
}

void UndoLogTest::takesBack_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("update") << u"update person set Name='X', born=#01/Jan/2000#, marked=false where id=1"_s;
    QTest::newRow("to null") << u"update person set born=null where id=1"_s;
    QTest::newRow("update of all") << u"update person set marked=true"_s;
    QTest::newRow("delete of all") << u"delete * from person"_s;
    QTest::newRow("insert") << u"insert into person (Name) values ('New')"_s;
}

void UndoLogTest::takesBack()
{
    QFETCH(QString, sql);
    const QStringList before = all();
    QVERIFY(execute(sql));
    QVERIFY(all() != before);
    QVERIFY(m_book.undoLastChange());
    QCOMPARE(all(), before);
    QVERIFY(!m_book.lastChange());
    QVERIFY(!m_book.undoLastChange());
}

void UndoLogTest::namesTheChange()
{
    const auto last = [this] {
        const auto change = m_book.lastChange();
        return change ? u"%1 %2 %3"_s.arg(int(change->kind)).arg(change->rows).arg(change->label) : QString();
    };
    jet::Recordset rows = m_book.openRecordset(u"select * from person where id=2");
    rows.edit();
    rows.set(u"born", QDate(2001, 2, 3));
    QVERIFY(rows.update());
    QCOMPARE(last(), u"1 1 Émile"_s);
    QVERIFY(rows.removeCurrent());
    QCOMPARE(last(), u"2 1 Émile"_s);
    rows.addNew();
    rows.set(u"Name", u"Chand"_s);
    QVERIFY(rows.update());
    QCOMPARE(rows.lastAddedKey(), 4);
    QCOMPARE(last(), u"0 1 Chand"_s);
    QVERIFY(execute(u"update person set Name='All'"_s));
    QCOMPARE(last(), u"1 3 Asha"_s);
}

void UndoLogTest::stepsComeBackInTurn()
{
    const QStringList first = all();
    QVERIFY(execute(u"update person set Name='One' where id=1"_s));
    const QStringList second = all();
    QVERIFY(execute(u"delete * from person where id=1"_s));
    QVERIFY(execute(u"update person set Name='One' where id=9"_s)); // no row, no step
    QVERIFY(execute(u"update person set Name='Bina' where id=3"_s)); // nothing new, no step
    QVERIFY(execute(u"insert into call (Name) values ('other table')"_s));
    QVERIFY(m_book.undoLastChange());
    QCOMPARE(all(), second);
    QVERIFY(m_book.undoLastChange());
    QCOMPARE(all(), first);
    QVERIFY(!m_book.lastChange());
    QCOMPARE(m_book.openRecordset(u"select * from call").count(), 1);
}

void UndoLogTest::batchIsOneStep()
{
    const QStringList before = all();
    {
        jet::Batch batch(m_book);
        QVERIFY(execute(u"update person set Name='One' where id=1"_s));
        QVERIFY(!m_book.lastChange());
        QVERIFY(execute(u"delete * from person where id=2"_s));
    }
    QCOMPARE(m_book.lastChange()->rows, 2);
    QVERIFY(m_book.undoLastChange());
    QCOMPARE(all(), before);
}

void UndoLogTest::whatFailsIsNoStep()
{
    {
        jet::Batch batch(m_book);
        QVERIFY(execute(u"delete * from person"_s));
        batch.rollBack();
    }
    QVERIFY(!execute(u"update person set Nme='One'"_s));
    {
        // One that fails on its way, after a row was touched; the step is called after what was done.
        jet::Batch batch(m_book, jet::Batch::Mode::KeepWhatSucceeds);
        QVERIFY(!execute(u"update person set id=9"_s));
        QVERIFY(execute(u"update person set Name='Chand' where id=2"_s));
    }
    QCOMPARE(m_book.lastChange()->label, u"Émile"_s);
    QCOMPARE(m_book.lastChange()->rows, 1);
    QVERIFY(m_book.undoLastChange());
    QVERIFY(execute(u"insert into call (Name) values ('x')"_s));
    QVERIFY(!m_book.lastChange());
}

void UndoLogTest::upkeepIsNoStep()
{
    QVERIFY(execute(u"update person set Name='One' where id=1"_s));
    {
        const jet::Upkeep upkeep(m_book);
        QVERIFY(execute(u"update person set Name='Two' where id=2"_s));
    }
    QVERIFY(m_book.undoLastChange());
    QVERIFY(all().at(0).contains(u"Asha"_s));
    QVERIFY(all().at(1).contains(u"Two"_s));
    QVERIFY(!m_book.lastChange());
}

void UndoLogTest::anotherProgramsChangeIsKept()
{
    QVERIFY(execute(u"update person set Name='Mine', marked=false where id=1"_s));
    QVERIFY(execute(u"update person set Name='Mine too' where id=3"_s));
    jet::Database other;
    QCOMPARE(other.open(m_book.path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(u"update person set Name='Theirs' where id=1"_s));
    QVERIFY(m_book.undoLastChange());
    const QStringList before = all();
    QVERIFY(!m_book.undoLastChange());
    QCOMPARE(all(), before);
}

void UndoLogTest::oldStepsAreLetGo()
{
    for (int i = 0; i < 30; ++i)
        QVERIFY(execute(u"update person set Name='%1' where id=1"_s.arg(i)));
    int steps = 0;
    while (m_book.undoLastChange())
        ++steps;
    QCOMPARE(steps, 20);
    QVERIFY(all().constFirst().contains(u"|9|"_s));
}

void UndoLogTest::tooMuchIsNoStep()
{
    QVERIFY(execute(u"update person set Name='One' where id=1"_s));
    {
        jet::Batch batch(m_book);
        const QString name(1024 * 1024, u'x');
        for (int i = 0; i < 33; ++i)
            QVERIFY(execute(u"insert into person (Name) values ('%1')"_s.arg(name)));
    }
    QVERIFY(!m_book.lastChange()); // nor is what came before
    QVERIFY(execute(u"update person set Name='Two' where id=1"_s));
    QVERIFY(m_book.undoLastChange());
    QCOMPARE(m_book.openRecordset(u"select * from person").count(), 36);
}

void UndoLogTest::stateTellsOfAnyChange()
{
    const QString before = m_book.state();
    QVERIFY(!before.isEmpty());
    QCOMPARE(all().size(), 3);
    QCOMPARE(m_book.state(), before);
    QVERIFY(execute(u"update person set Name='One' where id=1"_s));
    const QString own = m_book.state();
    QVERIFY(own != before);
    jet::Database other;
    QCOMPARE(other.open(m_book.path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(u"update person set Name='Two' where id=1"_s));
    QVERIFY(m_book.state() != own);
}

QTEST_GUILESS_MAIN(UndoLogTest)
#include "undo_log_test.moc"
