#include <QtTest>

#include "core/date_patterns.h"
#include "core/text_export.h"
#include "platform/folder_drive.h"
#include "support/disk.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace core;
using Outcome = TextSaved::Outcome;

/// Contacts of the book as text files, byte by byte.
class TextExportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<support::TestBook>();
        m_root = std::make_unique<QTemporaryDir>();
        m_drive = std::make_unique<platform::FolderDrive>(m_root->path(), m_book->folder());
    }

    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    // Kept: "Zip-" one blank short, the e-mail of the other work address, a country before its pin, and the
    // birthday of a kid in brackets where all contacts stand.
    void layouts()
    {
        addFull();
        QCOMPARE(SaveRecordText(to(), 1).outcome, Outcome::Written);
        QCOMPARE(file(u"Details of   Zoé Ray.txt"_s), golden(u"text_single.txt"_s));
        QCOMPARE(SaveSelectedText(to(), u"1"_s).path, u"C:\\Desktop\\Multiple Selected Address.txt"_s);
        QCOMPARE(file(u"Multiple Selected Address.txt"_s), golden(u"text_selected.txt"_s));
        add(u"'Ann'"_s);
        QCOMPARE(SaveAllText(to()).contacts, 2);
        QCOMPARE(file(u"All Contact Address.txt"_s), golden(u"text_all.txt"_s));
        // Kept: without labels it is the same file, and nobody is asked.
        QCOMPARE(SaveAllTextShort(to()).outcome, Outcome::Written);
        QCOMPARE(file(u"All Contact Address.txt"_s), golden(u"text_plain.txt"_s));
        QCOMPARE(files().size(), 3);
    }

    void datesGoByTheCountry()
    {
        execute(u"insert into cnt_main (Name, M_BD) values ('Ann', #05-Mar-1980#)"_s);
        SaveRecordText(to(false), 1);
        QVERIFY(file(u"Details of   Ann.txt"_s).contains("\r\nBirthday-           Mar 05-1980\r\n"));
    }

    void hostileNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("outcome");
        for (const QString& name : {u"../../x"_s, u"..\\x"_s, u"C:x"_s, u"a\nb"_s, u"<b>&"_s})
            QTest::newRow(qPrintable(u"no file name: "_s + name.simplified()))
                << name << int(Outcome::BadName);
        QTest::newRow("too long for a file") << QString(10'000, u'x') << int(Outcome::Failed);
        QTest::newRow("of a device, but not alone") << u"CON"_s << int(Outcome::Written);
        QTest::newRow("dots") << u".."_s << int(Outcome::Written);
        QTest::newRow("nobody") << u" "_s << int(Outcome::Written);
    }

    void hostileNames()
    {
        QFETCH(QString, name);
        QFETCH(int, outcome);
        add(u'\'' + name + u'\'');
        const TextSaved saved = SaveRecordText(to(), 1);
        QCOMPARE(int(saved.outcome), outcome);
        QCOMPARE(files().size(), saved.outcome == Outcome::Written ? 1 : 0);
        QCOMPARE(saved.why, saved.outcome == Outcome::Failed ? u"the name is too long"_s : QString());
        QCOMPARE(QDir(m_root->path()).entryList(QDir::Files), QStringList());
        // In the file of all, the name is no obstacle, and stays on its line.
        SaveAllText(to());
        const QByteArray all = file(u"All Contact Address.txt"_s);
        QCOMPARE(all.count("\r\n"), 30);
        QVERIFY(
            all.contains("\r\nName-           " + QString(name).replace(u'\n', u' ').toLatin1() + "\r\n"));
    }

    void nobody()
    {
        support::put(m_root->filePath(u"Desktop/All Contact Address.txt"_s), "old");
        QCOMPARE(SaveRecordText(to(), 7).outcome, Outcome::NoContacts);
        QCOMPARE(SaveSelectedText(to(), {}).outcome, Outcome::NoContacts);
        QCOMPARE(SaveAllText(to()).outcome, Outcome::NoContacts);
        QCOMPARE(file(u"All Contact Address.txt"_s), "old");
        QCOMPARE(files().size(), 1);
    }

    // Whatever stops the work leaves the old file whole, and nothing beside it.
    void oldFileStays_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<int>("stopAfter");
        QTest::addColumn<int>("outcome");
        QTest::newRow("full disk from the start") << 0 << -1 << int(Outcome::Failed);
        QTest::newRow("full disk in the middle") << 100'000 << -1 << int(Outcome::Failed);
        QTest::newRow("stopped") << -1 << 50 << int(Outcome::Stopped);
    }

    void oldFileStays()
    {
        QFETCH(int, bytes);
        QFETCH(int, stopAfter);
        QFETCH(int, outcome);
        addMany(600);
        support::put(m_root->filePath(u"Desktop/All Contact Address.txt"_s), "old");
        const auto progress = [stopAfter](int done) { return stopAfter < 0 || done < stopAfter; };
        TextSaved saved;
        {
            const std::optional<support::FullDisk> full
                = bytes < 0 ? std::nullopt : std::optional<support::FullDisk>(std::in_place, rlim_t(bytes));
            saved = SaveAllText(to(), progress);
        }
        QCOMPARE(int(saved.outcome), outcome);
        QCOMPARE(saved.why.isEmpty(), saved.outcome != Outcome::Failed);
        QCOMPARE(file(u"All Contact Address.txt"_s), "old");
        QCOMPARE(files(), QStringList{u"All Contact Address.txt"_s});
    }

    void longListOfIds()
    {
        addMany(600);
        QStringList ids;
        for (int id = 1; id <= 600; ++id)
            ids << QString::number(id);
        QCOMPARE(SaveSelectedText(to(), ids.join(u',')).contacts, 600);
        QCOMPARE(file(u"Multiple Selected Address.txt"_s).count("Details of   "), 600);
    }

private:
    TextExport to(bool nationalMode = true)
    {
        return {m_book->data(), *m_drive, u"C:\\Desktop"_s, datePattern(nationalMode)};
    }

    void execute(const QString& sql)
    {
        if (!m_book->data().execute(sql))
            qFatal("not executed: %s", qPrintable(sql));
    }
    void add(const QString& name) { execute(u"insert into cnt_main (Name) values ("_s + name + u')'); }
    void addMany(int contacts)
    {
        QList<QStringList> rows;
        for (int i = 0; i < contacts; ++i)
            rows << QStringList{u"Person %1"_s.arg(i)};
        QVERIFY(m_book->data().appendRows(u"cnt_main"_s, {u"Name"_s}, rows));
    }

    /// Each column holds its own name, so a value in a wrong place shows.
    void addFull()
    {
        const QStringList columns{u"Spouse"_s, u"category1"_s, u"category2"_s, u"Priority"_s, u"Product"_s,
            u"h_add1"_s, u"h_add2"_s, u"h_city"_s, u"h_state"_s, u"h_pin"_s, u"h_country"_s, u"H_Ph1"_s,
            u"h_ph2"_s, u"h_ph3"_s, u"H_email1"_s, u"h_email2"_s, u"w_add1"_s, u"w_add2"_s, u"w_city"_s,
            u"w_State"_s, u"w_pin"_s, u"w_country"_s, u"w_Ph1"_s, u"w_Ph2"_s, u"w_ph3"_s, u"w_email1"_s,
            u"b_email1"_s, u"b_email2"_s, u"b_add1"_s, u"b_add2"_s, u"b_city"_s, u"b_state"_s, u"b_country"_s,
            u"b_pin"_s, u"B_Ph1"_s, u"B_Ph2"_s, u"B_ph3"_s, u"Mobile"_s, u"SP_Mobile"_s, u"kid1"_s, u"kid2"_s,
            u"kid3"_s};
        execute(u"insert into cnt_main (Name, Company, "_s + columns.join(u", "_s)
            + u", M_BD, Sp_BD, Anniv, Kid1_BD, Kid2_BD, Kid3_BD) values ('Zoé Ray', 'Company & <Co>', '"_s
            + columns.join(u"', '"_s)
            + u"', #05-Mar-1980#, #06-Apr-1981#, #07-May-2001#, #08-Jun-2002#, #09-Jul-2003#, #10-Aug-2004#)"_s);
    }

    QByteArray file(const QString& name) const
    {
        return support::bytesOf(m_root->filePath(u"Desktop/"_s + name));
    }
    static QByteArray golden(const QString& name)
    {
        return support::bytesOf(QStringLiteral(ORVANE_SOURCE_DIR "/tests/core/data/") + name);
    }
    QStringList files() const
    {
        return QDir(m_root->filePath(u"Desktop"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<support::TestBook> m_book;
    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<platform::FolderDrive> m_drive;
};

QTEST_GUILESS_MAIN(TextExportTest)
#include "text_export_test.moc"
