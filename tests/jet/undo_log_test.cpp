#include "support/test_book.h"

#include <QtTest>

using namespace Qt::StringLiterals;

using jet::TakenBack;
using support::TestBook;

/// Whether a change of any tables can be taken back and done again as a whole, whatever made it, and nothing
/// else is touched.
class UndoLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }
    void backAndAgain();
    void namesTheChange();
    void whatFailsIsNoStep();
    void upkeepIsNotInTheWay();
    void strangersChangeIsKept_data();
    void strangersChangeIsKept();
    void oldStepsAreLetGo();
    void changesOutsideFollow();
    void stateTellsOfAnyChange();

private:
    jet::Database& data() { return m_book->data(); }
    /// All rows of all tables, null told from an empty text.
    QStringList dump();
    bool execute(const QString& sql) { return bool(data().execute(sql)); }
    QString nameOf(int id) { return m_book->firstText(u"select name from cnt_main where id=%1"_s.arg(id)); }
    qsizetype openFilesBeside();

    std::unique_ptr<TestBook> m_book;
};

namespace {

void addImages(jet::Database& data, int count)
{
    jet::Batch batch(data);
    jet::Recordset rows = data.openRecordset(u"select * from cnt_main where 1>2");
    for (int i = 0; i < count; ++i) {
        rows.addNew();
        rows.set(u"name", u"Image %1"_s.arg(i));
        rows.set(u"memo", QString(400'000 + i, u'i'));
        rows.update();
    }
}

struct Action {
    const char* what;
    std::function<void(jet::Database&)> perform;
};

/// One after the other.
const std::vector<Action>& actions()
{
    static const auto sql
        = [](const QString& text) { return [text](jet::Database& data) { data.execute(text); }; };
    static const std::vector<Action> all{
        {"a row of nulls and defaults", sql(u"insert into cnt_main (Name) values ('New')"_s)},
        {"a row of empty texts", sql(u"insert into cnt_main (Name,First,gen_id) values ('','',null)"_s)},
        {"several rows", sql(u"update cnt_main set Name='X', m_bd=#01/Jan/2000#, h_city=''"_s)},
        {"null to empty", sql(u"update cnt_main set nick='' where nick is null"_s)},
        {"letters only", sql(u"update cnt_main set Name='x'"_s)},
        {"a row gets another id", sql(u"update cnt_main set id=900 where id=3"_s)},
        {"one row twice",
            [](jet::Database& data) {
                jet::Batch batch(data);
                data.execute(u"update cnt_main set Name='One' where id=1");
                data.execute(u"update cnt_main set Name='Two', h_city='Pune' where id=1");
                data.execute(u"delete * from cnt_main where id=1");
            }},
        {"a record through a form",
            [](jet::Database& data) {
                jet::Recordset rows = data.openRecordset(u"select * from cnt_main where id=2");
                rows.edit();
                rows.set(u"first", QVariant());
                rows.set(u"M_BD", QDate(2001, 2, 3));
                rows.update();
            }},
        {"a set-up",
            [](jet::Database& data) {
                const jet::Step step(data, u"renaming the category"_s);
                jet::Batch batch(data);
                data.execute(u"update cntb_categories set category1='Allies'");
                data.execute(u"update cnt_main set category1='Allies'");
                data.execute(u"update cnt_filter set category1='Allies'");
                batch.commit();
                data.execute(u"update cntb_setup set lbluse1='x'");
                data.execute(u"insert into cnt_topcities (city) values ('Goa')");
            }},
        {"tables without a number of their own", sql(u"insert into ov_setup (key) values ('x')"_s)},
        {"blank contacts go by themselves",
            [](jet::Database& data) {
                const jet::Upkeep upkeep(data);
                data.execute(u"delete * from cnt_main where id > 3");
            }},
        {"many images come", [](jet::Database& data) { addImages(data, 8); }},
        {"all goes", sql(u"delete * from cnt_main"_s)},
    };
    return all;
}

} // namespace

void UndoLogTest::init()
{
    m_book = std::make_unique<TestBook>(TestBook::Rows::Sample);
    data().keepChanges({{u"cnt_main"_s, u"name"_s}, {u"cntb_categories"_s, u"category1"_s}});
}

QStringList UndoLogTest::dump()
{
    QStringList lines;
    for (const QString& table : data().tables()) {
        QStringList rows = m_book->rows(u"select * from ["_s + table + u']');
        rows.sort();
        lines += u'*' + table;
        lines += rows;
    }
    return lines;
}

qsizetype UndoLogTest::openFilesBeside()
{
    qsizetype count = 0;
    const QString folder = QFileInfo(m_book->path()).canonicalPath();
    for (const QFileInfo& open : QDir(u"/proc/self/fd"_s).entryInfoList(QDir::Files | QDir::System)) {
        const QString target = open.symLinkTarget();
        if (target.startsWith(folder) && !target.contains(QFileInfo(m_book->path()).fileName()))
            ++count;
    }
    return count;
}

void UndoLogTest::backAndAgain()
{
    QList<QStringList> states{dump()};
    for (const Action& action : actions()) {
        action.perform(data());
        states << dump();
        QVERIFY2(states.at(states.size() - 2) != states.constLast(), action.what);
    }
    for (int round = 0; round < 2; ++round) {
        for (qsizetype at = states.size() - 2; at >= 0; --at) {
            QCOMPARE(data().undoLastChange(), TakenBack::Done);
            QVERIFY2(dump() == states.at(at), actions()[size_t(at)].what);
        }
        QVERIFY(!data().lastChange() && data().undoLastChange() == TakenBack::Nothing);
        for (qsizetype at = 1; round == 0 && at < states.size(); ++at) {
            QCOMPARE(data().redoLastChange(), TakenBack::Done);
            QVERIFY2(dump() == states.at(at), actions()[size_t(at - 1)].what);
        }
        QVERIFY(round == 1 || (!data().lastUndone() && data().redoLastChange() == TakenBack::Nothing));
    }
    QVERIFY(data().lastUndone());
    QVERIFY(execute(u"update cnt_main set nick='Z' where id=1"_s));
    QVERIFY(!data().lastUndone()); // a new change ends what could be done again
}

void UndoLogTest::namesTheChange()
{
    const auto last = [this] {
        const auto change = data().lastChange();
        return change ? u"%1%2 %3 %4 %5"_s.arg(change->name, QString::number(int(change->kind)))
                            .arg(change->rows)
                            .arg(change->rowId)
                            .arg(change->label)
                      : QString();
    };
    QVERIFY(execute(u"update cntb_categories set category2='x' where catid=1"_s));
    QVERIFY(last().startsWith(u"1 1 1 "_s));
    QVERIFY(execute(u"insert into cnt_main (id,name) values (50,'Émile')"_s));
    QCOMPARE(last(), u"0 1 50 Émile"_s);
    {
        jet::Batch batch(data());
        QVERIFY(execute(u"update cntb_categories set category2='y'"_s));
        QVERIFY(execute(u"update cnt_main set nick='a' where id>49"_s));
        QVERIFY(execute(u"update cnt_main set nick='b' where id>49"_s));
        QCOMPARE(last(), u"0 1 50 Émile"_s);
    }
    QCOMPARE(last(), u"1 1 50 Émile"_s);
    {
        const jet::Step outer(data(), u"sorting "_s);
        const jet::Step inner(data(), u"not told "_s);
        QVERIFY(execute(u"delete * from cnt_main where id>49"_s));
        QVERIFY(execute(u"update cnt_user set user1='x'"_s));
        QCOMPARE(data().undoLastChange(), TakenBack::Nothing);
    }
    QCOMPARE(last(), u"sorting 2 1 50 Émile"_s);
    QVERIFY(execute(u"update cnt_main set Name='All' where id<4"_s));
    QVERIFY(last().startsWith(u"1 3 "_s));
    QVERIFY(execute(u"update cnt_main set Name='All' where id<4"_s)); // nothing new, no step
    QVERIFY(last().startsWith(u"1 3 "_s));
}

void UndoLogTest::whatFailsIsNoStep()
{
    for (int i = 0; i < 3; ++i)
        m_book->expectFailure(u"id=900"_s);
    QVERIFY(!execute(u"update cnt_main set id=900"_s));
    {
        jet::Batch batch(data());
        QVERIFY(execute(u"delete * from cnt_main"_s));
        QVERIFY(!execute(u"update cnt_user set id=900, name=1, x=2"_s));
    }
    QVERIFY(!data().lastChange());
    const QStringList before = dump();
    {
        // A failure on the way, after a row was touched, and a part that is given up.
        jet::Batch batch(data(), jet::Batch::Mode::KeepWhatSucceeds);
        QVERIFY(execute(u"update cnt_main set nick='a' where id=2"_s));
        QVERIFY(!execute(u"update cnt_main set id=900"_s));
        jet::Batch part(data());
        QVERIFY(execute(u"update cnt_main set nick='b' where id=1"_s));
        addImages(data(), 4); // more than is kept in memory
        part.rollBack();
        QVERIFY(execute(u"update cnt_main set nick='c' where id=3"_s));
    }
    QCOMPARE(data().lastChange()->rows, 2);
    QCOMPARE(data().undoLastChange(), TakenBack::Done);
    QCOMPARE(dump(), before);
}

void UndoLogTest::upkeepIsNotInTheWay()
{
    const auto normalise = [this](const QString& word) {
        const jet::Upkeep upkeep(data());
        execute(u"update cnt_main set h_city='"_s + word + u"' where id<3"_s);
        execute(u"insert into cnt_user (user1) values ('by itself')"_s);
    };
    QVERIFY(execute(u"update cnt_main set h_city='A', nick='n' where id=1"_s));
    QVERIFY(execute(u"update cnt_main set h_city='B' where id=1"_s));
    normalise(u"U"_s);
    QCOMPARE(data().undoLastChange(), TakenBack::Done);
    const auto city = [this] { return m_book->firstText(u"select h_city from cnt_main where id=1"_s); };
    QCOMPARE(city(), u"A"_s);
    normalise(u"V"_s);
    QCOMPARE(data().redoLastChange(), TakenBack::Done);
    QCOMPARE(city(), u"U"_s);
    QCOMPARE(data().undoLastChange(), TakenBack::Done);
    QCOMPARE(city(), u"V"_s);
    QCOMPARE(data().undoLastChange(), TakenBack::Done);
    QVERIFY(city() != u"V" && !data().lastChange());
    QCOMPARE(m_book->firstText(u"select h_city from cnt_main where id=2"_s), u"V"_s);
}

void UndoLogTest::strangersChangeIsKept_data()
{
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<TakenBack>("result");
    QTest::newRow("another row") << u"update cnt_main set nick='t' where id=7"_s << TakenBack::Done;
    QTest::newRow("another column") << u"update cnt_main set sms='t' where id=1"_s << TakenBack::Done;
    QTest::newRow("null to empty") << u"update cnt_main set nick='' where id=2"_s << TakenBack::Done;
    QTest::newRow("the last row") << u"update cnt_main set nick='t' where id=3"_s << TakenBack::ChangedSince;
    QTest::newRow("the first row") << u"update cnt_main set nick='t' where id=1"_s << TakenBack::ChangedSince;
    QTest::newRow("its letters") << u"update cnt_main set nick='MINE' where id=1"_s
                                 << TakenBack::ChangedSince;
    QTest::newRow("its accent") << u"update cnt_main set nick='mïne' where id=1"_s << TakenBack::ChangedSince;
    QTest::newRow("an added row") << u"update cnt_main set nick='t' where id=50"_s << TakenBack::ChangedSince;
    QTest::newRow("of an added row null to empty")
        << u"update cnt_main set nick='' where id=50"_s << TakenBack::Done;
    QTest::newRow("the row is gone") << u"delete * from cnt_main where id=2"_s << TakenBack::ChangedSince;
}

void UndoLogTest::strangersChangeIsKept()
{
    QFETCH(const QString, theirs);
    QFETCH(const TakenBack, result);
    QVERIFY(execute(u"update cnt_main set hobbies='before' where id=1"_s));
    {
        jet::Batch batch(data());
        QVERIFY(execute(u"update cnt_main set nick='mine' where id=1"_s));
        QVERIFY(execute(u"update cnt_main set nick=null, sms='p' where id=2"_s));
        QVERIFY(execute(u"update cnt_main set nick='mine' where id=3"_s));
        QVERIFY(execute(u"insert into cnt_main (id,name) values (50,'new')"_s));
    }
    jet::Database other;
    QCOMPARE(other.open(m_book->path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(theirs));
    const QStringList before = dump();
    QCOMPARE(data().undoLastChange(), result);
    if (result == TakenBack::ChangedSince)
        QCOMPARE(dump(), before);
    QVERIFY(data().lastUndone().has_value() == (result == TakenBack::Done));
    QCOMPARE(data().undoLastChange(), TakenBack::Done); // the one before is not lost by it
    {
        // Nor is a step that could not be written.
        const jet::Batch theirBatch(other);
        data().setWaitHandler([] { return false; });
        QVERIFY(data().redoLastChange() == TakenBack::NotWritten && data().lastUndone());
        m_book->expectFailure(u"locked"_s);
    }
    QCOMPARE(data().redoLastChange(), TakenBack::Done);
}

void UndoLogTest::oldStepsAreLetGo()
{
    addImages(data(), 4);
    QCOMPARE(openFilesBeside(), 1);
    for (int i = 0; i < 25; ++i)
        QVERIFY(execute(u"update cnt_main set nick='%1' where id=1"_s.arg(i)));
    QCOMPARE(openFilesBeside(), 0);
    int steps = 0;
    while (data().undoLastChange() == TakenBack::Done)
        ++steps;
    QCOMPARE(steps, 20);
    QCOMPARE(m_book->firstText(u"select nick from cnt_main where id=1"_s), u"4"_s);
}

void UndoLogTest::changesOutsideFollow()
{
    QList<jet::StepDirection> told;
    for (const bool isWritten : {false, true}) {
        jet::Step step(data(), u"with a photo"_s);
        step.follow([&told](jet::StepDirection direction) { told << direction; });
        if (isWritten)
            QVERIFY(execute(u"insert into cnt_main (name) values ('x')"_s));
    }
    data().undoLastChange();
    data().redoLastChange();
    data().redoLastChange();
    QCOMPARE(told, (QList<jet::StepDirection>{jet::StepDirection::Back, jet::StepDirection::Again}));
}

void UndoLogTest::stateTellsOfAnyChange()
{
    const QString before = data().state();
    QVERIFY(!before.isEmpty() && !dump().isEmpty());
    QCOMPARE(data().state(), before);
    QVERIFY(execute(u"update cnt_main set Name='One' where id=1"_s));
    const QString own = data().state();
    QVERIFY(own != before);
    jet::Database other;
    QCOMPARE(other.open(m_book->path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(u"update cnt_main set Name='Two' where id=1"_s));
    QVERIFY(data().state() != own);
}

QTEST_GUILESS_MAIN(UndoLogTest)
#include "undo_log_test.moc"
