#include <QtTest>

#include "platform/contact_card.h"
#include "platform/vdir_contacts.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using namespace platform;

static MailContact fullContact()
{
    MailContact c;
    c.key = u"17OV"_s;
    // Each text is another, with what needs an escape, so that fields can't change places unseen.
    int number = 0;
    for (QString* field : {&c.title, &c.first, &c.middle, &c.last, &c.alternateTitle, &c.fullName, &c.fileAs,
             &c.nick, &c.company, &c.jobTitle, &c.home.street1, &c.home.street2, &c.home.city, &c.home.state,
             &c.home.pin, &c.home.country, &c.work.street1, &c.work.street2, &c.work.city, &c.work.state,
             &c.work.pin, &c.work.country, &c.other.street1, &c.other.street2, &c.other.city, &c.other.state,
             &c.other.pin, &c.other.country, &c.homePhone1, &c.homePhone2, &c.homePhone3, &c.workPhone1,
             &c.workPhone2, &c.workPhone3, &c.mobile, &c.fax, &c.email1, &c.email2, &c.email3, &c.homeWeb,
             &c.workWeb, &c.spouse, &c.kids, &c.hobby, &c.user1, &c.user2, &c.user3, &c.user4})
        *field = u"a;b,c\\n:é "_s + QString::number(++number);
    c.categories = u"Friends,Chess; club"_s;
    c.note = u"first line\nsecond, line\n\n"_s + u"अ"_s.repeated(200);
    c.birthday = QDate(1890, 2, 28);
    c.anniversary = QDate(2001, 12, 31);
    return c;
}

class VdirContactsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void everyFieldReturns()
    {
        MailContact contact = fullContact();
        VdirContacts contacts(m_folder->filePath(u"new/folder"_s));
        QVERIFY(contacts.add(contact));
        const std::vector<MailContact> listed = contacts.list();
        QCOMPARE(listed.size(), size_t(1));
        contact.item = u"17OV.vcf"_s;
        QVERIFY(listed[0] == contact);
        QCOMPARE(contacts.items(), QStringList{contact.item});
        QVERIFY(contacts.item(contact.item) == contact);

        // And all can be blanked again: what is left is a card with a name and a key only.
        MailContact blank;
        blank.key = contact.key;
        blank.fullName = u"A"_s;
        QVERIFY(rewrite(contacts, blank));
        blank.item = contact.item;
        QVERIFY(contacts.list().at(0) == blank);
    }

    void cardStaysOnAFullDisk()
    {
        VdirContacts contacts(m_folder->path());
        MailContact contact = fullContact();
        QVERIFY(contacts.add(contact));
        {
            const support::FullDisk full(10);
            QVERIFY(!rewrite(contacts, contact));
        }
        contact.item = u"17OV.vcf"_s;
        QVERIFY(contacts.list().at(0) == contact);
    }

    void blankNumberKeepsThePlaces()
    {
        VdirContacts contacts(m_folder->path());
        MailContact contact;
        contact.key = u"1OV"_s;
        contact.fullName = u"A"_s;
        contact.email2 = u"second@x"_s;
        contact.homePhone3 = u"3"_s;
        QVERIFY(contacts.add(contact));
        contact.email3 = u"third@x"_s;
        QVERIFY(rewrite(contacts, contact));
        contact.item = u"1OV.vcf"_s;
        QVERIFY(contacts.list().at(0) == contact);
    }

    void updateFindsByKey()
    {
        VdirContacts contacts(m_folder->path());
        MailContact contact = fullContact();
        QVERIFY(!rewrite(contacts, contact));
        QVERIFY(!contacts.remove(contact.key));
        QVERIFY(contacts.add(contact));
        MailContact other = fullContact();
        other.key = u"7OV"_s;
        QVERIFY(contacts.add(other));
        contact.company = u"New"_s;
        QVERIFY(rewrite(contacts, contact));
        QVERIFY(contacts.remove(u"7OV"_s));
        QVERIFY(!contacts.contains(u"7OV"_s));
        QCOMPARE(contacts.list().size(), size_t(1));
        QCOMPARE(contacts.list()[0].company, u"New"_s);
        contact.key.clear();
        QVERIFY(!rewrite(contacts, contact));
        QVERIFY(!contacts.remove(QString()));
        // The same key twice is two contacts, and one goes at a time; so is none.
        QVERIFY(contacts.add(contact) && contacts.add(other) && contacts.add(other));
        QVERIFY(contacts.remove(u"7OV"_s));
        QCOMPARE(contacts.list().size(), size_t(3));
        QVERIFY(contacts.contains(u"7OV"_s));
    }

    void foreignLinesStay()
    {
        put(u"abc.vcf"_s,
            "BEGIN:VCARD\nVERSION:3.0\nUID:abc\nPRODID:-//X//EN\nN:Rao;Asha;;;Jr.\nFN:Asha Rao\n"
            "ORG:Old;Sales\nADR;TYPE=HOME:Box 9;;1 Old St;Pune;;;\nPHOTO;ENCODING=b;TYPE=JPEG:AAAA\n BBBB\n"
            "item1.EMAIL;TYPE=INTERNET;TYPE=pref:a@x\nitem1.X-ABLabel:Club\nTEL;TYPE=PAGER:99\nTEL;TYPE=HOME:"
            "1\n"
            "this line is no property\nX-FOO;A=\"b;c\":d\\;e\nX-ORVANE-KEY:5OV\nBDAY:--0412\nEND:VCARD\n");
        VdirContacts contacts(m_folder->path());
        MailContact contact = contacts.list().at(0);
        QCOMPARE(contact.key, u"5OV"_s);
        contact.company = u"New"_s;
        contact.last = u"Sen"_s;
        contact.home.street1 = u"2 New St"_s;
        contact.email1 = u"b@x"_s;
        contact.homePhone1.clear();
        QVERIFY(rewrite(contacts, contact));
        QCOMPARE(files(), QStringList{u"abc.vcf"_s});
        QCOMPARE(bytes(u"abc.vcf"_s),
            QByteArray(
                "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:abc\r\nPRODID:-//X//EN\r\nN:Sen;Asha;;;Jr.\r\nFN:Asha "
                "Rao\r\n"
                "ORG:New;Sales\r\nADR;TYPE=HOME:Box 9;;2 New "
                "St;Pune;;;\r\nPHOTO;ENCODING=b;TYPE=JPEG:AAAABBBB\r\n"
                "item1.EMAIL;TYPE=INTERNET;TYPE=pref:b@x\r\nitem1.X-ABLabel:Club\r\nTEL;TYPE=PAGER:99\r\n"
                "this line is no "
                "property\r\nX-FOO;A=\"b;c\":d\\;e\r\nX-ORVANE-KEY:5OV\r\nBDAY:--0412\r\nEND:VCARD\r\n"));
    }

    void unchangedContactChangesNothing()
    {
        const QByteArray card
            = "BEGIN:VCARD\r\nVERSION:4.0\r\nUID:8OV\r\nFN:Asha\\, Rao: x\r\nN:Rao;Asha;;;\r\n"
              "TEL;VALUE=uri;TYPE=\"home,voice\":tel:+91-1\r\nBDAY:19800229\r\nCATEGORIES:a,b\r\n"
              "EMAIL:1@x\r\nEMAIL:2@x\r\nEMAIL:3@x\r\nEMAIL:4@x\r\nEND:VCARD\r\n";
        put(u"x.vcf"_s, card);
        VdirContacts contacts(m_folder->path());
        const MailContact contact = contacts.list().at(0);
        QCOMPARE(contact.birthday, QDate(1980, 2, 29));
        QCOMPARE(contact.homePhone1, u"+91-1"_s);
        QVERIFY(rewrite(contacts, contact));
        QCOMPARE(bytes(u"x.vcf"_s), card);
    }

    void foreignCardIsRead_data()
    {
        // fields: home/work/mobile/fax phone, e-mail 1/2, home/work/other city
        support::columns<QByteArray, QString>("lines", "fields");
        QTest::newRow("types decide")
            << QByteArray("TEL;TYPE=WORK,VOICE:2\nTEL;TYPE=cell:3\nTEL;TYPE=WORK;TYPE=FAX:4\nTEL:1")
            << u"1/2/3/4,/,//"_s;
        QTest::newRow("no place for these")
            << QByteArray("TEL;TYPE=HOME,FAX:1\nTEL;TYPE=PAGER:2\nTEL;ENCODING=b:3") << u"///,/,//"_s;
        QTest::newRow("numbered e-mail") << QByteArray("EMAIL:b\nEMAIL;X-ORVANE-SLOT=1:a") << u"///,a/b,//"_s;
        QTest::newRow("number out of range")
            << QByteArray("EMAIL;X-ORVANE-SLOT=99:a\nEMAIL;X-ORVANE-SLOT=-1:b") << u"///,a/b,//"_s;
        QTest::newRow("addresses") << QByteArray(
            "ADR;TYPE=POSTAL:;;;C\nADR;TYPE=WORK:;;;B;;;;;;\nADR;TYPE=HOME:;;s;A")
                                   << u"///,/,A/B/C"_s;
    }

    void foreignCardIsRead()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QString, fields);
        const auto card = ContactCard::parse("BEGIN:VCARD\nVERSION:3.0\n" + lines + "\nEND:VCARD\n");
        QVERIFY(card);
        const MailContact c = card->contact();
        QCOMPARE(QStringList({QStringList{c.homePhone1, c.workPhone1, c.mobile, c.fax}.join(u'/'),
                                 c.email1 + u'/' + c.email2,
                                 QStringList{c.home.city, c.work.city, c.other.city}.join(u'/')})
                     .join(u','),
            fields);
    }

    void keyForForeignCard()
    {
        put(u"abc.vcf"_s, "BEGIN:VCARD\nVERSION:3.0\nUID:abc\nFN:A\nEND:VCARD\n");
        VdirContacts contacts(m_folder->path());
        QCOMPARE(contacts.list().at(0).key, QString());
        QVERIFY(!contacts.contains(u"3OV"_s));
        QVERIFY(contacts.assignKey(contacts.list().at(0).item, u"3OV"_s));
        QVERIFY(contacts.contains(u"3OV"_s));
        QVERIFY(contacts.assignKey(u"abc.vcf"_s, u"4OV"_s));
        QVERIFY(!contacts.contains(u"3OV"_s));
        QVERIFY(contacts.contains(u"4OV"_s));
        QVERIFY(bytes(u"abc.vcf"_s).contains("UID:abc\r\n"));
    }

    void damagedCards_data()
    {
        QTest::addColumn<QByteArray>("card");
        const QByteArray start = "BEGIN:VCARD\nVERSION:3.0\nX-ORVANE-KEY:1OV\nFN:A\n";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut") << start;
        QTest::newRow("no frame") << QByteArray("X-ORVANE-KEY:1OV\nVERSION:3.0\nFN:A\n");
        QTest::newRow("old version") << QByteArray(start + "END:VCARD\n").replace("3.0", "2.1");
        QTest::newRow("two cards") << start + "END:VCARD\n" + start + "END:VCARD\n";
        QTest::newRow("text behind the card") << start + "END:VCARD\nX:1\n";
        QTest::newRow("above the bound") << start + "NOTE:" + QByteArray(1024 * 1024, 'x') + "\nEND:VCARD\n";
        QTest::newRow("binary") << QByteArray("\0\xFF\xFE\x80", 4).repeated(1000);
    }

    void damagedCards()
    {
        QFETCH(QByteArray, card);
        put(u"1OV.vcf"_s, card);
        put(u"2OV.vcf"_s, "BEGIN:VCARD\nVERSION:3.0\nUID:2OV\nFN:B\nEND:VCARD\n");
        VdirContacts contacts(m_folder->path());
        QCOMPARE(contacts.list().size(), size_t(1));
        MailContact contact = contacts.list()[0];
        QCOMPARE(contact.key, u"2OV"_s);
        contact.key = u"1OV"_s;
        QVERIFY(!rewrite(contacts, contact));
        QVERIFY(!contacts.remove(u"1OV"_s));
        // A new item gets another file, and the damaged one is left for the user to mend.
        QVERIFY(contacts.add(contact));
        QVERIFY(contacts.contains(u"1OV"_s));
        QCOMPARE(bytes(u"1OV.vcf"_s), card);
    }

    void randomDamage()
    {
        ContactCard good(u"17OV"_s);
        good.setContact(fullContact());
        QRandomGenerator random(7);
        int read = 0;
        for (int round = 0; round < 500; ++round) {
            QByteArray bytes = good.bytes();
            for (int i = random.bounded(1, 6); i > 0; --i)
                bytes[random.bounded(15, int(bytes.size()) - 12)] = char(random.bounded(256));
            std::optional<ContactCard> card = ContactCard::parse(bytes);
            if (!card)
                continue;
            ++read;
            card->setContact(fullContact());
            const auto again = ContactCard::parse(card->bytes());
            QVERIFY(again);
            QCOMPARE(again->contact().note, fullContact().note);
        }
        QVERIFY(read > 100);
    }

    void neverLeavesTheFolder()
    {
        const QTemporaryDir outside;
        const QByteArray card = "BEGIN:VCARD\nVERSION:3.0\nX-ORVANE-KEY:9OV\nFN:A\nEND:VCARD\n";
        const QString target = support::put(outside.filePath(u"secret.vcf"_s), card);
        QVERIFY(QFile::link(target, m_folder->filePath(u"9OV.vcf"_s)));
        QVERIFY(QFile::link(outside.filePath(u"not there"_s), m_folder->filePath(u"10OV.vcf"_s)));

        VdirContacts contacts(m_folder->path());
        QVERIFY(contacts.list().empty());
        MailContact contact = fullContact();
        for (const QString& key : {u"9OV"_s, u"10OV"_s, u"../../x"_s, u"/tmp/x"_s, QString(4000, u'k')}) {
            contact.key = key;
            QVERIFY(!rewrite(contacts, contact));
            QVERIFY(contacts.add(contact));
            QVERIFY(contacts.contains(key));
        }
        QVERIFY(!contacts.item(u"../"_s + QFileInfo(outside.path()).fileName() + u"/secret.vcf"_s));
        QVERIFY(!contacts.item(u"9OV.vcf"_s));
        QVERIFY(!contacts.assignKey(
            u"../"_s + QFileInfo(outside.path()).fileName() + u"/secret.vcf"_s, u"1OV"_s));
        QCOMPARE(support::bytesOf(target), card);
        QCOMPARE(QDir(outside.path()).entryList(QDir::Files), QStringList{u"secret.vcf"_s});
        QCOMPARE(contacts.list().size(), size_t(5));
    }

    void seesOtherPrograms()
    {
        VdirContacts ours(m_folder->path());
        VdirContacts theirs(m_folder->path());
        MailContact contact = fullContact();
        QVERIFY(ours.add(contact));
        QVERIFY(ours.contains(u"17OV"_s));
        QTest::qWait(20); // the clock of the file system
        QVERIFY(theirs.remove(u"17OV"_s));
        QVERIFY(!ours.contains(u"17OV"_s));
        // A key changed within a file leaves the folder's time as it was.
        QVERIFY(ours.add(contact));
        QVERIFY(ours.contains(u"17OV"_s));
        put(u"17OV.vcf"_s, "BEGIN:VCARD\nVERSION:3.0\nX-ORVANE-KEY:18OV\nFN:A\nEND:VCARD\n");
        QVERIFY(!ours.contains(u"17OV"_s));
    }

private:
    static bool rewrite(VdirContacts& contacts, const MailContact& whole)
    {
        return contacts.update(whole.key, [&whole](MailContact& contact) { contact = whole; });
    }

    void put(const QString& name, const QByteArray& bytes) const
    {
        support::put(m_folder->filePath(name), bytes);
    }

    QByteArray bytes(const QString& name) const { return support::bytesOf(m_folder->filePath(name)); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(VdirContactsTest)
#include "vdir_contacts_test.moc"
