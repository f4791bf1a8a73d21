#include "support/test_book.h"
#include "views/search/search_clauses.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace views;

/// The statements of the search screen, and what they find.
class SearchClausesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void texts_data();
    void texts();
    void filterFinds_data();
    void filterFinds();
    void brokenChoices_data();
    void brokenChoices();
    void nameSearch_data();
    void nameSearch();
    void keywordText();
    void keywordFinds_data();
    void keywordFinds();
    void keywordLooksIntoEachColumn_data();
    void keywordLooksIntoEachColumn();
    void lists_data();
    void lists();
    void gridsPairOff_data();
    void gridsPairOff();

private:
    std::unique_ptr<support::TestBook> m_book;
};

namespace {

// 1 Ann, 2 Bob, 3 Cy, 4 Dee.
void seed(support::TestBook& book)
{
    for (const QString& values :
        {
            u"'Ann Lee','Ann','Lee','Acme','Friends','Chess','Pune','020','1','Roy','Bob','','Moore','50% off'"_s,
            u"'Bob Ray','Bob','Ray','Acme','Work','Sales','Agra','0562','2','Ann','','','','a*b'"_s,
            u"'Cy Young','Cy','Young','Bolt','Work','Chess','pune','020','2','','','Ann','','[x]'"_s,
            u"'Dee Lee','Dee','Lee','','Friends','','','','','','','','Kent',''"_s,
        }) {
        QVERIFY(
            book.data()
                .execute(u"insert into cnt_main (Name, First, Last, Company, category1, category2, h_city, "
                         "h_std, Priority, Spouse, kid1, kid2, Maiden, fam_note) values ("_s
                    + values + u')')
                .ok);
    }
}

QString idsOf(support::TestBook& book, const QString& sql)
{
    const jet::Recordset rows = book.data().openRecordset(sql);
    if (!rows.isValid())
        return u"fails"_s;
    QStringList ids;
    for (int row = 0; row < rows.count(); ++row)
        ids << rows.textAt(row, rows.columnIndex(u"id"));
    return ids.join(u',');
}

} // namespace

void SearchClausesTest::initTestCase()
{
    m_book = std::make_unique<support::TestBook>();
    seed(*m_book);
}

void SearchClausesTest::texts_data()
{
    QTest::addColumn<SearchChoices>("choices");
    QTest::addColumn<QString>("clause");
    QTest::newRow("untouched") << SearchChoices{} << u""_s;
    QTest::newRow("all on All, or blank")
        << SearchChoices{.category = u"All"_s, .city = u"  "_s, .areaCode = u"All"_s} << u""_s;
    QTest::newRow("other letters are a value")
        << SearchChoices{.city = u"all"_s} << u" where  h_city like 'all'"_s;
    QTest::newRow("as typed") << SearchChoices{.city = u" Pu* "_s} << u" where  h_city like ' Pu* '"_s;
    QTest::newRow("category alone: no blank in front")
        << SearchChoices{.category = u"Work"_s} << u"where category1 like 'Work'"_s;
    QTest::newRow("priority: no apostrophes")
        << SearchChoices{.priority = u"1"_s} << u" where  priority like 1"_s;
    QTest::newRow("Kept: the first name comes twice")
        << SearchChoices{.first = u"Ann"_s} << u" where  first like 'Ann' or  first like 'Ann'"_s;
    QTest::newRow("Kept: family without brackets")
        << SearchChoices{.category = u"Work"_s, .anyFirst = u"Ann"_s}
        << u"where category1 like 'Work' and  first like 'Ann' or spouse like 'Ann' or kid1 like 'Ann' or kid2 like 'Ann' or kid3 like 'Ann'"_s;
    QTest::newRow("all ten, in order")
        << SearchChoices{u"a"_s, u"2"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s, u"h"_s, u"i"_s, u"j"_s}
        << u"where category1 like 'a' and  priority like 2 and  category2 like 'c' and  h_city like 'd'"
           " and  company like 'e' and  first like 'f' and  first like 'g' or spouse like 'g' or kid1 like "
           "'g'"
           " or kid2 like 'g' or kid3 like 'g' or  first like 'f' and  last like 'h' and  maiden like 'i'"
           " and  h_std like 'j'"_s;
    QTest::newRow("marks of the pattern itself") << SearchChoices{.city = u"{v}%1"_s, .areaCode = u"%2"_s}
                                                 << u" where  h_city like '{v}%1' and  h_std like '%2'"_s;
}

void SearchClausesTest::texts()
{
    QFETCH(SearchChoices, choices);
    QTEST(searchClause(choices), "clause");
    QCOMPARE(searchSql(choices), u"Select * from cnt_main "_s + searchClause(choices));
    QVERIFY(m_book->data().openRecordset(searchSql(choices)).isValid());
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::filterFinds_data()
{
    QTest::addColumn<SearchChoices>("choices");
    QTest::addColumn<QString>("ids");
    QTest::newRow("all") << SearchChoices{.category = u"All"_s} << u"1,2,3,4"_s;
    QTest::newRow("category") << SearchChoices{.category = u"work"_s} << u"2,3"_s;
    QTest::newRow("priority as a number") << SearchChoices{.priority = u"2"_s} << u"2,3"_s;
    QTest::newRow("no wildcard: the whole value") << SearchChoices{.city = u"Pun"_s} << u""_s;
    QTest::newRow("wildcard typed") << SearchChoices{.city = u"Pu*"_s} << u"1,3"_s;
    QTest::newRow("percent is a letter") << SearchChoices{.city = u"Pu%"_s} << u""_s;
    QTest::newRow("two conditions") << SearchChoices{.subcategory = u"Chess"_s, .company = u"Bolt"_s}
                                    << u"3"_s;
    QTest::newRow("family") << SearchChoices{.anyFirst = u"Ann"_s} << u"1,2,3"_s;
    QTest::newRow("Kept: family widens past the category")
        << SearchChoices{.category = u"Friends"_s, .anyFirst = u"Ann"_s} << u"1,2,3"_s;
    QTest::newRow("Kept: the first name widens past the category")
        << SearchChoices{.category = u"Work"_s, .first = u"Ann"_s} << u"1"_s;
    QTest::newRow("maiden") << SearchChoices{.maiden = u"Kent"_s} << u"4"_s;
    QTest::newRow("last and area code") << SearchChoices{.last = u"Lee"_s, .areaCode = u"020"_s} << u"1"_s;
}

void SearchClausesTest::filterFinds()
{
    QFETCH(SearchChoices, choices);
    QTEST(idsOf(*m_book, searchSql(choices) + u" order by id"_s), "ids");
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::brokenChoices_data()
{
    QTest::addColumn<SearchChoices>("choices");
    QTest::newRow("apostrophe") << SearchChoices{.last = u"O'Brien"_s};
    QTest::newRow("a word as priority") << SearchChoices{.priority = u"high"_s};
    QTest::newRow("open bracket") << SearchChoices{.city = u"Pu[*"_s};
}

void SearchClausesTest::brokenChoices()
{
    QFETCH(SearchChoices, choices);
    m_book->expectFailure(u" in: "_s);
    QVERIFY(!m_book->data().openRecordset(searchSql(choices)).isValid());
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::nameSearch_data()
{
    QTest::addColumn<NameChoices>("choices");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("ids");
    QTest::newRow("all") << NameChoices{u"All"_s, u" "_s, {}}
                         << u"Select * from cnt_main order by first,last,company"_s << u"1,2,3,4"_s;
    QTest::newRow("last") << NameChoices{.last = u"Lee"_s}
                          << u"Select * from cnt_main  where  last like 'Lee'order by first,last,company"_s
                          << u"1,4"_s;
    QTest::newRow("all three")
        << NameChoices{u"A*"_s, u"L*"_s, u"Acme"_s}
        << u"Select * from cnt_main  where  first like 'A*' and  last like 'L*' and  company like 'Acme'order by first,last,company"_s
        << u"1"_s;
}

void SearchClausesTest::nameSearch()
{
    QFETCH(NameChoices, choices);
    QTEST(nameSearchSql(choices), "sql");
    QTEST(idsOf(*m_book, nameSearchSql(choices)), "ids");
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::keywordText()
{
    QCOMPARE(keywordHitsSql(u"k"_s),
        u"select id, "
        u"first,last,company,location,category1,category2,h_city,w_addtype,fam_note,b_note,education,"
        "region,hobbies from cnt_main  where  first like '*k*' or  last like '*k*' or  company like '*k*' or "
        " "
        "location like '*k*' or  category1 like '*k*' or  category2 like '*k*' or  h_city like '*k*' or  "
        "w_addtype like '*k*' or  fam_note like '*k*' or  b_note like '*k*' or  education like '*k*' or  "
        "region like '*k*' or  hobbies like '*k*'"_s);
}

void SearchClausesTest::keywordFinds_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("ids");
    QTest::newRow("a word, in any case") << u"aCm"_s << u"1,2"_s;
    QTest::newRow("a star in it stays a wildcard") << u"P*e"_s << u"1,3"_s;
    QTest::newRow("a percent is a letter") << u"50%"_s << u"1"_s;
    QTest::newRow("a closed bracket is a set") << u"[yx]oung"_s << u"3"_s;
    QTest::newRow("a bracket by its set") << u"[[]x"_s << u"3"_s;
    QTest::newRow("an open bracket breaks it") << u"[x"_s << u"fails"_s;
    QTest::newRow("an apostrophe breaks it") << u"O'B"_s << u"fails"_s;
    QTest::newRow("nothing to look for: all") << u""_s << u"1,2,3,4"_s;
    QTest::newRow("no hit") << u"zebra"_s << u""_s;
}

void SearchClausesTest::keywordFinds()
{
    QFETCH(QString, keyword);
    QFETCH(QString, ids);
    if (ids == u"fails"_s)
        m_book->expectFailure(u" in: "_s);
    QCOMPARE(idsOf(*m_book, keywordHitsSql(keyword)), ids);
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::keywordLooksIntoEachColumn_data()
{
    QTest::addColumn<int>("found");
    for (const char* column : {"First", "Last", "Company", "Location", "category1", "category2", "h_city",
             "w_addtype", "fam_note", "b_note", "education", "region", "hobbies"})
        QTest::newRow(column) << 1;
    for (const char* column : {"Name", "w_city", "altcontact", "product"})
        QTest::newRow(column) << 0;
}

void SearchClausesTest::keywordLooksIntoEachColumn()
{
    support::TestBook book;
    const QString column = QString::fromLatin1(QTest::currentDataTag());
    for (const QString& value : {u"a NEEDLE b"_s, u"hay"_s})
        QVERIFY(book.data()
                    .execute(u"insert into cnt_main (["_s + column + u"]) values ('"_s + value + u"')"_s)
                    .ok);
    QTEST(book.data().openRecordset(keywordHitsSql(u"needle"_s)).count(), "found");
}

void SearchClausesTest::lists_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("city") << searchListSql(u"cmbgcity")
                          << u"select distinct h_city from cnt_main where h_city is not null"_s
                          << QStringList{u""_s, u"Agra"_s, u"Pune"_s};
    QTest::newRow("company") << searchListSql(u"CmbGCmpny")
                             << u"select distinct company from cnt_main where company is not null"_s
                             << QStringList{u""_s, u"Acme"_s, u"Bolt"_s};
    QTest::newRow("category") << searchListSql(u"cmbgcat")
                              << u"select distinct category1 from cnt_main where category1 is not null"_s
                              << QStringList{u"Friends"_s, u"Work"_s};
    QTest::newRow("area code") << searchListSql(u"CmbGStd")
                               << u"select distinct h_std from cnt_main where h_std is not null"_s
                               << QStringList{u""_s, u"020"_s, u"0562"_s};
    QTest::newRow("first") << searchListSql(u"cmbgfirst") << u"select distinct first from cnt_main"_s
                           << QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dee"_s};
    QTest::newRow("last") << searchListSql(u"cmbglast") << u"select distinct last from cnt_main"_s
                          << QStringList{u"Lee"_s, u"Ray"_s, u"Young"_s};
    QTest::newRow("family")
        << searchListSql(u"cmbfl")
        << u"select distinct first  as name from cnt_main union select distinct spouse as name from cnt_main union select distinct kid1   as name from cnt_main union select distinct kid2   as name from cnt_main union select distinct kid3   as name from cnt_main  "_s
        << QStringList{u"null"_s, u""_s, u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dee"_s, u"Roy"_s};
    QTest::newRow("maiden") << searchListSql(
        u"DBCMaiden") << u"select distinct Maiden from cnt_main where Maiden <> null and len(maiden) <> 0"_s
                            << QStringList{u"Kent"_s, u"Moore"_s};
    QTest::newRow("subcategories of all")
        << subcategoryListSql(u"All"_s)
        << u"select distinct category2 from cnt_main where category2 is not null"_s
        << QStringList{u""_s, u"Chess"_s, u"Sales"_s};
    QTest::newRow("subcategories of one")
        << subcategoryListSql(u"Work"_s)
        << u"select distinct category2 from cnt_main where category2 is not null and category1 like 'Work'"_s
        << QStringList{u"Chess"_s, u"Sales"_s};
}

void SearchClausesTest::lists()
{
    QFETCH(QString, sql);
    QTEST(sql, "expected");
    QTEST(m_book->rows(sql), "values");
    QCOMPARE(m_book->unexpected(), QString());
}

void SearchClausesTest::gridsPairOff_data()
{
    QTest::addColumn<QString>("headings");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("expected");
    const SearchGrid category = contactGrid(ViewBy::Category);
    QTest::newRow("by category")
        << category.headings.toString() << category.columns
        << u"               |Category               |Sub Category          |City                  |Company                            |Std                |First               |Last              |Name                                    "_s;
    const SearchGrid name = contactGrid(ViewBy::Name);
    QTest::newRow("by name")
        << name.headings.toString() << name.columns
        << u"               |Name                          |Category               |Sub Category          |City                  |Company                            |Std                |First               |Last                "_s;
    const SearchGrid keyword = keywordGrid();
    QTest::newRow("keyword")
        << keyword.headings.toString() << keyword.columns
        << u"||First   |Last   |Company    |Location   |Category   |Sub Category   |City       |Home Address|Work Address |Work Type  |Family Note    |Business Product|Business Note|Education|Region|Hobbies "_s;
}

// Each heading over a column that every contact has.
void SearchClausesTest::gridsPairOff()
{
    QFETCH(QString, headings);
    QFETCH(QStringList, columns);
    QTEST(headings, "expected");
    const QStringList texts = headings.split(u'|');
    QCOMPARE(columns.size(), texts.size());
    const jet::Recordset all = m_book->data().openRecordset(contactsByCategorySql());
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(columns[i].isEmpty(), texts[i].trimmed().isEmpty());
        QVERIFY2(columns[i].isEmpty() || all.columnIndex(columns[i]) >= 0, qPrintable(columns[i]));
    }
    QCOMPARE(contactsByCategorySql(), u"SELECT * FROM CNT_Main order by category1,name"_s);
    QCOMPARE(contactsByNameSql(), u"SELECT * FROM CNT_Main order by name"_s);
}

QTEST_GUILESS_MAIN(SearchClausesTest)
#include "search_clauses_test.moc"
