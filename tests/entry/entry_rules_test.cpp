#include <QtTest>

#include "core/photo_file.h"
#include "core/stored_file.h"
#include "entry/assists/address_lookup.h"
#include "entry/assists/city_assist.h"
#include "entry/assists/typed_word.h"
#include "platform/folder_drive.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace entry;

/// The plain functions behind the assists of an entry form: statements, look-ups, words, pictures.
class EntryRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& row :
            {u"WIA_GLOBALMAS (id,country,type) values (1,'India','M')"_s,
                u"WIA_GLOBALMAS (id,country,type) values (2,'United States','M')"_s,
                u"WIA_GLOBALMAS (id,country,type) values (3,'Fiji','')"_s,
                u"WIA_CITY (city,state,State_full,region,cityisd,[country id],chtype,zip) values "
                "('Boston','MA','Massachusetts','East','617',2,'M','02108')"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Salem','OR','503',2)"_s,
                u"WIA_CITY (city,state,cityisd,[country id],chtype) values ('Suva','','33',3,'M')"_s,
                u"WIA_INDIA (city,state,std,[Pin Prefix],region,chtype) values ('Pune','Maharashtra','020','411','West','M')"_s,
                u"WIA_INDIA (city,state,std) values ('Salem','Tamil Nadu','0427')"_s,
                u"wia_cntnames (first,gender,national) values ('Asha','Female','N')"_s,
                u"wia_cntnames (first,gender,national) values ('Eve','Female','C')"_s,
                u"wia_cntnames (first,gender,national) values ('Ben','Male','C')"_s})
            QVERIFY2(m_book.data().execute(u"insert into "_s + row), qPrintable(row));
    }

    void cleanup() { QCOMPARE(m_book.unexpected(), QString()); }

    void cityLists_data()
    {
        support::columns<CityChoice, QString>("choice", "cities"); // "fails" for a statement that is broken
        QTest::newRow("everywhere") << CityChoice{u"All"_s, u""_s, false, false} << u"Boston,Salem,Suva"_s;
        QTest::newRow("main cities everywhere")
            << CityChoice{u"All"_s, u""_s, true, true} << u"Boston,Suva"_s;
        QTest::newRow("home country") << CityChoice{u"India"_s, u"All"_s, false, true} << u"Pune,Salem"_s;
        QTest::newRow("main cities of the home country")
            << CityChoice{u"India"_s, u"All"_s, true, true} << u"Pune"_s;
        QTest::newRow("a state of the home country names a column that is not there")
            << CityChoice{u"India"_s, u"Goa"_s, false, true} << u"fails"_s;
        QTest::newRow("the same with main cities")
            << CityChoice{u"India"_s, u"Goa"_s, true, true} << u"fails"_s;
        QTest::newRow("India seen from abroad is a country like others")
            << CityChoice{u"India"_s, u"All"_s, false, false} << u""_s;
        QTest::newRow("a country") << CityChoice{u"United States"_s, u"All"_s, false, false}
                                   << u"Boston,Salem"_s;
        QTest::newRow("a state") << CityChoice{u"United States"_s, u"OR"_s, false, true} << u"Salem"_s;
        QTest::newRow("main cities of a country")
            << CityChoice{u"United States"_s, u"All"_s, true, false} << u"Boston"_s;
    }

    void cityLists()
    {
        QFETCH(CityChoice, choice);
        QFETCH(QString, cities);
        if (cities == u"fails")
            m_book.expectFailure(u"cboState"_s);
        QCOMPARE(m_book.rows(cityListSql(choice)).join(u','), cities == u"fails" ? QString() : cities);
    }

    void spouseNames_data()
    {
        support::columns<QString, bool, QString>("sex", "national", "names");
        QTest::newRow("blank") << u""_s << true << u"Asha,Ben,Eve"_s;
        QTest::newRow("of a man") << u"Male"_s << true << u"Asha,Eve"_s;
        QTest::newRow("of a woman") << u"Female"_s << true << u"Ben"_s;
        QTest::newRow("any other value keeps the whole list") << u"Gays"_s << true << u"Asha,Ben,Eve"_s;
        QTest::newRow("abroad only common names") << u"Male"_s << false << u"Eve"_s;
        QTest::newRow("abroad, blank") << u""_s << false << u"Ben,Eve"_s;
    }

    void spouseNames()
    {
        QFETCH(QString, sex);
        QFETCH(bool, national);
        QStringList names = m_book.rows(spouseNamesSql(sex, national));
        names.sort();
        QTEST(names.join(u','), "names");
    }

    void lookUps_data()
    {
        // facts: state|region|std|pin|country; "-" leaves the field
        support::columns<QString, QString, bool, QString>("city", "country", "national", "facts");
        QTest::newRow("home city") << u"pune"_s << u" india "_s << false
                                   << u"Maharashtra|West|020|411|India"_s;
        QTest::newRow("no country, at home") << u"Salem"_s << u""_s << true << u"Tamil Nadu||0427||India"_s;
        QTest::newRow("no country, abroad") << u"Salem"_s << u""_s << false << u"OR||503|-|United States"_s;
        QTest::newRow("another country is not compared")
            << u"Boston"_s << u"Fiji"_s << true << u"MA|East|617|02108|United States"_s;
        QTest::newRow("not known") << u"Atlantis"_s << u"India"_s << true << u"unknown"_s;
        QTest::newRow("a wildcard is no wildcard here") << u"Pun*"_s << u"India"_s << true << u"unknown"_s;
        QTest::newRow("of the other table") << u"Boston"_s << u""_s << true << u"unknown"_s;
        QTest::newRow("apostrophe") << u"L'Aquila"_s << u""_s << false << u"unknown"_s;
    }

    void lookUps()
    {
        QFETCH(QString, city);
        QFETCH(QString, country);
        QFETCH(bool, national);
        if (city.contains(u'\''))
            m_book.expectFailure(u"L'Aquila"_s);
        const auto facts = lookUpCity(m_book.data(), city, country, national);
        QStringList found{u"unknown"_s};
        if (facts) {
            found.clear();
            for (const auto& value : {facts->state, facts->region, facts->std, facts->pin, facts->country})
                found << value.value_or(u"-"_s);
        }
        QTEST(found.join(u'|'), "facts");
    }

    void words_data()
    {
        support::columns<QString, QString, QString>("keys", "word", "lookUp");
        QTest::newRow("a word") << u"gard"_s << u"gard"_s << u"gar"_s;
        QTest::newRow("a blank starts anew") << u"the gar"_s << u"gar"_s << u"ga"_s;
        QTest::newRow("backspace and point do not count") << u"g\b.a"_s << u"ga"_s << u"g"_s;
        QTest::newRow("nothing") << u"the "_s << u""_s << u""_s;
        QTest::newRow("no control keys") << u"a\r\t\x1B"_s << u"a"_s << u""_s;
    }

    void words()
    {
        QFETCH(QString, keys);
        TypedWord word;
        for (const QChar key : keys)
            word.type(key);
        QTEST(word.word(), "word");
        QTEST(word.forLookUp(), "lookUp");
    }

    void replacedWord_data()
    {
        support::columns<QString, int, QString, QString>("text", "cursor", "word", "result");
        QTest::newRow("at the end") << u"12 gar"_s << 6 << u"gar"_s << u"12 Gardens"_s;
        QTest::newRow("in the middle") << u"12 gar, Pune"_s << 6 << u"gar"_s << u"12 Gardens, Pune"_s;
        QTest::newRow("what does not stand there stays")
            << u"12 Hill"_s << 7 << u"gar"_s << u"12 HillGardens"_s;
    }

    void replacedWord()
    {
        QFETCH(QString, text);
        QFETCH(int, cursor);
        QFETCH(QString, word);
        QTEST(withWordReplaced(text, cursor, word, u"Gardens"_s), "result");
    }

    void photos_data()
    {
        // chosen: below the root drive
        support::columns<QString, QString, QString, bool>("mode", "chosen", "stored", "stays");
        QTest::newRow("copy") << u"Copy"_s << u"in/Me.PNG"_s << u"C:\\OVUserFiles\\Photos\\Me.png"_s << true;
        QTest::newRow("move") << u"Move"_s << u"in/Me.PNG"_s << u"C:\\OVUserFiles\\Photos\\Me.png"_s << false;
        QTest::newRow("link") << u"Link"_s << u"in/Me.PNG"_s << u"C:\\in\\Me.PNG"_s << true;
        QTest::newRow("one that lies there already")
            << u"Move"_s << u"OVUserFiles/Photos/a.png"_s << u"C:\\OVUserFiles\\Photos\\a.png"_s << true;
    }

    void photos()
    {
        QFETCH(QString, mode);
        QFETCH(QString, chosen);
        QFETCH(QString, stored);
        QTemporaryDir root;
        const platform::FolderDrive drive(root.path(), root.filePath(u"program"_s));
        const QString path = support::put(root.filePath(chosen), "picture");
        const bool goesWithTheSave = mode != u"Link" && chosen.startsWith(u"in/");
        {
            const core::StoredFile failed(drive, core::kPhotoFolder, path, mode);
            QCOMPARE(failed.path(), stored);
            QVERIFY(QFile::exists(core::photoFile(drive, stored)));
        }
        // A save that failed leaves the picture where it was, and no copy.
        QVERIFY(QFile::exists(path));
        QCOMPARE(QFile::exists(core::photoFile(drive, stored)), !goesWithTheSave);
        core::StoredFile(drive, core::kPhotoFolder, path, mode).keep();
        QTEST(QFile::exists(path), "stays");
        QVERIFY(QFile::exists(core::photoFile(drive, stored)));
    }

    void photoNeverOverwrites()
    {
        const auto storePhoto = [](const platform::Drive& on, const QString& chosen, const QString& mode) {
            core::StoredFile photo(on, core::kPhotoFolder, chosen, mode);
            photo.keep();
            return photo.path();
        };
        QTemporaryDir root;
        const platform::FolderDrive drive(root.path(), root.filePath(u"program"_s));
        QStringList stored;
        for (const QByteArray content : {"one", "two"})
            stored << storePhoto(drive, support::put(root.filePath(u"me.png"_s), content), u"Copy"_s);
        QCOMPARE(stored,
            (QStringList{u"C:\\OVUserFiles\\Photos\\me.png"_s, u"C:\\OVUserFiles\\Photos\\me (2).png"_s}));
        QCOMPARE(support::bytesOf(core::photoFile(drive, stored[0])), "one");
        // A file that can not be copied stays a link.
        QCOMPARE(storePhoto(drive, root.filePath(u"gone.png"_s), u"Copy"_s), u"C:\\gone.png"_s);
        // One from outside the drives keeps the path of this computer, and is found by it.
        QCOMPARE(storePhoto(drive, u"/elsewhere/me.png"_s, u"Link"_s), u"/elsewhere/me.png"_s);
        QCOMPARE(core::photoFile(drive, u"/elsewhere/me.png"_s), u"/elsewhere/me.png"_s);
    }

private:
    support::TestBook m_book;
};

Q_DECLARE_METATYPE(entry::CityChoice)
QTEST_GUILESS_MAIN(EntryRulesTest)
#include "entry_rules_test.moc"
