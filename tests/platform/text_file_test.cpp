#include <QStringDecoder>
#include <QStringEncoder>
#include <QtTest>

#include "platform/cp1252.h"
#include "platform/text_file.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using namespace platform;

class TextFileTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void codePage()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += char(byte);
        QCOMPARE(toCp1252(fromCp1252(all)), all);

        QStringDecoder judge("windows-1252");
        if (!judge.isValid())
            QSKIP("this Qt has no code page to compare with");
        const QString expected = judge.decode(all);
        QCOMPARE(fromCp1252(all), expected);
    }

    void write_data()
    {
        support::columns<QString, QByteArray>("text", "bytes");
        QTest::newRow("nothing") << u""_s << QByteArray();
        QTest::newRow("line ends") << u"a\nb\r\nc\rd\n\n"_s << QByteArray("a\r\nb\r\nc\r\nd\r\n\r\n");
        QTest::newRow("code page") << u"£5 – €6 “é”"_s
                                   << QByteArray("\xA3"
                                                 "5 \x96 \x80"
                                                 "6 \x93\xE9\x94");
        QTest::newRow("not in the code page") << u"नाB"_s << QByteArray("??B");
        QTest::newRow("one mark for one character") << u"a😀b"_s << QByteArray("a?b");
        QTest::newRow("hidden by a byte's number") << QString(QChar(0x80)) << QByteArray("?");
    }

    void write()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.txt"_s);
        QVERIFY(writeText(path, u"what was there before"));
        QVERIFY(writeText(path, text));
        QCOMPARE(support::bytesOf(path), bytes);
    }

    // Also when all of the text is too short to be written before the end.
    void fullDisk()
    {
        const QTemporaryDir folder;
        const QString path = support::put(folder.filePath(u"a.txt"_s), "old");
        {
            const support::FullDisk full(10);
            QVERIFY(!writeText(path, QString(100, u'x')));
            TextFileWriter lines(path);
            QVERIFY(lines.isOpen() && lines.writeLine(QString(100, u'x')));
            QVERIFY(!lines.commit() && !lines.whyNot().isEmpty());
        }
        QCOMPARE(support::bytesOf(path), "old");
    }

    void read()
    {
        const QTemporaryDir folder;
        const QString path = support::put(folder.filePath(u"a.txt"_s), "\xE9\r\nb\nc\rd");
        QCOMPARE(readText(path), u"é\nb\nc\rd"_s);

        // One byte above the bound; the file is sparse.
        QVERIFY(QFile::resize(path, 64 * 1024 * 1024 + 1));
        QVERIFY(!readText(path));
    }

    // A short text is still in memory when the file is put in place.
    void fullDiskLeavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString file = support::put(folder.filePath(u"a.txt"_s), "old");
        {
            const support::FullDisk full(0);
            QVERIFY(!writeText(file, u"new"));
        }
        QCOMPARE(support::bytesOf(file), "old");
    }

    void failures()
    {
        const QTemporaryDir folder;
        QVERIFY(!readText(folder.filePath(u"missing"_s)));
        QVERIFY(!readText(folder.path()));
        QVERIFY(!readText(QString()));
        QVERIFY(!readText(u"/dev/null"_s)); // no plain file
        QVERIFY(!writeText(QString(), u"x"));
        QVERIFY(!writeText(folder.filePath(u"no/such/a.txt"_s), u"x"));
        QVERIFY(!writeText(folder.path(), u"x"));
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TextFileTest)
#include "text_file_test.moc"
