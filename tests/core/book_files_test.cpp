#include <QtTest>

#include "core/store/book_files.h"
#include "core/store/book_schema.h"
#include "jet/database.h"
#include "support/columns.h"
#include "support/disk.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace core;
using support::bytesOf;
using support::put;
using Fault = BookReport::Fault;

class BookFilesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void firstStart()
    {
        for (const bool national : {true, false}) {
            init();
            QVERIFY(files().makeMissing(national));
            jet::Database data;
            jet::Database info;
            const BookReport report = files().openData(data);
            QVERIFY2(report, qPrintable(report.text));
            QVERIFY(files().openInfo(info));

            const jet::Recordset setup = data.openRecordset(u"select * from ov_Setup"_s);
            QCOMPARE(setup.count(), 1);
            QCOMPARE(setup.flag(u"national"), national);
            QCOMPARE(data.openRecordset(u"select * from cntb_setup"_s).count(), 1);
            QVERIFY(data.openRecordset(u"select id from cnt_main"_s).isEmpty());
            QVERIFY(!info.openRecordset(u"select city from WIA_INDIA where city='Mumbai'"_s).isEmpty());
            QVERIFY(!info.openRecordset(u"select id from WIA_GLOBALMAS where country='United States'"_s)
                         .isEmpty());
            QVERIFY(data.openRecordset(u"select city from CNT_TOPCITIES where city<>null"_s).isEmpty());
            QVERIFY(
                !data.openRecordset(u"select city from CNT_TOPCITIES where city is not null"_s).isEmpty());
            QCOMPARE(data.version(), kSchemaVersion);
            QCOMPARE(info.version(), kSchemaVersion);
            const QStringList left
                = QDir(path(u"program"_s)).entryList({u"*.new*"_s}, QDir::Files | QDir::Hidden);
            QCOMPARE(left, QStringList());
        }
    }

    void everyShippedRowArrives()
    {
        files().makeMissing(false);
        jet::Database databases[2];
        QVERIFY(files().openData(databases[0]));
        QVERIFY(files().openInfo(databases[1]));
        const BookPart parts[] = {BookPart::Data, BookPart::Information};
        for (int i = 0; i < 2; ++i) {
            const auto shipped = shippedRows(parts[i]);
            QVERIFY(shipped.size() > 5);
            for (const ShippedRows& rows : shipped) {
                const QString count = u"select count(*) as n from ["_s + rows.table + u']';
                QVERIFY2(!rows.rows.isEmpty(), qPrintable(rows.table));
                QCOMPARE(databases[i].openRecordset(count).number(u"n"), rows.rows.size());
            }
        }
    }

    void shippedPlacesFitTheirFields()
    {
        const QHash<QString, QStringList> fields{
            {u"country"_s, {u"h_country"_s, u"b_country"_s, u"w_country"_s}},
            {u"state"_s, {u"h_state"_s, u"b_state"_s, u"w_State"_s}},
            {u"city"_s, {u"h_city"_s, u"b_city"_s, u"w_city"_s}},
            {u"std"_s, {u"h_std"_s, u"B_std"_s, u"W_std"_s}},
            {u"jobtitle"_s, {u"Job_Title"_s, u"AltTitle"_s}}};
        const jet::Schema schema = core::bookSchema();
        int looked = 0;
        for (const auto part : {core::BookPart::Data, core::BookPart::Information}) {
            for (const core::ShippedRows& shipped : core::shippedRows(part)) {
                for (const QStringList& row : shipped.rows) {
                    for (qsizetype i = 0; i < row.size(); ++i) {
                        for (const QString& field : fields.value(shipped.columns[i].toLower())) {
                            ++looked;
                            if (row[i].size() > schema.textSize(u"cnt_main", field))
                                QFAIL(qPrintable(row[i] + u" in "_s + field));
                        }
                    }
                }
            }
        }
        QVERIFY(looked > 1000);
    }

    // Killed at several moments of the making, the folder holds no half database, and the next start makes it
    // whole.
    void killedWhileMaking()
    {
        for (const int milliseconds : {2, 10, 25, 60, 150}) {
            init();
            const pid_t child = ::fork();
            QVERIFY(child >= 0);
            if (child == 0) {
                files().makeMissing(true);
                ::_exit(0);
            }
            QTest::qSleep(milliseconds);
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);

            for (const QString& file : {files().dataFile(), files().infoFile()}) {
                jet::Database made;
                if (QFileInfo::exists(file)) {
                    QCOMPARE(made.open(file), jet::Database::OpenResult::Opened);
                    QCOMPARE(made.version(), kSchemaVersion);
                    QCOMPARE(made.checkSoundness(), QString());
                }
            }
            QVERIFY(files().makeMissing(true));
            jet::Database data;
            QVERIFY(files().openData(data));
            QVERIFY(data.openRecordset(u"select * from ov_setup"_s).flag(u"national"));
        }
    }

    void folderThatCanNotBeWritten()
    {
        put(path(u"program"_s), "a file where the folder should be");
        QVERIFY(!files().makeMissing(false));
        jet::Database data;
        QCOMPARE(files().openData(data).fault, Fault::Missing);
    }

    void neverOverwritten()
    {
        QDir().mkpath(path(u"program"_s));
        put(files().dataFile(), "somebody's file");
        put(files().infoFile(), "");
        QVERIFY(files().makeMissing(true));
        QCOMPARE(bytesOf(files().dataFile()), "somebody's file");
        QCOMPARE(bytesOf(files().infoFile()), "");
        QVERIFY(!BookFiles::makeNew(files().dataFile(), BookPart::Data, true));
        QCOMPARE(bytesOf(files().dataFile()), "somebody's file");
    }

    void missingBook_data()
    {
        support::columns<bool, bool, bool>("markerGone", "backups", "madeAnew");
        QTest::newRow("had a book here") << false << false << false;
        QTest::newRow("program's folder emptied, backups left") << true << true << false;
        QTest::newRow("nothing tells of a book") << true << false << true;
    }

    void missingBook()
    {
        QFETCH(const bool, markerGone);
        QFETCH(const bool, backups);
        QFETCH(const bool, madeAnew);
        files().makeMissing(false);
        if (backups) {
            QDir().mkpath(path(u"backup"_s));
            QVERIFY(QFile::copy(files().dataFile(), path(u"backup/Orvanedata-2026-06-15.dll"_s)));
        }
        QVERIFY(QFile::remove(files().dataFile()));
        if (markerGone)
            QVERIFY(QDir(path(u"program"_s)).removeRecursively());

        files().makeMissing(false);
        QCOMPARE(QFileInfo::exists(files().dataFile()), madeAnew);
        jet::Database data;
        const BookReport report = files().openData(data);
        QCOMPARE(report.fault, madeAnew ? Fault::None : Fault::Missing);
        QCOMPARE(report.text.contains(u"Orvanedata.dll"_s), !madeAnew);
    }

    void missingInformation()
    {
        files().makeMissing(false);
        const QByteArray book = bytesOf(files().dataFile());
        QVERIFY(QFile::remove(files().infoFile()));
        QVERIFY(files().makeMissing(true));
        jet::Database info;
        QVERIFY(files().openInfo(info));
        QCOMPARE(bytesOf(files().dataFile()), book);
    }

    void nameInAnotherCase()
    {
        files().makeMissing(false);
        QVERIFY(QFile::rename(files().dataFile(), path(u"program/ORVANEDATA.Dll"_s)));
        jet::Database data;
        QVERIFY(files().openData(data));
        files().makeMissing(false);
        QCOMPARE(QDir(path(u"program"_s)).entryList({u"orvanedata.dll"_s}, QDir::Files).size(), 1);
    }

    void faults_data()
    {
        using Damage = std::function<QByteArray(QByteArray)>;
        support::columns<Damage, Fault>("damage", "fault");
        QTest::newRow("empty file") << Damage([](const QByteArray&) { return QByteArray(); })
                                    << Fault::CutShort;
        QTest::newRow("ends in its head")
            << Damage([](const QByteArray& b) { return b.left(50); }) << Fault::CutShort;
        QTest::newRow("half is there")
            << Damage([](const QByteArray& b) { return b.left(b.size() / 2); }) << Fault::CutShort;
        QTest::newRow("last byte missing")
            << Damage([](const QByteArray& b) { return b.chopped(1); }) << Fault::CutShort;
        QTest::newRow("a text") << Damage([](const QByteArray&) { return QByteArray("Dear diary"); })
                                << Fault::NotADatabase;
        QTest::newRow("zeros") << Damage([](const QByteArray& b) { return QByteArray(b.size(), '\0'); })
                               << Fault::NotADatabase;
        QTest::newRow("table of contents overwritten")
            << Damage([](QByteArray b) { return b.replace(100, 3000, QByteArray(3000, 'x')); })
            << Fault::Damaged;
        QTest::newRow("next version") << Damage([](QByteArray b) {
            b[63] = char(kSchemaVersion + 1);
            return b;
        }) << Fault::NewerVersion;
        QTest::newRow("version of many years later") << Damage([](QByteArray b) {
            b[60] = 1;
            return b;
        }) << Fault::NewerVersion;
    }

    // A file with a fault is told by name and stays as it is, also when it is looked at twice.
    void faults()
    {
        QFETCH(const std::function<QByteArray(QByteArray)>, damage);
        QFETCH(const Fault, fault);
        files().makeMissing(false);
        const QByteArray damaged = damage(bytesOf(files().dataFile()));
        put(files().dataFile(), damaged);
        for (int i = 0; i < 2; ++i) {
            files().makeMissing(false);
            jet::Database data;
            const BookReport report = files().openData(data);
            QCOMPARE(report.fault, fault);
            QVERIFY2(report.text.contains(u"Orvanedata.dll"_s), qPrintable(report.text));
            QVERIFY(!data.isOpen());
        }
        QCOMPARE(bytesOf(files().dataFile()), damaged);
        QVERIFY(!QFileInfo::exists(files().dataFile() + u"-wal"_s));

        // Another database without our tables is no book either.
        QVERIFY(QFile::remove(files().dataFile()));
        // What stands beside it may be the log of another program.
        QVERIFY(QFile::copy(files().infoFile(), files().dataFile()));
        put(files().dataFile() + u"-journal"_s, "not ours");
        const QByteArray before = bytesOf(files().dataFile());
        jet::Database other;
        QCOMPARE(files().openData(other).fault, Fault::NotADatabase);
        QCOMPARE(bytesOf(files().dataFile() + u"-journal"_s), "not ours");
        QCOMPARE(bytesOf(files().dataFile()), before);
    }

    // After a crash the newest rows, and perhaps the growth of the file, stand in the log beside it.
    void logIsNoCutFile()
    {
        files().makeMissing(false);
        {
            jet::Database crashed;
            QVERIFY(files().openData(crashed));
            QVERIFY(crashed.execute(
                u"insert into cnt_main (name, memo1) values ('Asha', '"_s + QString(20000, u'x') + u"')"_s));
            for (const QString& ending : {u""_s, u"-wal"_s})
                QVERIFY(QFile::copy(files().dataFile() + ending, path(u"copy.dll"_s) + ending));
        }
        QDir().mkpath(path(u"other"_s));
        for (const QString& ending : {u""_s, u"-wal"_s})
            QVERIFY(QFile::rename(path(u"copy.dll"_s) + ending, path(u"other/Orvanedata.dll"_s) + ending));
        jet::Database data;
        QVERIFY(BookFiles(path(u"other"_s), path(u"backup"_s)).openData(data));
        QCOMPARE(data.openRecordset(u"select name from cnt_main"_s).textOrEmpty(u"name"), u"Asha"_s);
    }

    void upgrade()
    {
        const QString file = olderBook();
        const QByteArray before = bytesOf(file);
        jet::Database data;
        const BookReport report = files().openData(data);
        QVERIFY2(report, qPrintable(report.text));
        QCOMPARE(data.version(), kSchemaVersion);
        QVERIFY(data.execute(u"update cnt_main set hobbies='Chess' where name='Asha'"_s));
        QCOMPARE(data.openRecordset(u"select hobbies from cnt_main"_s).textOrEmpty(u"Hobbies"), u"Chess"_s);
        // A new table comes with its rows; one that was there keeps its own.
        QVERIFY(!data.openRecordset(u"select * from CNTB_CATEGORIES"_s).isEmpty());
        const jet::Recordset setup = data.openRecordset(u"select * from ov_setup"_s);
        QCOMPARE(setup.count(), 1);
        QCOMPARE(setup.textOrEmpty(u"key"), u"kept"_s);
        data.close();

        jet::Database kept;
        QCOMPARE(kept.open(path(u"backup/Orvanedata-version-0.dll"_s)), jet::Database::OpenResult::Opened);
        QCOMPARE(kept.version(), 0);
        QVERIFY(!kept.columns(u"cnt_main"_s).contains(u"Hobbies"_s));
        QCOMPARE(kept.openRecordset(u"select name from cnt_main"_s).textOrEmpty(u"name"), u"Asha"_s);
        kept.close();

        // Opened again nothing is to do, and another old book does not take the place of the first copy.
        QVERIFY(files().openData(data));
        data.close();
        put(file, before);
        QVERIFY(files().openData(data));
        QCOMPARE(QDir(path(u"backup"_s)).entryList({u"Orvanedata-version-0*"_s}).size(), 2);
    }

    void upgradeNeedsItsCopy()
    {
        const QString file = olderBook();
        put(path(u"backup"_s), "a file where the folder should be");
        jet::Database data;
        const BookReport report = files().openData(data);
        QCOMPARE(report.fault, Fault::NotUpgraded);
        QVERIFY(!data.isOpen());
        QCOMPARE(data.open(file), jet::Database::OpenResult::Opened);
        QCOMPARE(data.version(), 0);
        QVERIFY(!data.columns(u"cnt_main"_s).contains(u"Hobbies"_s));
    }

    void readOnlyBookIsNotUpgraded()
    {
        if (::geteuid() == 0)
            QSKIP("everything can be written by root");
        const QString file = olderBook();
        const QByteArray before = bytesOf(file);
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
        QVERIFY(QFile::setPermissions(path(u"program"_s), QFile::ReadOwner | QFile::ExeOwner));
        jet::Database data;
        QVERIFY(files().openData(data));
        QCOMPARE(data.openRecordset(u"select name from cnt_main"_s).textOrEmpty(u"name"), u"Asha"_s);
        data.close();
        QFile::setPermissions(path(u"program"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(bytesOf(file), before);
    }

private:
    BookFiles files() const { return {m_folder->filePath(u"program"_s), m_folder->filePath(u"backup"_s)}; }
    QString path(const QString& name) const { return m_folder->filePath(name); }

    /// A book as an earlier version left it: a table, a column and the version number are not there yet.
    QString olderBook() const
    {
        QDir().mkpath(path(u"program"_s));
        const QString file = files().dataFile();
        jet::Schema schema = bookSchema();
        schema.tables.removeIf(
            [](const jet::SchemaTable& table) { return table.name == u"CNTB_CATEGORIES"; });
        for (jet::SchemaTable& table : schema.tables) {
            if (table.name == u"cnt_main")
                table.columns.removeIf(
                    [](const jet::SchemaColumn& column) { return column.name == u"Hobbies"; });
        }
        jet::Database database;
        jet::Database::create(file);
        database.open(file, jet::Database::Kind::Information);
        database.applySchema(schema, u"data"_s);
        database.execute(u"insert into cnt_main (name) values ('Asha')"_s);
        database.execute(u"insert into ov_setup ([key]) values ('kept')"_s);
        return file;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(BookFilesTest)
#include "book_files_test.moc"
