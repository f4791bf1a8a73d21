#include <QtTest>

#include "core/setup/category_statements.h"
#include "core/setup/city_statements.h"
#include "core/setup/setup_settings.h"
#include "support/columns.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace setup;
using core::Category;

/// What the set-up stores: which rows change, and which must not.
class SetupRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<support::TestBook>(); }
    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    // Letters and phone lists of all subcategories follow the category.
    void renamedCategoryReachesFiveTables()
    {
        addCategories();
        const Category from{u"Business"_s, u"Clients"_s};
        const Category to{u"Shop"_s, u"Buyers"_s};
        QVERIFY(renameCategory(m_book->data(), 1, from, to));
        const QStringList pairs{u"Business|Dealers"_s, u"Shop|Buyers"_s, u"Trade|Clients"_s};
        for (const QString& table : {u"cnt_main"_s, u"cnt_emails"_s, u"cnt_filter"_s, u"cntb_categories"_s})
            QCOMPARE(sorted(u"select category1,category2 from "_s + table), pairs);
        QCOMPARE(sorted(u"select category1,category2 from cnt_letters"_s),
            (QStringList{u"Shop|Clients"_s, u"Shop|Dealers"_s, u"Trade|Clients"_s}));
        QCOMPARE(
            rows(u"select category1 from cnt_phlist"_s), (QStringList{u"Shop"_s, u"Shop"_s, u"Trade"_s}));
        QCOMPARE(renameQuestion(from, to),
            u"This process will globally change all records  with category Business to Shop and Sub Category "
            u"Clients to Buyers Do you wish to continue? "_s);
    }

    // An apostrophe in a stored name breaks the statements; the contacts must not part from their category.
    void brokenRenameChangesNothing()
    {
        addCategories();
        const auto id = m_book->firstText(u"select catid from cntb_categories where category2='Clients'"_s);
        execute(u"drop table cnt_filter"_s);
        m_book->expectFailure(u"cnt_filter"_s);
        QVERIFY(!renameCategory(
            m_book->data(), id.toLongLong(), {u"Business"_s, u"Clients"_s}, {u"Shop"_s, u"Buyers"_s}));
        QCOMPARE(
            m_book->firstText(u"select category1 from cntb_categories where catid="_s + id), u"Business"_s);
        QCOMPARE(rows(u"select category1 from cnt_main"_s),
            (QStringList{u"Business"_s, u"Business"_s, u"Trade"_s}));
        QVERIFY(!deleteCategory(m_book->data(), DeleteWay::DeleteContacts, {u"O'Neil"_s, u""_s}, {}));
        QCOMPARE(rows(u"select category1 from cnt_main"_s).size(), 3);
        QCOMPARE(m_book->failures(), 2);
        m_book->expectFailure(u"O'Neil"_s);
    }

    void journalPieces_data()
    {
        support::columns<QString, QString, QString, QString>("typed", "letters", "mails", "associations");
        QTest::newRow("nothing") << u""_s << u"Letters|Sent"_s << u"Emails|Sent"_s << u"Asso|Meetings"_s;
        QTest::newRow("both") << u"Work-Done"_s << u"Work|Done"_s << u"Work|Done"_s << u"Work|Done"_s;
        QTest::newRow("no second piece")
            << u"Work"_s << u"Work|Sent"_s << u"Work|Sent"_s << u"Work|Meetings"_s;
        QTest::newRow("no first piece")
            << u" -Done"_s << u"Letters|Done"_s << u"Emails|Done"_s << u"Asso|Done"_s;
        QTest::newRow("three pieces") << u"A-B-C"_s << u"A|B"_s << u"A|B"_s << u"A|B"_s;
    }

    // Without a settings row there is one afterwards; what is no default stays.
    void journalPieces()
    {
        QFETCH(const QString, typed);
        for (const bool hasRow : {false, true}) {
            execute(u"delete * from cntb_setup"_s);
            if (hasRow)
                execute(u"insert into cntb_setup (Prefix1,lbluse1) values ('0','Club')"_s);
            QVERIFY(saveDefaults(
                m_book->data(), {u"Family"_s, u"Parents"_s, u"3"_s, typed, typed, typed, u"C:\\Cards"_s}));
            QTEST(rows(u"select ltrcat,ltrsub from cntb_setup"_s).join(u';'), "letters");
            QTEST(rows(u"select emilcat,emilsub from cntb_setup"_s).join(u';'), "mails");
            QTEST(rows(u"select assojcat,assojscat from cntb_setup"_s).join(u';'), "associations");
            QCOMPARE(rows(u"select categ1,categ2,Priority,VCFPath from cntb_setup"_s),
                QStringList{u"Family|Parents|3|C:\\Cards"_s});
            QCOMPARE(rows(u"select Prefix1,lbluse1 from cntb_setup"_s),
                QStringList{hasRow ? u"0|Club"_s : u"null|null"_s});
            const Defaults read = defaultsOf(m_book->data().openRecordset(settingsSql()));
            QVERIFY(read.letters.count(u'-') == 1 && read.cardFolder == u"C:\\Cards");
        }
    }

    void availableCities_data()
    {
        support::columns<CityTable, QString, bool, QString>("scope", "place", "mainOnly", "cities");
        const auto national = CityTable::National;
        const auto international = CityTable::International;
        QTest::newRow("home, main") << national << u""_s << true << u"Mumbai,Panaji"_s;
        QTest::newRow("home, all") << national << u""_s << false << u"Mumbai,Panaji,Thane"_s;
        QTest::newRow("state, all") << national << u"Maharashtra"_s << false << u"Mumbai,Thane"_s;
        QTest::newRow("state, main") << national << u"Maharashtra"_s << true << u"Mumbai"_s;
        QTest::newRow("world, main") << international << u""_s << true << u"Lyon,Paris,Rome"_s;
        QTest::newRow("country, main") << international << u"France"_s << true << u"Lyon,Paris"_s;
        QTest::newRow("country, all") << international << u"France"_s << false << u"Lyon,Paris,Vichy"_s;
        QTest::newRow("no such country") << international << u"Atlantis"_s << false << u""_s;
    }

    void availableCities()
    {
        QFETCH(const CityTable, scope);
        QFETCH(const QString, place);
        QFETCH(const bool, mainOnly);
        for (const QString& row :
            {u"'Mumbai','Maharashtra','M'"_s, u"'Thane','Maharashtra',''"_s, u"'Panaji','Goa','M'"_s})
            execute(u"insert into wia_india (city,state,chtype) values (%1)"_s.arg(row));
        for (const QString& row :
            {u"'Paris',7,'M'"_s, u"'Lyon',7,'M'"_s, u"'Vichy',7,''"_s, u"'Rome',8,'M'"_s})
            execute(u"insert into wia_city (city,[country id],chtype) values (%1)"_s.arg(row));
        execute(u"insert into wia_globalmas (id,country) values (7,'France')"_s);
        QTEST(rows(availableCitiesSql(scope, place, mainOnly)).join(u','), "cities");
    }

    void frequentCities()
    {
        jet::Database& data = m_book->data();
        QVERIFY(addFrequentCity(data, CityTable::National, u"Pune"_s) == CityAdded::Yes);
        QVERIFY(addFrequentCity(data, CityTable::National, u"Xi'an"_s) == CityAdded::Yes);
        QVERIFY(addFrequentCity(data, CityTable::National, u"PUNE"_s) == CityAdded::Known);
        QVERIFY(addFrequentCity(data, CityTable::International, u"Pune"_s) == CityAdded::Yes);
        // A choice that is no city of the list, or breaks the statement, leaves the default as it was.
        QVERIFY(setDefaultCity(data, u"Pune"_s) && !setDefaultCity(data, u"Delhi"_s));
        m_book->expectFailure(u"Xi'an"_s);
        QVERIFY(!setDefaultCity(data, u"Xi'an"_s));
        QCOMPARE(rows(defaultCitySql()).constFirst(), u"Pune"_s);
        QVERIFY(removeFrequentCity(data, CityTable::National, 0, u"Pune"_s) == CityRemoved::IsDefault);
        QVERIFY(removeFrequentCity(data, CityTable::National, 0, u"Xi'an"_s) == CityRemoved::Failed);
        QVERIFY(removeFrequentCity(data, CityTable::National, 1, u"Xi'an"_s) == CityRemoved::Yes);
        QCOMPARE(rows(u"select city,type,priority from cnt_topcities"_s),
            (QStringList{u"Pune|National|1"_s, u"Pune|International|1"_s}));
    }

private:
    void execute(const QString& sql) { QVERIFY2(m_book->data().execute(sql), qPrintable(sql)); }
    QStringList rows(const QString& sql) { return m_book->rows(sql); }
    QStringList sorted(const QString& sql)
    {
        QStringList found = rows(sql);
        found.sort();
        return found;
    }

    void addCategories()
    {
        for (const QString& pair :
            {u"'Business','Clients'"_s, u"'Business','Dealers'"_s, u"'Trade','Clients'"_s}) {
            execute(u"insert into cntb_categories (category1,category2) values (%1)"_s.arg(pair));
            execute(u"insert into cnt_main (category1,category2) values (%1)"_s.arg(pair));
            execute(u"insert into cnt_emails (category1,category2) values (%1)"_s.arg(pair));
            execute(u"insert into cnt_filter (category1,category2) values (%1)"_s.arg(pair));
            execute(u"insert into cnt_letters (category1,category2) values (%1)"_s.arg(pair));
            execute(u"insert into cnt_phlist (category1) values (%1)"_s.arg(pair.section(u',', 0, 0)));
        }
    }

    std::unique_ptr<support::TestBook> m_book;
};

QTEST_GUILESS_MAIN(SetupRulesTest)
#include "setup_rules_test.moc"
