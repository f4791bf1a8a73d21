#include <QtTest>

#include "core/store/backups.h"
#include "core/store/book_files.h"
#include "jet/database.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using namespace core;
using support::bytesOf;
using support::put;

class BackupsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book.close();
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = path(u"program/Orvanedata.dll"_s);
        QDir().mkpath(path(u"program"_s));
        QVERIFY(BookFiles::makeNew(m_file, BookPart::Data, false));
        QCOMPARE(m_book.open(m_file), jet::Database::OpenResult::Opened);
        add(u"Asha"_s);
    }

    void onlyWhenSomethingChanged()
    {
        QCOMPARE(backUp(m_today), BackupResult::Made);
        QCOMPARE(backUp(m_today.addDays(1)), BackupResult::NotNeeded);
        QCOMPARE(backUp(m_today, u"Bela"_s), BackupResult::Made);
        QCOMPARE(names(daily(m_today)), QStringList{u"Asha"_s});
        // One file each: no log, no unfinished copy.
        QCOMPARE(backups(), (QStringList{u"Orvanedata-2026-06-15-2.dll"_s, u"Orvanedata-2026-06-15.dll"_s}));
        const Backup newest = listBackups(path(u"backup"_s)).first();
        QCOMPARE(newest.contacts, 2);
        QCOMPARE(newest.bytes, QFileInfo(newest.path).size());
        QVERIFY(describedBackup(newest).contains(u"2 contacts"));
        // A restored book is as it was, and the next copy is the newest all the same.
        m_book.close();
        QVERIFY(restore(daily(m_today), m_file, m_now));
        QCOMPARE(m_book.open(m_file), jet::Database::OpenResult::Opened);
        QVERIFY(!m_book.tables().contains(u"OV_Copy"_s));
        QCOMPARE(backUp(m_today, u"Chand"_s), BackupResult::Made);
        QVERIFY(listBackups(path(u"backup"_s)).first().path.endsWith(u"-3.dll"));
    }

    void rotationKeepsTenAndTouchesNothingElse()
    {
        const QStringList foreign{u"Orvanedata-2001-01-01.dll.bak"_s, u"Orvanedata-2001-13-01.dll"_s,
            u"Orvanedata-version-0.dll"_s, u"My Orvanedata-2001-01-01.dll"_s,
            u"Orvanedata-2001-01-01 (1).dll"_s, u"Orvaneinfo-2001-01-01.dll"_s, u"notes.txt"_s};
        for (const QString& name : foreign)
            put(path(u"backup/"_s + name), "mine");
        for (int i = 0; i < 14; ++i)
            QCOMPARE(backUp(m_today.addDays(i * 3), u"B"_s), BackupResult::Made);
        for (const QString& name : foreign)
            QCOMPARE(bytesOf(path(u"backup/"_s + name)), "mine");
        QCOMPARE(backups().size(), foreign.size() + 10);
        const QList<Backup> listed = listBackups(path(u"backup"_s));
        QCOMPARE(listed.size(), 10);
        QCOMPARE(listed.first().made.date(), m_today.addDays(13 * 3));
        QCOMPARE(listed.last().made.date(), m_today.addDays(4 * 3));
    }

    // The two kinds do not push one another out, and both can be restored.
    void copyBeforeADeletion()
    {
        const QString folder = path(u"backup"_s);
        QVERIFY(backUp(m_today) == BackupResult::Made);
        for (int i = 0; i < 7; ++i)
            QVERIFY(keepBeforeDeletion(m_book, folder, m_now)); // all within a second
        QCOMPARE(backups().size(), 1 + 5);
        for (int day = 1; day <= 12; ++day)
            backUp(m_today.addDays(day), u"B"_s);
        QCOMPARE(backups().filter(u"before-deletion"_s).size(), 5);
        QCOMPARE(backups().size(), 10 + 5);

        const Backup newest = listBackups(folder)[10];
        QVERIFY(newest.beforeDeletion && newest.number == 8);
        m_book.close();
        QVERIFY(restore(newest.path, m_file, m_now));
        QCOMPARE(names(m_file), QStringList{u"Asha"_s});
    }

    void wrongClocks_data()
    {
        // days: of each start with a change, from the first day on
        support::columns<QList<int>, int>("days", "copies");
        QTest::newRow("set back by years") << QList<int>{0, 1, 2, -2000} << 4;
        QTest::newRow("one start in ten years' time") << QList<int>{0, 3650, 1, 2} << 4;
        QTest::newRow("it stands still") << QList<int>(14, 0) << 10;
        QTest::newRow("one a month stays")
            << QList<int>{0, 1, 31, 62, 92, 93, 94, 95, 96, 97, 98, 99, 100, 101, 102} << 13;
        QTest::newRow("ten starts in a day leave the days before")
            << QList<int>{0, 1, 2, 3, 4, 5, 5, 5, 5, 5, 5, 5, 5, 5} << 10;
    }

    void wrongClocks()
    {
        QFETCH(const QList<int>, days);
        for (qsizetype i = 0; i < days.size(); ++i)
            QCOMPARE(backUp(m_today.addDays(days[i]), u"start %1"_s.arg(i)), BackupResult::Made);
        const QList<Backup> listed = listBackups(path(u"backup"_s));
        QTEST(int(listed.size()), "copies");
        // The newest is the last that was made, and the first of all days but the oldest ones is there.
        QCOMPARE(names(listed.first().path).last(), u"start %1"_s.arg(days.size() - 1));
        QVERIFY(names(listed[1].path).size() < names(listed[0].path).size());
        if (days.contains(5))
            QCOMPARE(listed.last().made.date(), m_today);
    }

    // Damage in the book must not push the good copies out, one a day.
    void damagedBookIsNoBackup()
    {
        QCOMPARE(backUp(m_today), BackupResult::Made);
        m_book.close();
        QByteArray damaged = bytesOf(m_file);
        constexpr int kTail = 6 * 4096;
        damaged.replace(damaged.size() - kTail, kTail, QByteArray(kTail, 'Z'));
        put(m_file, damaged);
        QCOMPARE(m_book.open(m_file), jet::Database::OpenResult::Opened);
        const BackupResult result = backUp(m_today.addDays(1));
        QCOMPARE(result, BackupResult::BookUnsound);
        // What can be read stands beside, once for the same damage, and is no backup.
        QCOMPARE(backUp(m_today.addDays(2)), BackupResult::BookUnsound);
        QCOMPARE(backups(),
            (QStringList{u"Orvanedata-2026-06-15.dll"_s, u"Orvanedata-damaged-2026-06-16-090000.dll"_s}));
        QVERIFY(damagedCopy(path(u"backup"_s)).endsWith(backups().last()));
        QCOMPARE(listBackups(path(u"backup"_s)).size(), 1);
    }

    void noRoom()
    {
        put(path(u"backup"_s), "a file where the folder should be");
        QCOMPARE(backUp(m_today), BackupResult::Failed);
        QCOMPARE(bytesOf(path(u"backup"_s)), "a file where the folder should be");
        QVERIFY(listBackups(path(u"backup"_s)).isEmpty());
    }

    // Newest first, but over a cut copy and one that is rotten inside.
    void lastGood()
    {
        QVERIFY(!lastGoodBackup(path(u"backup"_s)));
        for (int i = 0; i < 3; ++i)
            backUp(m_today.addDays(i), u"B"_s);
        const QByteArray whole = bytesOf(daily(m_today));
        put(daily(m_today.addDays(3)), whole.left(whole.size() / 3));
        QByteArray rotten = whole;
        rotten.replace(3 * 4096, 9 * 4096, QByteArray(9 * 4096, 'Z'));
        put(daily(m_today.addDays(2)), rotten);
        QCOMPARE(lastGoodBackup(path(u"backup"_s)).value().path, daily(m_today.addDays(1)));
        QCOMPARE(bytesOf(daily(m_today.addDays(2))), rotten);
    }

    void restoreKeepsThePresentFile()
    {
        backUp(m_today);
        add(u"Bela"_s);
        m_book.close();
        for (int round = 1; round <= 2; ++round) {
            const Restored restored = restore(daily(m_today), m_file, m_now);
            QVERIFY2(restored, qPrintable(restored.reason));
            QCOMPARE(names(m_file), QStringList{u"Asha"_s});
            QCOMPARE(kept().size(), round);
        }
        QCOMPARE(kept().first(), u"Orvanedata-replaced-2026-06-15-103000-2.dll"_s);
        QCOMPARE(names(path(u"program/Orvanedata-replaced-2026-06-15-103000.dll"_s)),
            (QStringList{u"Asha"_s, u"Bela"_s}));
        QCOMPARE(names(daily(m_today)), QStringList{u"Asha"_s});
        // The restored file is a book that is written to, whatever rights the copy had.
        QCOMPARE(m_book.open(m_file), jet::Database::OpenResult::Opened);
        QVERIFY(m_book.execute(u"insert into cnt_main (name) values ('Chand')"_s));
    }

    // The log of the replaced book holds its newest rows: it goes with it and is not played into the copy.
    void restoreOverDamageWithALog()
    {
        backUp(m_today);
        add(u"Bela"_s);
        const QByteArray file = bytesOf(m_file);
        const QByteArray log = bytesOf(m_file + u"-wal"_s);
        QVERIFY(!log.isEmpty());
        m_book.close();
        put(m_file, file);
        put(m_file + u"-wal"_s, log);

        const Restored restored = restore(daily(m_today), m_file, m_now);
        QVERIFY(restored);
        QCOMPARE(bytesOf(restored.keptFile), file);
        QCOMPARE(bytesOf(restored.keptFile + u"-wal"_s), log);
        QCOMPARE(names(m_file), QStringList{u"Asha"_s});
        QCOMPARE(names(restored.keptFile), (QStringList{u"Asha"_s, u"Bela"_s}));
    }

    void restoreWithoutAPresentFile()
    {
        backUp(m_today);
        m_book.close();
        QVERIFY(QFile::remove(m_file));
        // The log of a lost book is all that is left of it.
        put(m_file + u"-wal"_s, "newest rows");
        const Restored restored = restore(daily(m_today), m_file, m_now);
        QVERIFY(restored);
        QCOMPARE(restored.keptFile, QString());
        QCOMPARE(bytesOf(path(u"program"_s) + u'/' + kept().value(0)), "newest rows");
        QCOMPARE(names(m_file), QStringList{u"Asha"_s});
    }

    void restoreFails_data()
    {
        support::columns<QByteArray, bool>("backup", "copyFails");
        QTest::newRow("backup cut short") << QByteArray("SQLite format 3") << false;
        QTest::newRow("backup is a text") << QByteArray("hello") << false;
        QTest::newRow("backup is gone") << QByteArray() << false;
        QTest::newRow("no room for the copy") << QByteArray("whole") << true;
    }

    void restoreFails()
    {
        QFETCH(const QByteArray, backup);
        QFETCH(const bool, copyFails);
        if (backup == "whole")
            backUp(m_today);
        else if (!backup.isEmpty())
            put(daily(m_today), backup);
        m_book.close();
        const QByteArray before = bytesOf(m_file);
        const QStringList filesBefore = QDir(path(u"program"_s)).entryList(QDir::Files);
        if (copyFails)
            QDir().mkpath(m_file + u".new/in the way"_s);
        const Restored restored = restore(daily(m_today), m_file, m_now);
        QVERIFY(!restored);
        QVERIFY(!restored.reason.isEmpty());
        QCOMPARE(bytesOf(m_file), before);
        QCOMPARE(QDir(path(u"program"_s)).entryList(QDir::Files), filesBefore);
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString daily(QDate day) const
    {
        return path(u"backup/Orvanedata-"_s + day.toString(Qt::ISODate) + u".dll"_s);
    }

    QStringList backups() const { return QDir(path(u"backup"_s)).entryList(QDir::Files, QDir::Name); }
    QStringList kept() const
    {
        return QDir(path(u"program"_s)).entryList({u"*-replaced-*"_s}, QDir::Files, QDir::Name);
    }

    void add(const QString& name)
    {
        m_book.execute(u"insert into cnt_main (name) values ('"_s + name + u"')"_s);
    }

    BackupResult backUp(QDate day, const QString& newName = {})
    {
        if (!newName.isEmpty())
            add(newName);
        return backUpIfChanged(m_book, path(u"backup"_s), QDateTime(day, QTime(9, 0)));
    }

    static QStringList names(const QString& path)
    {
        jet::Database database;
        if (database.open(path) != jet::Database::OpenResult::Opened)
            return {u"not opened"_s};
        QStringList all;
        for (auto rows = database.openRecordset(u"select name from cnt_main order by id"_s); !rows.eof();
             rows.moveNext())
            all << rows.textOrEmpty(u"name");
        return all;
    }

    const QDate m_today{2026, 6, 15};
    const QDateTime m_now{m_today, QTime(10, 30)};
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    jet::Database m_book;
};

QTEST_GUILESS_MAIN(BackupsTest)
#include "backups_test.moc"
