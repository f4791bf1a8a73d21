#include <QtTest>

#include "core/vcard_export.h"
#include "platform/card_folder.h"
#include "platform/folder_drive.h"
#include "support/disk.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace core;

/// Contacts of the book as files on a drive, and a folder of such files as an address book.
class VcardExportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<support::TestBook>();
        m_root = std::make_unique<QTemporaryDir>();
        m_drive = std::make_unique<platform::FolderDrive>(m_root->path(), m_book->folder());
    }

    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    void oneFileAContact()
    {
        add(u"Name"_s, u"'Zoé'"_s);
        add(u"Name"_s, u"'Bob'"_s);
        add(u"Name, Nview"_s, u"'Ann', 'Company'"_s);
        const CardsWritten result = write(u"3,1"_s);
        QCOMPARE(result.written, 2);
        QVERIFY(!result.stopped && result.badNames + result.failed == 0);
        QCOMPARE(files(), (QStringList{u"Ann.vcf"_s, u"Zoé.vcf"_s}));
        const QByteArray card = file(u"Zoé.vcf"_s);
        QVERIFY(card.startsWith("BEGIN:VCARD\r\nVERSION:2.1\r\nN:;;\r\nFN:Zo\xe9\r\n"));
        QVERIFY(card.endsWith("\r\nEnd:VCARD\r\n"));
        QCOMPARE(card.count("\r\n"), 24);
    }

    // Kept: the first work address is the office, the second one the post.
    void everyColumnHasItsPlace()
    {
        const QStringList columns{u"Name"_s, u"Nview"_s, u"Title"_s, u"nick"_s, u"Company"_s, u"Spouse"_s,
            u"w_Ph1"_s, u"w_Ph2"_s, u"w_ph3"_s, u"H_Ph1"_s, u"h_ph2"_s, u"h_ph3"_s, u"Mobile"_s, u"fax"_s,
            u"w_add1"_s, u"w_add2"_s, u"w_city"_s, u"w_State"_s, u"w_pin"_s, u"w_country"_s, u"h_add1"_s,
            u"h_add2"_s, u"h_city"_s, u"h_state"_s, u"h_pin"_s, u"h_country"_s, u"b_add1"_s, u"b_add2"_s,
            u"b_city"_s, u"b_state"_s, u"b_pin"_s, u"b_country"_s, u"H_email1"_s, u"b_email1"_s, u"h_web"_s,
            u"h_email2"_s, u"B_Ph1"_s, u"B_Web"_s};
        add(columns.join(u", "_s) + u", M_BD"_s, u'\'' + columns.join(u"', '"_s) + u"', #05-Mar-1980#"_s);
        write(u"1"_s);
        QCOMPARE(QString::fromLatin1(file(u"Name.vcf"_s)).split(u"\r\n"_s).mid(2, 21).join(u'|'),
            u"N:Nview;Title;|FN:Name|NICKNAME:nick|ORG:Company|SPOUSE:Spouse|TEL;WORK;VOICE:w_Ph1|TEL;WORK;"
            u"VOICE:"
            u"w_Ph2|"
            "TEL;WORK;VOICE:w_ph3|TEL;HOME;VOICE:H_Ph1|TEL;HOME;VOICE:h_ph2|TEL;HOME;VOICE:h_ph3|"
            "TEL;CELL;VOICE:Mobile|TEL;WORK;FAX:fax|ADR;WORK:;office;w_add1 "
            "w_add2;w_city;w_State;w_pin;w_country|"
            "ADR;HOME:;;h_add1 h_add2;h_city;h_state;h_pin;h_country|"
            "ADR;POSTAL:;;b_add1 b_add2;b_city;b_state;b_pin;b_country|BDAY:19800305|"
            "EMAIL;PREF;INTERNET:H_email1|EMAIL;INTERNET:|EMAIL;INTERNET:b_email1|URL:http://h_web"_s);
    }

    void namesStayInTheirFolder()
    {
        for (const QString& name : {u"../up"_s, u"..\\up"_s, u"a/b"_s, u"C:x"_s, u"what?"_s, u"a\nb"_s})
            add(u"Name"_s, u'\'' + name + u'\'');
        add(u"Name"_s, u'\'' + QString(10'000, u'x') + u'\'');
        const CardsWritten result = write(u"1,2,3,4,5,6,7"_s);
        QCOMPARE(result.written, 0);
        QCOMPARE(result.badNames, 7);
        QCOMPARE(result.refused.mid(0, 2), (QStringList{u"../up"_s, u"..\\up"_s}));
        QCOMPARE(files(), QStringList());
        QCOMPARE(QDir(m_root->path()).entryList(QDir::Files), QStringList());
    }

    void cardOfASender()
    {
        QVERIFY(writeSenderCard(*m_drive, u"Zoé\r\nTEL:1"_s, u"z@x"_s) == false); // no file name
        QVERIFY(writeSenderCard(*m_drive, u"Zoé"_s, u"z@x\nTEL:1"_s));
        QCOMPARE(support::bytesOf(m_root->filePath(u"OVUserFiles/VCF/Zoé.vcf"_s)),
            "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Zo\xe9\r\nFN:Zo\xe9\r\nEMAIL;PREF;INTERNET:z@x "
            "TEL:1\r\nEnd:VCARD\r\n");
    }

    void fileOfTheNameIsReplacedInAnyCase()
    {
        add(u"Name, nick"_s, u"'Ann Lee', 'old'"_s);
        write(u"1"_s);
        QVERIFY(m_book->data().execute(u"update cnt_main set name='ANN lee', nick='new'").ok);
        add(u"Name, nick"_s, u"'Ann Lee', 'second'"_s);
        QCOMPARE(write(u"1"_s).written, 1);
        QVERIFY(file(u"Ann Lee.vcf"_s).contains("NICKNAME:new"));
        // Of two with one name the later wins.
        const CardsWritten two = write(u"1,2"_s);
        QCOMPARE(two.written - two.overwritten, 1);
        QCOMPARE(two.shared, QStringList{u"Ann Lee"_s});
        QCOMPARE(files(), QStringList{u"Ann Lee.vcf"_s});
        QVERIFY(file(u"Ann Lee.vcf"_s).contains("NICKNAME:second"));
        // Where a folder has the name, nothing can be written, and nothing is left behind.
        QVERIFY(QDir(m_root->filePath(u"VCF"_s)).mkdir(u"Bob.vcf"_s));
        add(u"Name"_s, u"'Bob'"_s);
        QCOMPARE(write(u"3"_s).failed, 1);
        QCOMPARE(files().size(), 1);
        // No list, nobody, no ids.
        m_book->expectFailure(u"in ( 1,x y)"_s);
        for (const QString& ids : {QString(), u"99"_s, u"1,x y"_s})
            QCOMPARE(write(ids).written, 0);
    }

    // A full disk is no bad name, and is not tried for all the others.
    void fullDisk()
    {
        for (const auto& name : {u"'Ann'"_s, u"'Bob'"_s, u"'Cyd'"_s})
            add(u"Name"_s, name);
        const support::FullDisk full(0);
        const CardsWritten result = write(u"1,2,3"_s);
        QCOMPARE(result.failed + result.badNames + result.written, 1);
        QVERIFY(!result.stoppedBy.isEmpty());
        QCOMPARE(files(), QStringList());
    }

    void longListsAreWrittenWhole()
    {
        QStringList ids;
        QList<QStringList> rows;
        for (int i = 1; i <= 620; ++i) {
            rows << QStringList{u"Person %1"_s.arg(i)};
            ids << QString::number(i);
        }
        QVERIFY(m_book->data().appendRows(u"cnt_main"_s, {u"Name"_s}, rows));
        const CardsWritten stopped = write(ids.join(u','), [](int done) { return done < 100; });
        QVERIFY(stopped.stopped);
        QCOMPARE(stopped.written, 100);
        QCOMPARE(files().size(), 100);
        QCOMPARE(write(ids.join(u',')).written, 620);
        QCOMPARE(files().size(), 620);
    }

    void foldersAreReadInEitherEncoding()
    {
        const auto put = [this](const QString& name, const QByteArray& bytes) {
            support::put(m_root->filePath(u"Cards/"_s + name), bytes);
        };
        const QByteArray filler = "NOTE:" + QByteArray(4000, 'x') + "\r\n";
        put(u"a.vcf"_s, "BEGIN:VCARD\r\nFN:Zo\xe9 \x80\r\n");
        put(u"b.vcf"_s, QByteArray("\xef\xbb\xbf") + "BEGIN:VCARD\r\nFN:Zo\xc3\xa9\r\n");
        put(u"c.vcf"_s, "BEGIN:VCARD\r\n" + filler + "FN:" + QByteArray(500, 'y') + "\r\n");
        put(u"d.vcf"_s, QByteArray(formats::maxCardBytes + 1, 'x'));
        const platform::CardFolder folder(*m_drive, u"C:\\cards");
        QCOMPARE(formats::readCard(folder.text(u"a.vcf"_s)).fullName, u"Zoé €"_s);
        QCOMPARE(formats::cardLabel(folder.beginning(u"b.vcf"_s)), u"Zoé"_s);
        // A line that the first look cuts off is none.
        QCOMPARE(formats::cardLabel(folder.beginning(u"c.vcf"_s)), QString());
        QCOMPARE(formats::cardLabel(folder.text(u"c.vcf"_s)).size(), 500);
        QCOMPARE(folder.text(u"d.vcf"_s), QString());
    }

    void folderListsCardsOnly()
    {
        const QDir root(m_root->path());
        QVERIFY(root.mkpath(u"Cards/dir.vcf"_s));
        for (const QString& name : {u"b.vcf"_s, u"A.VCF"_s, u"note.txt"_s})
            support::put(root.filePath(u"Cards/"_s + name));
        QVERIFY(QFile::link(root.filePath(u"Cards/b.vcf"_s), root.filePath(u"Cards/link.vcf"_s)));
        const platform::CardFolder folder(*m_drive, u"C:\\Cards");
        QCOMPARE(folder.files(), (QStringList{u"A.VCF"_s, u"b.vcf"_s}));
        for (const QString& nowhere : {u"C:\\Elsewhere"_s, u"D:\\Cards"_s, QString()})
            QCOMPARE(platform::CardFolder(*m_drive, nowhere).files(), QStringList());
    }

private:
    qint64 add(const QString& columns, const QString& values)
    {
        if (!m_book->data()
                 .execute(u"insert into cnt_main ("_s + columns + u") values ("_s + values + u')')
                 .ok)
            qFatal("not added");
        return m_book->firstText(u"select max(id) from cnt_main"_s).toLongLong();
    }

    QByteArray file(const QString& name) const
    {
        return support::bytesOf(m_root->filePath(u"VCF/"_s + name));
    }

    QStringList files() const
    {
        return QDir(m_root->filePath(u"VCF"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    CardsWritten write(const QString& ids, const CardProgress& progress = {})
    {
        return WriteVCards(m_book->data(), *m_drive, ids, u"C:\\VCF"_s, progress);
    }

    std::unique_ptr<support::TestBook> m_book;
    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<platform::FolderDrive> m_drive;
};

QTEST_GUILESS_MAIN(VcardExportTest)
#include "vcard_export_test.moc"
