#include <QtTest>

#include "core/contact_names.h"
#include "formats/card_writer.h"
#include "platform/folder_drive.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/test_book.h"
#include "transfer/cards/card_names.h"
#include "transfer/cards/export_cards.h"
#include "transfer/cards/likely_duplicates.h"
#include "transfer/cards/store_cards.h"

using namespace Qt::StringLiterals;
using namespace transfer;

namespace {

const QByteArray kPicture = "\xff\xd8\xff\xe0" + QByteArray(200, 'p');

QByteArray card(const QByteArray& body)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + body + "\r\nEND:VCARD\r\n";
}

} // namespace

/// Cards into the book and out of it: all or nothing, nothing lost, nothing twice without a word.
class CardImportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<support::TestBook>();
        m_book->data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        m_root = std::make_unique<QTemporaryDir>();
        m_photos = std::make_shared<QTemporaryDir>();
        m_drive = std::make_unique<platform::FolderDrive>(m_root->path(), m_book->folder());
    }

    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    void names_data()
    {
        support::columns<QString, QString>("card", "completed");
        QTest::newRow("all told") << u"First=Ann|Last=Lee|Name=Ann Lee"_s << u"First,Last|Ann Lee|Ann|Lee"_s;
        QTest::newRow("last name first")
            << u"First=Ann|Last=Lee|Name=Lee Ann"_s << u"Last,First|Lee Ann|Ann|Lee"_s;
        QTest::newRow("full name of its own")
            << u"First=Ann|Last=Lee|Name=Dr. Ann"_s << u"First,Last|Dr. Ann|Ann|Lee"_s;
        QTest::newRow("no full name") << u"First=Ann|Last=Lee"_s << u"First,Last|Ann Lee|Ann|Lee"_s;
        QTest::newRow("full name alone")
            << u"Name=Ann Mary Lee"_s << u"First,Last|Ann Mary Lee|Ann Mary|Lee"_s;
        QTest::newRow("whole name as family name")
            << u"Last=Ann Lee|Name=Ann Lee"_s << u"First,Last|Ann Lee|Ann|Lee"_s;
        QTest::newRow("firm") << u"Company=Tea|Name=Tea"_s << u"Company|Tea||"_s;
        QTest::newRow("firm without a name") << u"Company=Tea"_s << u"Company|Tea||"_s;
        QTest::newRow("number only") << u"Mobile=5"_s << u"First,Last|5|5|"_s;
        QTest::newRow("nothing") << u"h_city=Pune"_s << u"First,Last|(no name)|(no name)|"_s;
        QTest::newRow("own view") << u"Nview=Last,First (Company)|Company=Tea|Name=Lee Ann Mary Tea"_s
                                  << u"Last,First (Company)|Lee Ann Mary Tea|Ann Mary|Lee"_s;
    }

    void names()
    {
        QFETCH(QString, card);
        formats::CardContact contact;
        for (const QString& value : card.split(u'|'))
            contact.set(value.section(u'=', 0, 0), value.section(u'=', 1));
        completeName(contact);
        QTEST(QStringList({contact.text(u"Nview"), contact.text(u"Name"), contact.text(u"First"),
                              contact.text(u"Last")})
                  .join(u'|'),
            "completed");
    }

    void storedInOneStepWithPictures()
    {
        support::put(m_root->filePath(u"OVUserFiles/Photos/Ann.jpg"_s));
        const IncomingCards incoming
            = read(card("FN:Ann\r\nBDAY:19800305\r\nPHOTO;ENCODING=b:" + kPicture.toBase64())
                + card("FN:Bob\r\nCATEGORIES:Friends"));
        const StoredCards stored = store(incoming);
        QCOMPARE(stored.added, 2);
        const QString all
            = u"select Name, M_BD, category1, category2, Priority, Status, dateEnter, PhotLoc from "
              u"cnt_main order by id"_s;
        const QStringList rows{u"Ann|1980-03-05|Undefined|Undefined|3|Undefined|2026-06-15|"
                               u"C:\\OVUserFiles\\Photos\\Ann (2).jpg"_s,
            u"Bob|null|Friends|Undefined|3|Undefined|2026-06-15|null"_s};
        QCOMPARE(m_book->rows(all), rows);
        const QString copy = m_root->filePath(u"OVUserFiles/Photos/Ann (2).jpg"_s);
        QCOMPARE(support::bytesOf(copy), kPicture);
        // The rows of the scheduler are a part of the same step: this year and the next two.
        QCOMPARE(m_book->rows(u"select person, [Date], b_a_id from ovs_schedular"_s).size(), 3);
        QCOMPARE(m_book->data().lastChange()->name, u"importing 2 cards"_s);
        QCOMPARE(m_book->data().undoLastChange(), jet::TakenBack::Done);
        QCOMPARE(m_book->rows(all).size() + m_book->rows(u"select * from ovs_schedular"_s).size(), 0);
        QVERIFY(!QFile::exists(copy));
        QCOMPARE(m_book->data().redoLastChange(), jet::TakenBack::Done);
        QCOMPARE(m_book->rows(all), rows);
        QCOMPARE(support::bytesOf(copy), kPicture);
    }

    void stoppedOrRefusedStoresNothing()
    {
        QByteArray bytes;
        for (int i = 0; i < 700; ++i)
            bytes += card(
                "FN:Person" + (i < 30 ? "\r\nPHOTO;ENCODING=b:" + kPicture.toBase64() : QByteArray()));
        const IncomingCards incoming = read(bytes);
        const StoredCards stopped = store(incoming, [](int done) { return done < 600; });
        QVERIFY(stopped.isStopped && stopped.added == 0);
        QCOMPARE(m_book->rows(u"select id from cnt_main"_s).size(), 0);
        QCOMPARE(QDir(m_root->filePath(u"OVUserFiles/Photos"_s)).entryList(QDir::Files), QStringList());
        m_book->expectFailure(u"cnt_main"_s);
        m_book->expectFailure(u"full"_s);
        {
            const support::FullDisk full(200'000);
            QCOMPARE(store(incoming).added, 0);
        }
        QCOMPARE(m_book->rows(u"select id from cnt_main"_s).size(), 0);
        QCOMPARE(QDir(m_root->filePath(u"OVUserFiles/Photos"_s)).entryList(QDir::Files), QStringList());
        m_book->unexpected();
    }

    void likelyDuplicatesAreNotTicked()
    {
        m_book->data().execute(
            u"insert into cnt_main (Name, B_Ph1, M_BD) values ('ann  LEE', '(022) 555-1234', #05-Mar-1980#)");
        const IncomingCards incoming
            = read(card("FN:Ann Lee\r\nTEL;TYPE=HOME:+91 20 5551234") + card("FN:Ann Lee\r\nBDAY:1980-03-05")
                + card("FN:Ann Lee\r\nTEL:1") + card("FN:Bob\r\nEMAIL:B@x")
                + card("FN:bob\r\nEMAIL;TYPE=WORK:b@X") + card("FN:Bob\r\nTEL:5551234"));
        QStringList like;
        for (const IncomingCard& one : incoming.cards)
            like << (one.isTicked ? u"new"_s : one.like);
        QCOMPARE(
            like.join(u'|'), u"a contact of the book|a contact of the book|new|new|in.vcf, card 4|new"_s);
    }

    void whatDoesNotComeInIsListed()
    {
        const QString empty = support::put(m_root->filePath(u"none.vcf"_s), "nothing");
        support::put(m_root->filePath(u"in.vcf"_s),
            card("FN:Ann\r\nPHOTO;ENCODING=b:eHl6\r\nLOGO;ENCODING=b:" + kPicture.toBase64()) + card("NOTE:")
                + "BEGIN:VCARD\r\nFN:Bob");
        const IncomingCards incoming
            = readCardFiles({empty, m_root->filePath(u"in.vcf"_s), m_root->filePath(u"gone.vcf"_s)},
                columns(), {m_photos->path(), {}, {}});
        QStringList left;
        for (const LeftCard& one : incoming.left)
            left << one.source + u'/' + one.name + u'/' + one.why;
        QCOMPARE(left.join(u'\n'),
            u"none.vcf//there is no card in the file\n"
            "in.vcf, card 1/Ann/Photo: it is no picture that can be shown\n"
            "in.vcf, card 1/Ann/Logo: the book has no place for it\n"
            "in.vcf, card 2//the card is empty\n"
            "in.vcf, card 3/Bob/nothing, but the card has no end: something may be missing\n"
            "gone.vcf//the file can not be read"_s);
        QCOMPARE(incoming.cards.size(), size_t(2));
    }

    void bookReturnsThroughItsOwnFile_data()
    {
        support::columns<formats::CardVersion>("version");
        QTest::newRow("3.0") << formats::CardVersion::Three;
        QTest::newRow("4.0") << formats::CardVersion::Four;
    }

    // All columns but those that say where a contact stands in one book.
    void bookReturnsThroughItsOwnFile()
    {
        QFETCH(formats::CardVersion, version);
        support::put(
            m_root->filePath(u"OVUserFiles/Photos/a.png"_s), "\x89PNG\r\n\x1a\n" + QByteArray(50, 'x'));
        QStringList names;
        QStringList values;
        for (const formats::CardColumns::Column& column : columns().all()) {
            names << u'[' + column.name + u']';
            values << (column.type == jet::ColumnType::Date ? u"#05-Mar-1980#"_s
                    : column.type == jet::ColumnType::YesNo ? u"true"_s
                                                            : u"'%1 ; , é'"_s.arg(column.name));
        }
        m_book->data().execute(u"insert into cnt_main ("_s + names.join(u',') + u",PhotLoc) values ("_s
            + values.join(u',') + u",'C:\\OVUserFiles\\Photos\\a.png')"_s);
        m_book->data().execute(u"insert into cnt_main (Name, First) values ('../x', '<b>&')");
        m_book->data().execute(u"insert into cnt_main (Name, memo1) values ('../x', 'two')");
        const QString everything = u"select "_s + names.join(u',') + u" from cnt_main order by id"_s;
        QStringList before = m_book->rows(everything);
        const CardExport target{version, m_root->filePath(u"all.vcf"_s), {}};
        QCOMPARE(exportCards(m_book->data(), *m_drive, columns(), {1, 2, 3}, target).written, 3);
        m_book->data().execute(u"delete * from cnt_main");
        store(readCardFiles({target.file}, columns(), {m_photos->path(), {}, {}}));
        const QStringList after = m_book->rows(everything);
        QCOMPARE(after.size(), 3);
        QCOMPARE(after[0], before[0]);
        QCOMPARE(m_book->rows(u"select Name, First, memo1, PhotLoc from cnt_main order by id"_s).mid(1),
            (QStringList{u"../x|<b>&|null|null"_s, u"../x|../x|two|null"_s}));
        QVERIFY(QFile::exists(m_drive->local(m_book->firstText(u"select PhotLoc from cnt_main"_s))));
        // A file each: no name climbs out, and none of two with one name is lost.
        const CardExport each{version, {}, u"C:\\VCF"_s};
        QCOMPARE(exportCards(m_book->data(), *m_drive, columns(), {5, 6}, each).written, 2);
        QCOMPARE(QDir(m_root->filePath(u"VCF"_s)).entryList(QDir::Files | QDir::Hidden).size(), 2);
        const support::FullDisk full(0);
        QVERIFY(!exportCards(m_book->data(), *m_drive, columns(), {5, 6}, each).stoppedBy.isEmpty());
        QVERIFY(!exportCards(m_book->data(), *m_drive, columns(), {5, 6}, target).stoppedBy.isEmpty());
        QVERIFY(support::bytesOf(target.file).size() > 1000); // the old one is still whole
    }

private:
    const formats::CardColumns& columns()
    {
        static const formats::CardColumns all(
            *support::TestBook::schema().table(u"cnt_main"), core::nameViews());
        return all;
    }

    IncomingCards read(const QByteArray& bytes)
    {
        const QString file = support::put(m_root->filePath(u"in.vcf"_s), bytes);
        IncomingCards incoming = readCardFiles({file}, columns(), {m_photos->path(), {}, {}});
        markLikelyDuplicates(m_book->data(), incoming);
        return incoming;
    }

    StoredCards store(const IncomingCards& incoming, std::function<bool(int)> progress = {})
    {
        return storeCards(m_book->data(), *m_drive, columns(), incoming,
            {QDate(2026, 6, 15), u"3"_s, true, m_photos, std::move(progress)});
    }

    std::unique_ptr<support::TestBook> m_book;
    std::unique_ptr<QTemporaryDir> m_root;
    std::shared_ptr<QTemporaryDir> m_photos;
    std::unique_ptr<platform::FolderDrive> m_drive;
};

QTEST_GUILESS_MAIN(CardImportTest)
#include "card_import_test.moc"
