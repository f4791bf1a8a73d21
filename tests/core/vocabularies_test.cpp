#include <QtTest>

#include "core/vocabularies.h"
#include "support/columns.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace core;

/// What the word lists of the entry screens give from a small book, at home and elsewhere.
class VocabulariesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList rows{
            u"wia_cntnames (first,last,national) values ('Ben','Stone','C')"_s,
            u"wia_cntnames (first,last,middle,nick,gender,national) values ('Ben','Reed','Lee','Benny','Male','C')"_s,
            u"wia_cntnames (first,last,middle,nick,gender,national) values ('Asha','Rao','Devi','Ash','Female','N')"_s,
            u"wia_cntnames (first,last,middle,national) values ('','','','C')"_s,
            u"wia_company (name,national) values ('Tea Board','N')"_s,
            u"wia_company (name,national) values ('Steel Corp','C')"_s,
            u"WIA_GLOBALMAS (id,country) values (2,'United States')"_s,
            u"WIA_GLOBALMAS (id,country) values (1,'India')"_s,
            u"CNT_TOPCITIES (city,type) values ('Pune','National')"_s,
            u"CNTB_OTHER1 (RELATION,RELATIONVERSION,RELIGION,REGION,Education) values ('Cousin','C','Hindu','North','BSc')"_s,
            u"CNTB_OTHER1 (RELATION,RELIGION,RELIGIONVERSION,REGION,REGIONVERSION) values ('Jija','Jain','C','West','C')"_s,
            u"CNTB_OTHER1 (RELATION,RELATIONVERSION,Education,EducationVersion) values ('','C','PhD','c')"_s,
            u"CNTB_OTHER1 (Hobbies,[Email Suffix]) values ('Chess','mail.example')"_s,
            u"CNTB_OTHER (ADDTYPE,JOBTITLE,PRODUCT,STATUS) values ('Flat','Clerk','Tea','Active')"_s,
            u"CNTB_OTHER (JOBTITLE,PRODUCT,CompSufix) values ('Clerk','','Ltd')"_s,
            u"CNTB_OTHER (PRODUCT,USER1,USER2,USER3) values ('Coffee','red','blue','green')"_s,
            u"CNTB_OTHER (USER1,USER2) values ('','')"_s,
            u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2,DELETED) values ('Friends','School',false)"_s,
            u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2,DELETED) values ('Friends','Club',false)"_s,
            u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2,DELETED) values ('Retired','Old',true)"_s,
            u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2) values ('','None')"_s,
        };
        for (const QString& row : rows)
            QVERIFY2(m_book.data().execute(u"insert into "_s + row), qPrintable(row));
    }

    void lists_data()
    {
        support::columns<int, QString, QString>("list", "home", "abroad");
        const auto row = [](const char* tag, Vocabulary list, const QString& home, const QString& abroad) {
            QTest::newRow(tag) << int(list) << home << abroad;
        };
        const auto same = [&row](const char* tag, Vocabulary list, const QString& values) {
            row(tag, list, values, values);
        };
        row("first names", Vocabulary::FirstNames, u"Asha,Ben"_s, u"Ben"_s);
        row("last names", Vocabulary::LastNames, u"Rao,Reed,Stone"_s, u"Reed,Stone"_s);
        same("middle names know no country", Vocabulary::MiddleNames, u"Devi,Lee"_s);
        row("nick names", Vocabulary::NickNames, u"Ash,Benny"_s, u"Benny"_s);
        row("companies show one side only", Vocabulary::Companies, u"Tea Board"_s, u"Steel Corp"_s);
        same("countries in order", Vocabulary::Countries, u"India,United States"_s);
        same("the short list of cities is empty", Vocabulary::TopCities, u""_s);
        row("an unmarked relation is of the home country", Vocabulary::Relations, u"Cousin,Jija"_s,
            u"Cousin"_s);
        row("religions", Vocabulary::Religions, u"Hindu,Jain"_s, u"Jain"_s);
        row("regions", Vocabulary::Regions, u"North,West"_s, u"West"_s);
        row("the mark in small letters", Vocabulary::Educations, u"BSc,PhD"_s, u"PhD"_s);
        same("hobbies", Vocabulary::Hobbies, u"Chess"_s);
        same("e-mail suffixes", Vocabulary::EmailSuffixes, u"mail.example"_s);
        same("a job title twice", Vocabulary::JobTitles, u"Clerk"_s);
        same("address types", Vocabulary::AddressTypes, u"Flat"_s);
        same("states of a contact", Vocabulary::Statuses, u"Active"_s);
        same("products without the blank one", Vocabulary::Products, u"Coffee,Tea"_s);
        same("company suffixes", Vocabulary::CompanySuffixes, u"Ltd"_s);
        same("user 1 by its length", Vocabulary::User1, u"red"_s);
        same("user 2 with the blank one", Vocabulary::User2, u",blue"_s);
        same("user 3", Vocabulary::User3, u"green"_s);
        same("retired categories stay", Vocabulary::Categories, u"Friends,Retired"_s);
        same("merged categories", Vocabulary::MergedCategories, u"Friends-Club,Friends-School,Retired-Old"_s);
    }

    void lists()
    {
        QFETCH(int, list);
        const auto read = [&](bool national) {
            QStringList values = readVocabulary(m_book.data(), m_book.data(), Vocabulary(list), national);
            using enum Vocabulary;
            const auto ordered = {LastNames, MiddleNames, NickNames, Countries, Products};
            if (std::ranges::find(ordered, Vocabulary(list)) == ordered.end())
                values.sort();
            return values.join(u',');
        };
        QTEST(read(true), "home");
        QTEST(read(false), "abroad");
    }

    void subcategories()
    {
        QCOMPARE(firstColumn(m_book.data(), subcategoriesSql(u"Friends"_s)),
            (QStringList{u"Club"_s, u"School"_s}));
        QCOMPARE(firstColumn(m_book.data(), subcategoriesSql(u"retired"_s)), QStringList{u"Old"_s});
    }

    void quotedValueGivesAnEmptyList()
    {
        m_book.expectFailure(u"category1='D'Souza'"_s);
        QCOMPARE(firstColumn(m_book.data(), subcategoriesSql(u"D'Souza"_s)), QStringList());
    }

    void cleanup() { QCOMPARE(m_book.unexpected(), QString()); }

private:
    support::TestBook m_book;
};

QTEST_GUILESS_MAIN(VocabulariesTest)
#include "vocabularies_test.moc"
