#include "support/test_book.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <csignal>
#include <cstdio>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using support::TestBook;
using OpenResult = jet::Database::OpenResult;
using Cause = jet::Failure::Cause;

namespace {

jet::Schema smallSchema(int columns)
{
    const QByteArray lines[] = {"database,table,column,type,size", "data,cnt_main,id,autonumber,",
        "data,cnt_main,Name,text,40", "data,cnt_main,category1,text,", "data,cnt_main,category2,text,",
        "data,cnt_main,First,text,", "data,cnt_main,Last,text,", "data,cnt_main,Company,text,",
        "data,cnt_main,note,memo,", "data,cnt_main,M_BD,date,", "data,cnt_main,flag,yesno,",
        "data,later,id,autonumber,", "data,later,to,text,", "info,other,id,autonumber,"};
    QByteArray csv;
    for (int i = 0; i < columns; ++i)
        csv += lines[i] + '\n';
    jet::Schema schema = jet::Schema::fromCsv(csv);
    schema.indexes = TestBook::indexesFor(schema);
    return schema;
}

bool makeBook(const QString& path, int lines = 9)
{
    jet::Database data;
    return jet::Database::create(path) && data.open(path) == OpenResult::Opened
        && data.applySchema(smallSchema(lines), u"data"_s);
}

jet::Outcome save(jet::Database& data, const QString& name, int size = 1'000)
{
    return data.execute(
        u"insert into cnt_main (name, note) values ('"_s + name + u"', '"_s + QString(size, u'n') + u"')"_s);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// A small file system in memory, for what happens when a disk is full or can not be written.
class SmallDisk {
public:
    explicit SmallDisk(const QString& folder)
        : m_folder(folder.toUtf8())
        , m_mounted(::mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=1m") == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_mounted)
            ::umount2(m_folder.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)
    bool isMounted() const { return m_mounted; }
    bool setWritable(bool writable)
    {
        return ::mount(
                   "tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT | (writable ? 0 : MS_RDONLY), "size=1m")
            == 0;
    }

private:
    QByteArray m_folder;
    bool m_mounted;
};

// ---- the children of this test

/// Saves rows until it is killed, and says of each that it is saved.
int saveForEver(const QString& path)
{
    jet::Database data;
    if (data.open(path) != OpenResult::Opened)
        return 1;
    for (int i = 0;; ++i) {
        const QString name = u"%1-%2"_s.arg(::getpid()).arg(i);
        if (i % 3 == 0) {
            jet::Recordset rows = data.openRecordset(u"select * from cnt_main where 1>2");
            rows.addNew();
            rows.set(u"name", name);
            rows.set(u"note", QString(i % 5'000, u'n'));
            if (!rows.update())
                return 2;
        } else if (!save(data, name, i % 5'000).ok) {
            return 2;
        }
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
    }
}

/// Saves until the file may grow no more, as on a full disk: 0 when that was told and nothing was lost.
int fillUp(const QString& path)
{
    std::signal(SIGXFSZ, SIG_IGN);
    jet::Database data;
    if (data.open(path) != OpenResult::Opened)
        return 1;
    int storageFaults = 0;
    int otherFaults = 0;
    data.setFailureHandler(
        [&](const jet::Failure& failure) { ++(failure.isOfStorage() ? storageFaults : otherFaults); });
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = 600'000;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    int saved = 0;
    while (saved < 10'000 && save(data, QString::number(saved)).ok)
        ++saved;
    if (saved < 20 || storageFaults != 1 || otherFaults != 0)
        return 2;
    const bool whole
        = data.openRecordset(u"select count(*) from cnt_main").textAt(0) == QString::number(saved);
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    if (!whole || !save(data, u"later"_s).ok)
        return 3;
    return data.checkSoundness().isEmpty() ? 0 : 4;
}

} // namespace

class StorageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    // What a save reported survives the death of the program at any moment.
    void killedWhileSaving()
    {
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path));
        QCOMPARE(contents(path).mid(18, 2), QByteArray("\2\2")); // the write-ahead log is on
        QSet<QString> reported;
        for (int round = 0; round < 20; ++round) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {u"--save-for-ever"_s, path});
            QVERIFY(child.waitForReadyRead(20'000));
            QTest::qWait(QRandomGenerator::global()->bounded(1, 60));
            ::kill(pid_t(child.processId()), SIGKILL);
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            const QByteArray said = child.readAllStandardOutput();
            for (const QByteArray& line : said.left(said.lastIndexOf('\n')).split('\n'))
                reported << QString::fromUtf8(line);
            jet::Database data;
            QCOMPARE(data.open(path), OpenResult::Opened);
            QCOMPARE(data.checkSoundness(), QString());
            const jet::Recordset rows = data.openRecordset(u"select name from cnt_main");
            QSet<QString> found;
            for (int row = 0; row < rows.count(); ++row)
                found << rows.textAt(row, 0);
            QVERIFY2(
                found.contains(reported), qPrintable(u"lost: "_s + (reported - found).values().join(u' ')));
        }
        QVERIFY(reported.size() >= 20);
    }

    void fullDisk()
    {
        SmallDisk disk(m_folder->path());
        if (!disk.isMounted())
            QSKIP("only the administrator may mount a small disk; the next test has a limit instead");
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path));
        jet::Database data;
        QCOMPARE(data.open(path), OpenResult::Opened);
        watch(data);
        int saved = 0;
        while (saved < 5'000 && save(data, QString::number(saved)).ok)
            ++saved;
        QVERIFY(saved > 20 && saved < 5'000);
        QCOMPARE(m_causes, QList<Cause>{Cause::DiskFull});
        QCOMPARE(data.lastFailure()->cause, Cause::DiskFull);
        jet::Recordset rows = data.openRecordset(u"select * from cnt_main order by id");
        QCOMPARE(rows.count(), saved);
        rows.addNew();
        rows.set(u"note", QString(100'000, u'x'));
        QVERIFY(!rows.update());
        QCOMPARE(rows.count(), saved);
        // What belongs to a write for which there was no room must not be stored alone.
        for (const auto mode : {jet::Batch::Mode::KeepWhatSucceeds, jet::Batch::Mode::AllOrNothing}) {
            jet::Batch batch(data, mode);
            jet::Recordset large = data.openRecordset(u"select * from cnt_main where 1>2");
            large.addNew();
            large.set(u"note", QString(9'000'000, u'n'));
            QVERIFY(!large.update());
            QVERIFY(!data.execute(u"update cnt_main set category1='x' where id=1"));
            QVERIFY(!batch.commit());
        }
        QCOMPARE(data.openRecordset(u"select category1 from cnt_main where id=1").textAt(0), QString());
        for (const auto cause : m_causes)
            QCOMPARE(cause, Cause::DiskFull);
        {
            jet::Database second;
            data.close();
            QCOMPARE(second.open(path), OpenResult::Opened);
            QCOMPARE(second.openRecordset(u"select id from cnt_main").count(), saved);
            QVERIFY(!save(second, u"x"_s, 50'000));
            QCOMPARE(second.lastFailure()->cause, Cause::DiskFull);
            QVERIFY(
                ::mount("tmpfs", m_folder->path().toUtf8().constData(), "tmpfs", MS_REMOUNT, "size=2m") == 0);
            QVERIFY(save(second, u"x"_s, 50'000));
            QVERIFY(!second.lastFailure() && !second.isReadOnly());
            QVERIFY(second.execute(u"delete * from cnt_main where name='x'"));
        }
        QCOMPARE(data.open(path), OpenResult::Opened);
        QCOMPARE(data.openRecordset(u"select id from cnt_main").count(), saved);
        while (save(data, u"more"_s, 50'000)) { }
        QVERIFY(!data.backUpTo(at(u"copy"_s)));
        QVERIFY(!QFile::exists(at(u"copy"_s)) && !QFile::exists(at(u"copy.part"_s)));
        // With room again all goes on, after a new start as well.
        QVERIFY(::mount("tmpfs", m_folder->path().toUtf8().constData(), "tmpfs", MS_REMOUNT, "size=8m") == 0);
        QVERIFY(save(data, u"later"_s).ok);
        QCOMPARE(data.checkSoundness(), QString());
        data.close();
        QCOMPARE(data.open(path), OpenResult::Opened);
        QCOMPARE(data.openRecordset(u"select id from cnt_main where name<>'more'").count(), saved + 1);
    }

    void fileThatMayNotGrow()
    {
        QVERIFY(makeBook(at(u"book"_s)));
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--fill-up"_s, at(u"book"_s)});
        QVERIFY(child.waitForFinished(60'000));
        QCOMPARE(child.exitCode(), 0);
    }

    void readOnly_data()
    {
        QTest::addColumn<bool>("isData");
        QTest::newRow("data") << true;
        QTest::newRow("information") << false;
    }

    void readOnly()
    {
        QFETCH(const bool, isData);
        const auto kind = isData ? jet::Database::Kind::Data : jet::Database::Kind::Information;
        SmallDisk disk(m_folder->path());
        if (!disk.isMounted())
            QSKIP("only the administrator may mount a disk that can not be written");
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path));
        {
            jet::Database data;
            QCOMPARE(data.open(path, kind), OpenResult::Opened);
            QVERIFY(!data.isReadOnly() && save(data, u"Mary"_s).ok);
        }
        const QByteArray before = contents(path);
        QVERIFY(disk.setWritable(false));
        jet::Database data;
        QCOMPARE(data.open(path, kind), OpenResult::Opened);
        watch(data);
        QVERIFY(data.isReadOnly());
        jet::Recordset rows = data.openRecordset(u"select * from cnt_main");
        QCOMPARE(rows.textOrEmpty(u"name"), u"Mary"_s);
        QVERIFY(!rows.isEditable());
        QVERIFY(!save(data, u"x"_s).ok);
        rows.edit();
        rows.set(u"name", u"x"_s);
        QVERIFY(!rows.update());
        QVERIFY(!rows.removeCurrent());
        QVERIFY(!data.execute(u"select * into copied from cnt_main").ok);
        QVERIFY(!data.backUpTo(at(u"copy"_s)));
        QCOMPARE(m_causes, QList<Cause>(4, Cause::ReadOnly) << Cause::Storage);
        QVERIFY(!jet::Database::create(at(u"new"_s)));
        QCOMPARE(contents(path), before);
        QVERIFY(disk.setWritable(true));
        // The next write finds it so, and rows that were selected before go on.
        rows.edit();
        QVERIFY(rows.set(u"name", u"y"_s) && rows.update());
        QVERIFY(!data.isReadOnly() && save(data, u"z"_s).ok);
        QCOMPARE(rows.textOrEmpty(u"name"), u"y"_s);
    }

    void openingWhatIsNoBook_data()
    {
        QTest::addColumn<int>("damage");
        QTest::addColumn<OpenResult>("expected");
        QTest::newRow("missing") << 0 << OpenResult::Missing;
        QTest::newRow("a text") << 1 << OpenResult::NotADatabase;
        QTest::newRow("zeros") << 2 << OpenResult::NotADatabase;
        QTest::newRow("empty") << 3 << OpenResult::NotADatabase;
        QTest::newRow("cut in its head") << 4 << OpenResult::Failed;
        QTest::newRow("cut in half") << 5 << OpenResult::Failed;
        QTest::newRow("a folder") << 6 << OpenResult::Failed;
        QTest::newRow("a head of zeros") << 7 << OpenResult::NotADatabase;
    }

    void openingWhatIsNoBook()
    {
        QFETCH(const int, damage);
        QFETCH(const OpenResult, expected);
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path));
        QByteArray bytes = contents(path);
        QFile::remove(path);
        switch (damage) {
        case 1: overwrite(path, QByteArray("My contacts\r\n").repeated(900)); break;
        case 2: overwrite(path, QByteArray(bytes.size(), '\0')); break;
        case 3: overwrite(path, {}); break;
        case 4: overwrite(path, bytes.left(60)); break;
        case 5: overwrite(path, bytes.left(bytes.size() / 2)); break;
        case 6: QVERIFY(QDir().mkdir(path)); break;
        case 7: overwrite(path, bytes.replace(0, 100, QByteArray(100, '\0'))); break;
        }
        const QByteArray before = contents(path);
        jet::Database data;
        QCOMPARE(data.open(path), expected);
        QVERIFY(damage == 0 || !jet::Database::create(path));
        QVERIFY(!data.isOpen() && !data.openRecordset(u"select * from cnt_main").isValid());
        QCOMPARE(contents(path), before);
        QCOMPARE(QFile::exists(path), damage != 0);
    }

    void damageInside()
    {
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path));
        {
            jet::Database data;
            QCOMPARE(data.open(path), OpenResult::Opened);
            jet::Batch batch(data);
            for (int i = 0; i < 200; ++i)
                save(data, QString::number(i));
        }
        QByteArray bytes = contents(path);
        for (qsizetype page = 4096 * 8; page + 4096 <= bytes.size(); page += 4096)
            bytes.replace(page, 200, QByteArray(200, '\x55'));
        overwrite(path, bytes);
        jet::Database data;
        QCOMPARE(data.open(path), OpenResult::Opened);
        watch(data);
        QVERIFY(!data.checkSoundness().isEmpty());
        QVERIFY(!data.openRecordset(u"select distinct note from cnt_main").isValid());
        QCOMPARE(m_causes, QList<Cause>{Cause::Damaged});
    }

    void foldersWithOddNames()
    {
        for (const auto& name :
            {u"a b"_s, u"100%"_s, u"what?mode=memory"_s, u"#1"_s, u"José ж 😀"_s, u"it's%20"_s}) {
            QVERIFY(QDir(m_folder->path()).mkdir(name));
            const QString path = at(name) + u"/book.dll"_s;
            QVERIFY2(makeBook(path), qPrintable(name));
            jet::Database data;
            QCOMPARE(data.open(path), OpenResult::Opened);
            QVERIFY(save(data, u"x"_s).ok);
            QVERIFY(QFileInfo(path).size() > 0);
        }
        QVERIFY(QDir(m_folder->path()).entryList(QDir::Files).isEmpty());
    }

    void backUpWhileInUse()
    {
        QVERIFY(makeBook(at(u"book"_s)));
        jet::Database data;
        QCOMPARE(data.open(at(u"book"_s)), OpenResult::Opened);
        watch(data);
        QVERIFY(save(data, u"Mary"_s).ok && data.setVersion(7));
        const jet::Recordset rows = data.openRecordset(u"select * from cnt_main");
        QVERIFY(data.backUpTo(at(u"copy"_s)));
        QVERIFY(save(data, u"Later"_s).ok);
        QVERIFY(!data.backUpTo(at(u"copy"_s)));
        QCOMPARE(m_causes, QList<Cause>{Cause::Storage});
        QCOMPARE(QDir(m_folder->path()).entryList({u"copy*"_s}), QStringList{u"copy"_s});
        jet::Database copy;
        QCOMPARE(copy.open(at(u"copy"_s)), OpenResult::Opened);
        QCOMPARE(copy.checkSoundness(), QString());
        QCOMPARE(copy.version(), 7);
        QCOMPARE(copy.openRecordset(u"select name from cnt_main").count(), 1);
    }

    void schemaGrows()
    {
        const QString path = at(u"book"_s);
        QVERIFY(makeBook(path, 9));
        jet::Database data;
        QCOMPARE(data.open(path), OpenResult::Opened);
        QVERIFY(save(data, u"José"_s).ok && save(data, u"anna"_s).ok && save(data, u"Bob"_s).ok);
        QVERIFY(data.execute(u"insert into cnt_main (name) values ('bob')").ok);
        QVERIFY(data.openRecordset(u"select m_bd from cnt_main").isValid() == false);
        QVERIFY(data.applySchema(smallSchema(14), u"data"_s));
        QVERIFY(data.applySchema(smallSchema(14), u"data"_s));
        QCOMPARE(data.tables(), (QStringList{u"cnt_main"_s, u"later"_s}));
        QCOMPARE(data.columns(u"CNT_MAIN"_s).mid(7), (QStringList{u"note"_s, u"M_BD"_s, u"flag"_s}));
        data.close();
        QCOMPARE(data.open(path), OpenResult::Opened);
        const jet::Recordset rows
            = data.openRecordset(u"select name,m_bd from cnt_main where flag=false order by name,id");
        QCOMPARE(rows.count(), 4);
        QCOMPARE(rows.textAt(0, 0) + rows.textAt(1, 0) + rows.textAt(2, 0) + rows.textAt(3, 0),
            u"annaBobbobJosé"_s);
        QCOMPARE(data.openRecordset(u"select id from cnt_main where name='JOSÉ'").count(), 1);
        QCOMPARE(data.checkSoundness(), QString());
        QVERIFY(data.execute(u"insert into later (to) values ('x')").ok);
        // A schema of fewer columns takes nothing away.
        QVERIFY(data.applySchema(smallSchema(4), u"data"_s));
        QCOMPARE(data.columns(u"cnt_main"_s).size(), 10);
    }

    void indexesAreUsedAndSurviveReopening()
    {
        QVERIFY(makeBook(at(u"book"_s)));
        for (int round = 0; round < 2; ++round) {
            jet::Database data;
            QCOMPARE(data.open(at(u"book"_s)), OpenResult::Opened);
            jet::Batch batch(data);
            for (const auto& name : {u"Zoë"_s, u"zoe"_s, u"ÁNGEL"_s, u"angel"_s, u"Ángel"_s, u""_s})
                QVERIFY(save(data, name).ok);
            QVERIFY(batch.commit());
            QCOMPARE(data.checkSoundness(), QString());
            QCOMPARE(
                data.openRecordset(u"select id from cnt_main where name='ángel'").count(), 2 * (round + 1));
        }
    }

    void waitsForAnotherProgram()
    {
        QVERIFY(makeBook(at(u"book"_s)));
        jet::Database one;
        jet::Database two;
        QCOMPARE(one.open(at(u"book"_s)), OpenResult::Opened);
        QCOMPARE(two.open(at(u"book"_s)), OpenResult::Opened);
        watch(one);
        auto theirs = std::make_unique<jet::Batch>(two);
        int calls = 0;
        int rowsSeen = -1;
        one.setWaitHandler([&] {
            rowsSeen = one.openRecordset(u"select id from cnt_main").count();
            if (++calls == 3)
                theirs.reset();
            return calls < 10;
        });
        QVERIFY(save(one, u"waited"_s).ok);
        QVERIFY(calls == 3 && rowsSeen == 0 && !one.lastFailure());
        theirs = std::make_unique<jet::Batch>(two);
        QVERIFY(!save(one, u"gave up"_s));
        QCOMPARE(calls, 10);
        QCOMPARE(m_causes, QList<Cause>{Cause::Locked});
        {
            jet::Batch mine(one);
            QVERIFY(!save(one, u"not begun"_s));
            theirs.reset();
            QVERIFY(!save(one, u"nor that"_s) && !mine.commit());
        }
        QCOMPARE(one.lastFailure()->cause, Cause::Locked);
        QCOMPARE(one.openRecordset(u"select name from cnt_main").count(), 1);
        QVERIFY(save(one, u"free"_s) && !one.lastFailure());
    }

    void strangeFile()
    {
        const QString path = at(u"strange"_s);
        QProcess maker;
        maker.start(u"sqlite3"_s,
            {path,
                u"create table cnt_main(id integer primary key, name text, flag yesnoint);"
                "create table log(name text); create view friends as select * from cnt_main;"
                "insert into cnt_main values(1,'Ann',0),(2,'Bo',-1);"
                "create trigger spy after update on cnt_main begin insert into log values('x'); end;"_s});
        if (!maker.waitForFinished() || maker.exitCode() != 0)
            QSKIP("no sqlite3 to make a file that is not ours");
        const QByteArray before = contents(path);
        jet::Database data;
        QCOMPARE(data.open(path), OpenResult::Opened);
        QCOMPARE(data.openRecordset(u"select name from cnt_main").textAt(0), u"Ann"_s);
        // Others write a yes as -1.
        QCOMPARE(data.openRecordset(u"select name from cnt_main where flag=true").textAt(0), u"Bo"_s);
        QCOMPARE(data.openRecordset(u"select name from cnt_main where flag=false").textAt(0), u"Ann"_s);
        QVERIFY(!data.openRecordset(u"select * from friends").isValid());
        QVERIFY(!data.tables().contains(u"friends"_s));
        data.close();
        QCOMPARE(contents(path), before);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"strange"_s});
        QCOMPARE(data.open(path), OpenResult::Opened);
        QVERIFY(data.execute(u"update cnt_main set flag=true"));
        QVERIFY(data.openRecordset(u"select * from log").isEmpty());
    }

    void twoConnectionsWriteInTurn()
    {
        QVERIFY(makeBook(at(u"book"_s)));
        jet::Database one;
        jet::Database two;
        QCOMPARE(one.open(at(u"book"_s)), OpenResult::Opened);
        QCOMPARE(two.open(at(u"book"_s)), OpenResult::Opened);
        for (int i = 0; i < 20; ++i) {
            QVERIFY(save(i % 2 ? one : two, u"%1"_s.arg(i)).ok);
            QCOMPARE((i % 2 ? two : one).openRecordset(u"select id from cnt_main").count(), i + 1);
        }
        jet::Recordset rows = one.openRecordset(u"select * from cnt_main where id > 3 order by id");
        QVERIFY(rows.moveTo(1));
        QVERIFY(two.execute(u"update cnt_main set name='two' where id=5").ok);
        QCOMPARE(rows.textOrEmpty(u"name"), u"two"_s);
        QVERIFY(two.applySchema(smallSchema(14), u"data"_s));
        QVERIFY(one.execute(u"insert into later (to) values ('x')").ok);
        QVERIFY(two.execute(u"drop table later").ok);
        QVERIFY(!one.execute(u"insert into later (to) values ('x')").ok);
        QVERIFY(save(one, u"still"_s).ok);
    }

private:
    QString at(const QString& name) const { return m_folder->filePath(name); }
    void watch(jet::Database& data)
    {
        m_causes.clear();
        data.setFailureHandler([this](const jet::Failure& failure) { m_causes << failure.cause; });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QList<Cause> m_causes;
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--save-for-ever")
        return saveForEver(arguments.value(2));
    if (arguments.value(1) == u"--fill-up")
        return fillUp(arguments.value(2));
    StorageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "storage_test.moc"
