#include <QtTest>

#include "core/store/book_schema.h"
#include "jet/database.h"
#include "tools/book_generator.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

/// The two command-line programs, from outside.
class OrvaneSqlTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void createAll();
    void createAllKeepsWhatIsThere();
    void values();
    void changes();
    void refused_data();
    void refused();
    void wildcards();
    void answersAtOnce();
    void limits();
    void dropKeepsACopy();
    void badCommandLine_data();
    void badCommandLine();
    void generatedBook();
    void generatedBookIsTheSameEachTime();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    int start(const QStringList& arguments, const QByteArray& input = {});
    QList<QJsonObject> ask(const QStringList& statements, const QStringList& options = {});

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_output;
    QByteArray m_error;
};

void OrvaneSqlTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QCOMPARE(start({u"--create-all"_s, path(u"all.dll"_s)}), 0);
}

int OrvaneSqlTest::start(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(QStringLiteral(ORVANE_SQL), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return -1;
    m_output = process.readAllStandardOutput();
    m_error = process.readAllStandardError();
    return process.exitCode();
}

QList<QJsonObject> OrvaneSqlTest::ask(const QStringList& statements, const QStringList& options)
{
    QByteArray input;
    for (const QString& statement : statements) {
        const QByteArray list = QJsonDocument(QJsonArray{statement}).toJson(QJsonDocument::Compact);
        input += list.mid(1).chopped(1) + '\n';
    }
    QList<QJsonObject> answers;
    if (start(options + QStringList{path(u"all.dll"_s)}, input) == 0) {
        for (const QByteArray& line : m_output.trimmed().split('\n'))
            answers << QJsonDocument::fromJson(line).object();
    }
    return answers;
}

void OrvaneSqlTest::createAll()
{
    jet::Database database;
    QCOMPARE(database.open(path(u"all.dll"_s)), jet::Database::OpenResult::Opened);
    const QStringList made = database.tables();
    const jet::Schema schema = core::bookSchema();
    QVERIFY(schema.tables.size() > 60);
    for (const jet::SchemaTable& table : schema.tables) {
        QVERIFY2(made.contains(table.name), qPrintable(table.name));
        QCOMPARE(database.columns(table.name).size(), table.columns.size());
        const auto rows = database.openRecordset(u"select count(*) as n from ["_s + table.name + u']');
        QCOMPARE(rows.number(u"n"), 0);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).first(), u"all.dll"_s);
}

void OrvaneSqlTest::createAllKeepsWhatIsThere()
{
    ask({u"insert into cnt_main (name) values ('Asha')"_s});
    QCOMPARE(start({u"--create-all"_s, path(u"all.dll"_s)}), 1);
    QVERIFY(!m_error.isEmpty());
    QCOMPARE(ask({u"select name from cnt_main"_s}).value(0)[u"rows"_s].toArray().size(), 1);
    QCOMPARE(start({u"--create-all"_s, path(u"no such folder/x.dll"_s)}), 1);
}

void OrvaneSqlTest::values()
{
    const auto answers = ask({
        u"insert into cnt_main (name, nick, m_bd, selected) values ('Zoë 🎻\r\n\"x\"', '', #29-Feb-1892#, true)"_s,
        u"insert into cnt_phcall (name, time, perid) values ('x', #10:30:00#, 7)"_s,
        u"insert into cnt_assogrp (subscription) values (12.5)"_s,
        u"select id, name as Who, nick, maiden, m_bd, selected, fmtree from cnt_main"_s,
        u"select time, perid, year(time) from cnt_phcall"_s,
        u"select subscription from cnt_assogrp"_s,
        u"select name from cnt_main where 1>2"_s,
    });
    QCOMPARE(answers.size(), 7);
    for (const QJsonObject& answer : answers)
        QVERIFY2(answer[u"ok"_s].toBool(), m_output);
    QCOMPARE(answers[3][u"columns"_s].toArray(),
        (QJsonArray{u"id"_s, u"Who"_s, u"nick"_s, u"maiden"_s, u"m_bd"_s, u"selected"_s, u"fmtree"_s}));
    QCOMPARE(answers[3][u"rows"_s].toArray(),
        QJsonArray(
            {QJsonArray{1, u"Zoë 🎻\r\n\"x\""_s, u""_s, QJsonValue::Null, u"1892-02-29"_s, true, false}}));
    QCOMPARE(answers[4][u"rows"_s].toArray(), QJsonArray({QJsonArray{u"1899-12-30 10:30:00"_s, 7, 1899}}));
    QCOMPARE(answers[5][u"rows"_s].toArray(), QJsonArray({QJsonArray{12.5}}));
    QCOMPARE(answers[6][u"rows"_s].toArray(), QJsonArray());
    QCOMPARE(answers[6][u"columns"_s].toArray(), QJsonArray{u"name"_s});
}

void OrvaneSqlTest::changes()
{
    const auto answers = ask({u"insert into CNTB_CATEGORIES (CATEGORY1) values ('A')"_s,
        u"insert into CNTB_CATEGORIES (CATEGORY1) values ('B')"_s,
        u"update CNTB_CATEGORIES set CATEGORY2='x'"_s, u"delete * from CNTB_CATEGORIES where CATEGORY1='a'"_s,
        u"delete * from CNTB_CATEGORIES where CATEGORY1='z'"_s,
        u"select * into copied from CNTB_CATEGORIES"_s, u"select CATEGORY1 from copied"_s,
        u"drop table copied"_s});
    QList<int> changed;
    for (const QJsonObject& answer : answers) {
        QVERIFY2(answer[u"ok"_s].toBool(), m_output);
        changed << answer[u"changed"_s].toInt(-1);
    }
    QCOMPARE(changed.mid(0, 5), (QList<int>{1, 1, 2, 1, 0}));
    QCOMPARE(answers[6][u"rows"_s].toArray(), QJsonArray({QJsonArray{u"B"_s}}));
}

void OrvaneSqlTest::refused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("apostrophe") << QByteArray(R"("delete * from cnt_main where name='O'Brien'")");
    QTest::newRow("second statement") << QByteArray(R"("delete * from cnt_main; delete * from ov_setup")");
    QTest::newRow("unknown table") << QByteArray(R"("select * from nowhere")");
    QTest::newRow("unknown column") << QByteArray(R"("update cnt_main set nothing='x'")");
    QTest::newRow("another file") << QByteArray(R"("attach 'x.db' as x")");
    QTest::newRow("pragma") << QByteArray(R"("pragma user_version=99")");
    QTest::newRow("empty text") << QByteArray(R"("")");
    QTest::newRow("no JSON") << QByteArray("delete * from cnt_main");
    QTest::newRow("a number") << QByteArray("5");
    QTest::newRow("two texts") << QByteArray(R"("select id from cnt_main","x")");
    QTest::newRow("empty line") << QByteArray();
    QTest::newRow("not UTF-8") << QByteArray("\"\xff\xfe\"");
}

// One answer a line, with a reason; the rows stay and the next statement runs.
void OrvaneSqlTest::refused()
{
    QFETCH(const QByteArray, line);
    ask({u"insert into cnt_main (name) values ('Asha')"_s});
    QCOMPARE(start({path(u"all.dll"_s)}, line + "\n\"select name from cnt_main\"\n"), 0);
    const QList<QByteArray> lines = m_output.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    const QJsonObject answer = QJsonDocument::fromJson(lines[0]).object();
    QCOMPARE(answer[u"ok"_s], QJsonValue(false));
    QVERIFY(!answer[u"error"_s].toString().isEmpty());
    QCOMPARE(QJsonDocument::fromJson(lines[1]).object()[u"rows"_s].toArray().size(), 1);
}

void OrvaneSqlTest::wildcards()
{
    ask({u"insert into cnt_main (name) values ('Mumbai')"_s, u"insert into cnt_main (name) values ('Mum*')"_s,
        u"insert into cnt_main (name) values ('Mum%')"_s});
    const QStringList both{u"select name from cnt_main where name like 'Mum*'"_s,
        u"select name from cnt_main where name like 'Mum%'"_s};
    const auto count = [](const QJsonObject& answer) { return answer[u"rows"_s].toArray().size(); };
    const auto dao = ask(both);
    QCOMPARE(count(dao.value(0)), 3);
    QCOMPARE(count(dao.value(1)), 1);
    const auto ado = ask(both, {u"--ado"_s});
    QCOMPARE(count(ado.value(0)), 1);
    QCOMPARE(count(ado.value(1)), 3);
}

// A caller may wait for each answer before it asks again.
void OrvaneSqlTest::answersAtOnce()
{
    QProcess process;
    process.start(QStringLiteral(ORVANE_SQL), {path(u"all.dll"_s)});
    for (int i = 0; i < 3; ++i) {
        process.write("\"select name from cnt_main\"\n");
        while (!process.canReadLine())
            QVERIFY(process.waitForReadyRead(10000));
        QVERIFY(process.readLine().contains("\"ok\":true"));
    }
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void OrvaneSqlTest::limits()
{
    QStringList statements(20, u"insert into cnt_main (name) values ('Asha Oberoi')"_s);
    // 20 to the ninth rows: no machine counts them in a second.
    const QString many
        = u"cnt_main a,cnt_main b,cnt_main c,cnt_main d,cnt_main e,cnt_main f,cnt_main g,cnt_main h,"
          "cnt_main i"_s;
    statements << u"select count(*) from "_s + many << u"select a.name,b.name,c.name,d.name from "_s + many
               << u"select count(*) from cnt_main"_s;
    const auto answers = ask(statements, {u"--seconds"_s, u"1"_s, u"--megabytes"_s, u"8"_s});
    QCOMPARE(answers.size(), 23);
    QVERIFY(answers[20][u"error"_s].toString().contains(u"longer than 1 s"_s));
    QVERIFY(!answers[21][u"ok"_s].toBool());
    QCOMPARE(answers[22][u"rows"_s].toArray(), QJsonArray({QJsonArray{20}}));
}

void OrvaneSqlTest::dropKeepsACopy()
{
    const auto answers = ask({u"insert into cnt_user (name) values ('Asha')"_s, u" DROP table cnt_user"_s,
        u"drop table cnt_user"_s, u"select name from cnt_user"_s});
    QCOMPARE(answers.value(1)[u"ok"_s], QJsonValue(true));
    QCOMPARE(answers.value(3)[u"ok"_s], QJsonValue(false));
    jet::Database copy;
    QCOMPARE(copy.open(path(u"all.dll.before-drop-1"_s)), jet::Database::OpenResult::Opened);
    QCOMPARE(copy.openRecordset(u"select name from cnt_user").textAt(0), u"Asha"_s);
    // No copy, no drop.
    QVERIFY(QDir().mkdir(path(u"all.dll.before-drop-2.part"_s)));
    const auto refused = ask({u"drop table cnt_main"_s, u"select count(*) from cnt_main"_s});
    QVERIFY(!refused.value(0)[u"ok"_s].toBool() && refused.value(1)[u"ok"_s].toBool());
}

void OrvaneSqlTest::badCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("nothing") << QStringList{} << 2;
    QTest::newRow("unknown option") << QStringList{u"--all"_s} << 2;
    QTest::newRow("no number") << QStringList{u"--seconds"_s, u"soon"_s, u"x.dll"_s} << 2;
    QTest::newRow("option without a file") << QStringList{u"--create-all"_s} << 2;
    QTest::newRow("no such file") << QStringList{u"/no/such.dll"_s} << 1;
    QTest::newRow("not a database") << QStringList{QStringLiteral(ORVANE_SQL)} << 1;
}

void OrvaneSqlTest::badCommandLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, code);
    QCOMPARE(start(arguments, "\"select 1\"\n"), code);
    QVERIFY(m_output.isEmpty());
    QVERIFY(!m_error.isEmpty());
}

// What the generator promises: every column in use, and the odd values that it is for.
void OrvaneSqlTest::generatedBook()
{
    QVERIFY(tools::makeBook(path(u"book.dll"_s), 2500));
    QVERIFY(!tools::makeBook(path(u"book.dll"_s), 1));
    jet::Database book;
    QCOMPARE(book.open(path(u"book.dll"_s)), jet::Database::OpenResult::Opened);
    QCOMPARE(book.version(), core::kSchemaVersion);
    const auto count = [&book](const QString& rest) {
        return book.openRecordset(u"select count(*) as n from "_s + rest).number(u"n");
    };
    QCOMPARE(count(u"cnt_main"_s), 2500);
    QCOMPARE(count(u"ov_setup"_s), 1);
    for (const QString& column : book.columns(u"cnt_main"_s))
        QVERIFY2(count(u"cnt_main where len(["_s + column + u"])>0"_s) > 0, qPrintable(column));
    for (const QString& condition :
        {u"name is null and company is not null"_s, u"maiden=''"_s, u"hobbies is null"_s,
            u"last like \"*'*\""_s, u"last='Müller'"_s, u"nick like '*🎻*'"_s, u"len(h_add1)=200"_s,
            u"m_bd < #1-Jan-1900#"_s, u"month(m_bd)=2 and day(m_bd)=29"_s, u"h_city like '*[*]*'"_s,
            u"h_city like '*[[]*'"_s, u"category1 like '*-*'"_s, u"kid3_bd is not null"_s})
        QVERIFY2(count(u"cnt_main where "_s + condition) > 0, qPrintable(condition));
    QVERIFY(book.openRecordset(u"select name from cnt_main group by name"_s).count() < 2490);
    QVERIFY(count(u"CNTB_CATEGORIES"_s) >= 120);
    for (const QString& table :
        {u"OV_JOURNAL"_s, u"cnt_phcall"_s, u"cnt_phlist"_s, u"cnt_phonenum"_s, u"cnt_maillist"_s})
        QVERIFY2(count(table) >= 10, qPrintable(table));
    QCOMPARE(book.checkSoundness(), QString());
}

void OrvaneSqlTest::generatedBookIsTheSameEachTime()
{
    QByteArray bytes[2];
    for (int i = 0; i < 2; ++i) {
        const QString file = path(u"book-%1.dll"_s.arg(i));
        QVERIFY(tools::makeBook(file, 300));
        QFile made(file);
        QVERIFY(made.open(QIODevice::ReadOnly));
        bytes[i] = made.readAll();
    }
    QVERIFY(bytes[0] == bytes[1]);
}

QTEST_GUILESS_MAIN(OrvaneSqlTest)
#include "orvane_sql_test.moc"
