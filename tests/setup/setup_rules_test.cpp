#include <QtTest>

#include "core/setup/category_statements.h"
#include "core/setup/city_statements.h"
#include "core/setup/setup_lists.h"
#include "core/setup/setup_settings.h"
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
    void wordOfEachList_data();
    void wordOfEachList();
    void wordChecks_data();
    void wordChecks();
    void renamedCategoryReachesFiveTables();
    void brokenRenameChangesNothing();
    void deletedCategory_data();
    void deletedCategory();
    void categoryIsKnown_data();
    void categoryIsKnown();
    void journalPieces_data();
    void journalPieces();
    void fontHasOneRowAmongOthers();
    void availableCities_data();
    void availableCities();
    void frequentCities();
    void oneDefaultCity();

private:
    void execute(const QString& sql) { QVERIFY2(m_book->data().execute(sql), qPrintable(sql)); }
    QStringList rows(const QString& sql) { return m_book->rows(sql); }
    QStringList sorted(const QString& sql)
    {
        QStringList found = rows(sql);
        found.sort();
        return found;
    }
    void addCategories();

    std::unique_ptr<support::TestBook> m_book;
};

void SetupRulesTest::wordOfEachList_data()
{
    QTest::addColumn<const WordList*>("list");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("buttons");
    const QStringList expected{u"PURPOSE||SSCommand41 SSCommand40"_s, u"RESPONSE||SSCommand41 SSCommand40"_s,
        u"RELATION|RELATIONVERSION|SSCommand22 SSCommand15"_s,
        u"RELIGION|RELIGIONVERSION|cmdreladd cmdreldel"_s, u"EDUCATION|EDUCATIONVERSION|cmdstadd cmdeddel"_s,
        u"HOBBIES||CmdHBSave CmdHBDelete"_s, u"JOBTITLE||cmdjtadd cmdjtdel"_s,
        u"PRODUCT||cmdpradd cmdprdel"_s, u"STATUS||cmdedadd cmdstdel"_s, u"ADDTYPE||cmdadadd cmdaddel"_s,
        u"REGION|REGIONVERSION|CmdRegionAdd CmdRegionDel"_s, u"USER1||Command7 Command6"_s,
        u"USER2||Command5 Command4"_s, u"USER3||SSCommand29 SSCommand27"_s};
    QCOMPARE(qsizetype(wordLists().size()), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QStringList cells = expected[i].split(u'|');
        QTest::newRow(qPrintable(cells[0]))
            << &wordLists()[std::size_t(i)] << cells[0] << cells[1] << cells[2];
    }
}

// The words of the other columns stay, but for those in the row of a word that is deleted.
void SetupRulesTest::wordOfEachList()
{
    QFETCH(const WordList*, list);
    QFETCH(const QString, column);
    QFETCH(const QString, version);
    QFETCH(const QString, buttons);
    const bool first = list->table == u"CNTB_OTHER";
    const QString table = list->table.toString();
    const QString other = first ? u"CompSufix"_s : u"[Email Suffix]"_s;
    QCOMPARE(list->saveButton.toString() + u' ' + list->deleteButton.toString(), buttons);
    execute(u"insert into %1 (%2,%3) values ('Old','shares')"_s.arg(table, column, other));
    execute(u"insert into %1 (%2) values ('alone')"_s.arg(table, other));
    execute(u"insert into cnt_main (name,Product,user1) values ('A','Old','Old')"_s);

    QVERIFY(addWord(m_book->data(), *list, u"New"_s));
    QCOMPARE(rows(u"select %1,%2 from %3 where %1='New'"_s.arg(
                 column, version.isEmpty() ? column : version, table)),
        QStringList{version.isEmpty() ? u"New|New"_s : u"New|C"_s});
    QVERIFY(renameWord(m_book->data(), *list, u"Old"_s, u"Older"_s));
    QCOMPARE(rows(listSql(*list)), (QStringList{u"New"_s, u"Older"_s}));
    QCOMPARE(rows(u"select %1 from %2 where %1 is not null"_s.arg(other, table)).size(), 2);
    QVERIFY(deleteWord(m_book->data(), *list, u"Older"_s));
    QVERIFY(!deleteWord(m_book->data(), *list, u"Older"_s));
    QCOMPARE(rows(listSql(*list)), QStringList{u"New"_s});
    QCOMPARE(rows(u"select %1 from %2 where %1 is not null"_s.arg(other, table)), QStringList{u"alone"_s});
    QCOMPARE(rows(u"select Product,user1 from cnt_main"_s), QStringList{u"Old|Old"_s});
}

void SetupRulesTest::wordChecks_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("word");
    QTest::addColumn<WordFault>("fault");
    QTest::newRow("nothing") << u""_s << u""_s << WordFault::Empty;
    QTest::newRow("new") << u""_s << u"Pilot"_s << WordFault::None;
    QTest::newRow("there in another case") << u""_s << u"CLERK"_s << WordFault::Known;
    QTest::newRow("other word") << u"Clerk"_s << u"Pilot"_s << WordFault::None;
    QTest::newRow("onto another one") << u"Clerk"_s << u"cook"_s << WordFault::Known;
    QTest::newRow("as it is") << u"Clerk"_s << u"Clerk"_s << WordFault::Unchanged;
    QTest::newRow("capitals only") << u"Clerk"_s << u"CLERK"_s << WordFault::None;
}

void SetupRulesTest::wordChecks()
{
    QFETCH(const QString, from);
    QFETCH(const QString, word);
    execute(u"insert into cntb_other (jobtitle) values ('Clerk')"_s);
    execute(u"insert into cntb_other (jobtitle) values ('Cook')"_s);
    const auto list = std::find_if(wordLists().begin(), wordLists().end(),
        [](const WordList& each) { return each.name == u"JobTitle"; });
    QTEST(checkWord(m_book->data(), *list, from, word), "fault");
}

void SetupRulesTest::addCategories()
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

// Letters and phone lists of all subcategories follow the category.
void SetupRulesTest::renamedCategoryReachesFiveTables()
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
    QCOMPARE(rows(u"select category1 from cnt_phlist"_s), (QStringList{u"Shop"_s, u"Shop"_s, u"Trade"_s}));
    QCOMPARE(renameQuestion(from, to),
        u"This process will globally change all records  with category Business to Shop and Sub Category "
        u"Clients to Buyers Do you wish to continue? "_s);
    QCOMPARE(renameQuestion(from, {u"Shop"_s, u"Clients"_s}),
        u"This process will globally change all records  with category Business to Shop Do you wish to continue? "_s);
}

// An apostrophe in a stored name breaks the statements; the contacts must not part from their category.
void SetupRulesTest::brokenRenameChangesNothing()
{
    addCategories();
    const auto id = m_book->firstText(u"select catid from cntb_categories where category2='Clients'"_s);
    execute(u"drop table cnt_filter"_s);
    m_book->expectFailure(u"cnt_filter"_s);
    QVERIFY(!renameCategory(
        m_book->data(), id.toLongLong(), {u"Business"_s, u"Clients"_s}, {u"Shop"_s, u"Buyers"_s}));
    QCOMPARE(m_book->firstText(u"select category1 from cntb_categories where catid="_s + id), u"Business"_s);
    QCOMPARE(
        rows(u"select category1 from cnt_main"_s), (QStringList{u"Business"_s, u"Business"_s, u"Trade"_s}));
    QVERIFY(!deleteCategory(m_book->data(), DeleteWay::DeleteContacts, {u"O'Neil"_s, u""_s}, {}));
    QCOMPARE(rows(u"select category1 from cnt_main"_s).size(), 3);
    QCOMPARE(m_book->failures(), 2);
    m_book->expectFailure(u"O'Neil"_s);
}

void SetupRulesTest::deletedCategory_data()
{
    QTest::addColumn<DeleteWay>("way");
    QTest::addColumn<QStringList>("contacts");
    QTest::addColumn<QStringList>("categories");
    const QStringList others{u"Business|Dealers|false"_s, u"Trade|Clients|false"_s};
    QTest::newRow("the name goes, the contact keeps it")
        << DeleteWay::NameOnly
        << QStringList{u"Business|Clients"_s, u"Business|Dealers"_s, u"Trade|Clients"_s}
        << QStringList{u"Business|Clients|true"_s} + others;
    QTest::newRow("the contact moves")
        << DeleteWay::MoveContacts << QStringList{u"Business|Dealers"_s, u"Trade|Clients"_s, u"Trade|Shops"_s}
        << others;
    QTest::newRow("the contact goes")
        << DeleteWay::DeleteContacts << QStringList{u"Business|Dealers"_s, u"Trade|Clients"_s} << others;
}

void SetupRulesTest::deletedCategory()
{
    QFETCH(const DeleteWay, way);
    addCategories();
    QVERIFY(deleteCategory(m_book->data(), way, {u"Business"_s, u"Clients"_s}, {u"Trade"_s, u"Shops"_s}));
    QTEST(sorted(u"select category1,category2 from cnt_main"_s), "contacts");
    QTEST(rows(u"select category1,category2,deleted from cntb_categories"_s), "categories");
    QCOMPARE(rows(treeCategoriesSql()), (QStringList{u"Business"_s, u"Trade"_s}));
    QCOMPARE(rows(targetSubcategoriesSql(u"Business"_s)), QStringList{u"Dealers"_s});
    QCOMPARE(rows(u"select category1 from cnt_letters"_s).size(), 3);
}

void SetupRulesTest::categoryIsKnown_data()
{
    QTest::addColumn<Category>("category");
    QTest::addColumn<qint64>("except");
    QTest::addColumn<bool>("known");
    QTest::newRow("there, in another case") << Category{u"TRADE"_s, u"clients"_s} << qint64(0) << true;
    QTest::newRow("itself") << Category{u"Trade"_s, u"Clients"_s} << qint64(3) << false;
    QTest::newRow("another one") << Category{u"Trade"_s, u"Clients"_s} << qint64(1) << true;
    QTest::newRow("retired") << Category{u"Business"_s, u"Dealers"_s} << qint64(0) << false;
    QTest::newRow("other subcategory") << Category{u"Trade"_s, u"Shops"_s} << qint64(0) << false;
}

void SetupRulesTest::categoryIsKnown()
{
    QFETCH(const Category, category);
    QFETCH(const qint64, except);
    addCategories();
    execute(u"update cntb_categories set deleted = true where category2='Dealers'"_s);
    QTEST(isCategoryKnown(m_book->data(), category, except), "known");
}

void SetupRulesTest::journalPieces_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("mails");
    QTest::addColumn<QString>("associations");
    QTest::newRow("nothing") << u""_s << u"Letters|Sent"_s << u"Emails|Sent"_s << u"Asso|Meetings"_s;
    QTest::newRow("both") << u"Work-Done"_s << u"Work|Done"_s << u"Work|Done"_s << u"Work|Done"_s;
    QTest::newRow("no second piece") << u"Work"_s << u"Work|Sent"_s << u"Work|Sent"_s << u"Work|Meetings"_s;
    QTest::newRow("no first piece") << u" -Done"_s << u"Letters|Done"_s << u"Emails|Done"_s << u"Asso|Done"_s;
    QTest::newRow("three pieces") << u"A-B-C"_s << u"A|B"_s << u"A|B"_s << u"A|B"_s;
}

// Without a settings row there is one afterwards; what is no default stays.
void SetupRulesTest::journalPieces()
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

void SetupRulesTest::fontHasOneRowAmongOthers()
{
    execute(u"insert into OV_GridFont (Proj,Font) values ('Scheduler',14)"_s);
    QVERIFY(saveGridFont(m_book->data(), 12));
    QVERIFY(saveGridFont(m_book->data(), 10));
    QCOMPARE(rows(u"select Proj,Font,Frm,contr from OV_GridFont"_s),
        (QStringList{u"Scheduler|14|null|null"_s, u"Contacts|10||Grid"_s}));
}

void SetupRulesTest::availableCities_data()
{
    QTest::addColumn<CityTable>("scope");
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("mainOnly");
    QTest::addColumn<QString>("cities");
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

void SetupRulesTest::availableCities()
{
    QFETCH(const CityTable, scope);
    QFETCH(const QString, place);
    QFETCH(const bool, mainOnly);
    for (const QString& row :
        {u"'Mumbai','Maharashtra','M'"_s, u"'Thane','Maharashtra',''"_s, u"'Panaji','Goa','M'"_s})
        execute(u"insert into wia_india (city,state,chtype) values (%1)"_s.arg(row));
    for (const QString& row : {u"'Paris',7,'M'"_s, u"'Lyon',7,'M'"_s, u"'Vichy',7,''"_s, u"'Rome',8,'M'"_s})
        execute(u"insert into wia_city (city,[country id],chtype) values (%1)"_s.arg(row));
    execute(u"insert into wia_globalmas (id,country) values (7,'France')"_s);
    QTEST(rows(availableCitiesSql(scope, place, mainOnly)).join(u','), "cities");
}

void SetupRulesTest::frequentCities()
{
    jet::Database& data = m_book->data();
    QVERIFY(addFrequentCity(data, CityTable::National, u"Pune"_s) == CityAdded::Yes);
    QVERIFY(addFrequentCity(data, CityTable::National, u"Xi'an"_s) == CityAdded::Yes);
    QVERIFY(addFrequentCity(data, CityTable::National, u"PUNE"_s) == CityAdded::Known);
    QVERIFY(addFrequentCity(data, CityTable::International, u"Pune"_s) == CityAdded::Yes);
    QVERIFY(setDefaultCity(data, u"Pune"_s));
    QVERIFY(removeFrequentCity(data, CityTable::National, 0, u"Pune"_s) == CityRemoved::IsDefault);
    QVERIFY(removeFrequentCity(data, CityTable::National, 0, u"Xi'an"_s) == CityRemoved::Failed);
    QVERIFY(removeFrequentCity(data, CityTable::National, 1, u"Xi'an"_s) == CityRemoved::Yes);
    QCOMPARE(rows(u"select city,type,priority from cnt_topcities"_s),
        (QStringList{u"Pune|National|1"_s, u"Pune|International|1"_s}));
}

// A choice that is no city of the list, or breaks the statement, leaves the default as it was.
void SetupRulesTest::oneDefaultCity()
{
    for (const QString& city : {u"Pune"_s, u"Goa"_s})
        addFrequentCity(m_book->data(), CityTable::National, city);
    QVERIFY(setDefaultCity(m_book->data(), u"Pune"_s));
    QVERIFY(setDefaultCity(m_book->data(), u"Goa"_s));
    QCOMPARE(rows(defaultCitySql()), QStringList{u"Goa"_s});
    QVERIFY(!setDefaultCity(m_book->data(), u"Delhi"_s));
    QVERIFY(!setDefaultCity(m_book->data(), u"Xi'an"_s));
    m_book->expectFailure(u"Xi'an"_s);
    QCOMPARE(rows(defaultCitySql()), QStringList{u"Goa"_s});
}

QTEST_GUILESS_MAIN(SetupRulesTest)
#include "setup_rules_test.moc"
