#include "support/test_book.h"
#include "views/search/tree_search_sql.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The statements behind the results of the advanced search and of the trees.
class TreeSearchSqlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choices_data();
    void choices();
    void choicesFind_data();
    void choicesFind();
    void nodes_data();
    void nodes();
    void nodesFind_data();
    void nodesFind();
    void headingsFitTheirColumns_data();
    void headingsFitTheirColumns();
    void branches_data();
    void branches();
    void dashInACategory();
    void normalisingFillsWhatIsEmpty();
    void listsOffer_data();
    void listsOffer();
};

namespace {

constexpr QStringView kNamesFirst = u"select id,first,last,Category1,Category2,h_City,h_Std  from cnt_main ";

QString ids(support::TestBook& book, const QString& sql)
{
    const jet::Recordset rows = book.data().openRecordset(sql);
    if (!rows.isValid())
        return u"(failed)"_s;
    QStringList found;
    for (int row = 0; row < rows.count(); ++row)
        found << rows.textAt(row, rows.columnIndex(u"id"));
    return found.join(u',');
}

} // namespace

void TreeSearchSqlTest::choices_data()
{
    QTest::addColumn<TreeChoices>("choices");
    QTest::addColumn<QString>("clause");
    QTest::newRow("nothing: no clause") << TreeChoices{.country = u"All"_s, .city = u"  "_s} << QString();
    QTest::newRow("all fourteen in order")
        << TreeChoices{u"p"_s, u"co"_s, u"ca"_s, u"su"_s, u"ci"_s, u"cm"_s, u"f"_s, u"mn"_s, u"l"_s, u"md"_s,
               u"st"_s, u"pr"_s, u"re"_s, u"sa"_s}
        << u" where  ( priority like 'p' )  and ( h_country like 'co' or w_country like 'co' or b_country "
           u"like 'co')  and  category1 like 'ca' and  category2 like 'su' and  ( h_city like 'ci' or b_city "
           u"like 'ci' or b_city like '=ci') and  company like 'cm' and  first like 'f' and  (name like 'mn' "
           u"or spouse like 'mn' or kid1 like 'mn' or kid2 like 'mn' or kid3 like 'mn' or altContact "
           u"like'mn') and  last like 'l' and  maiden like 'md' and ( h_std like 'st' or w_std like 'st' or "
           u"b_std like 'st') and  ( product like 'pr') and  ( relation like 're') and  ( status like 'sa')"_s;
    const auto priority = [](const char* word, const QString& chain) {
        QTest::newRow(word) << TreeChoices{.priority = QString::fromLatin1(word)}
                            << u" where  ( priority like '%1' ) "_s.arg(chain);
    };
    priority("1&2", u"1' or Priority like '2"_s);
    priority("2&3", u"2' or Priority like '3"_s);
    priority("3&4", u"3' or Priority like '4"_s);
}

void TreeSearchSqlTest::choices()
{
    QFETCH(TreeChoices, choices);
    QTEST(treeChoicesClause(choices), "clause");
}

void TreeSearchSqlTest::choicesFind_data()
{
    QTest::addColumn<TreeChoices>("choices");
    QTest::addColumn<QString>("found");
    QTest::newRow("priority chain finds both") << TreeChoices{.priority = u"3&4"_s} << u"3,4,10,12"_s;
    QTest::newRow("a work address counts for the country")
        << TreeChoices{.country = u"United States"_s} << u"2"_s;
    QTest::newRow("Kept: a city of the first work address alone is not found")
        << TreeChoices{.city = u"Colaba"_s} << QString();
    QTest::newRow("Kept: a second work address that begins with an equals sign is")
        << TreeChoices{.city = u"Kothrud"_s} << u"3"_s;
    QTest::newRow("city of the second work address") << TreeChoices{.city = u"Chicago"_s} << u"2"_s;
    QTest::newRow("alternate contact") << TreeChoices{.mainName = u"Anil Rao"_s} << u"1"_s;
    QTest::newRow("chain does not widen what follows")
        << TreeChoices{.priority = u"1&2"_s, .first = u"Mary"_s} << u"2"_s;
    QTest::newRow("star that was typed") << TreeChoices{.maiden = u"Sh*"_s} << u"3"_s;
}

void TreeSearchSqlTest::choicesFind()
{
    QFETCH(TreeChoices, choices);
    support::TestBook book(support::TestBook::Rows::Sample);
    QVERIFY(book.data().execute(u"update cnt_main set w_city='Colaba', b_city='=Kothrud' where id=3"));
    QTEST(ids(book, foundQuery(treeChoicesClause(choices), ViewBy::Category).sql), "found");
    QCOMPARE(book.unexpected(), QString());
}

void TreeSearchSqlTest::nodes_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("expected");
    const auto category
        = [](const QStringList& path, ViewBy view) { return nodeQuery(TreeKind::Category, path, view).sql; };
    const auto location
        = [](const QStringList& path) { return nodeQuery(TreeKind::Location, path, ViewBy::Name).sql; };
    QTest::newRow("Kept: names first by category")
        << foundQuery({}, ViewBy::Category).sql << kNamesFirst.toString();
    QTest::newRow("Kept: categories first by name")
        << foundQuery(u" where x"_s, ViewBy::Name).sql
        << u"select id,Category1,Category2,First,Last,h_City,h_Std  from cnt_main  where x"_s;
    QTest::newRow("root by category")
        << category({}, ViewBy::Category)
        << u"select id,Category1,Category2,First,Last,h_City,h_Std from cnt_main order by category1"_s;
    QTest::newRow("root by name")
        << category({}, ViewBy::Name)
        << u"select id,First,Last,Category1,Category2,h_City,h_Std from cnt_main order by first,last"_s;
    QTest::newRow("category by category")
        << category({u"A"_s}, ViewBy::Category)
        << u"select id,Category1,Category2,First,Last,h_City,h_Std from cnt_main where category1='A' order by category1 "_s;
    QTest::newRow("category by name")
        << category({u"A"_s}, ViewBy::Name)
        << u"select id,First,Last,Category1,Category2,h_City,h_Std from cnt_main where category1='A' order by first,last "_s;
    QTest::newRow("subcategory by category")
        << category({u"A"_s, u"B"_s}, ViewBy::Category)
        << u"select id,Category1,Category2,First,Last,h_City,h_Std  from cnt_main where category2='B' and category1='A' order by category1"_s;
    QTest::newRow("Kept: subcategory by name leaves the category out")
        << category({u"A"_s, u"B"_s}, ViewBy::Name)
        << u"select id,First,Last,Category1,Category2,h_City,h_Std  from cnt_main where category2='B' order by First,Last"_s;
    QTest::newRow("location root") << location(
        {}) << u"select id,region,h_Country,h_State,h_City,First,Last,h_Std from cnt_main order by region "_s;
    QTest::newRow("Kept: region, home code of the work address")
        << location({u"R"_s})
        << u"select id,region,h_Country,h_State,h_City,First,Last,h_Std from cnt_main where region='R' "
           u"UNION select id,region,w_Country,w_State,w_City,First,Last,h_Std from cnt_main where w_city is "
           u"not null and w_city <>'' and region='R' UNION select "
           u"id,region,b_Country,b_State,b_City,First,Last,b_Std from cnt_main where b_city is not null and "
           u"b_city <>'' and region='R' order by region,h_country,h_state,h_city"_s;
    QTest::newRow("Kept: country, first work code of the second work address")
        << location({u"R"_s, u"C"_s})
        << u"select id,region,h_Country,h_State,h_City,First,Last,h_Std from cnt_main where region='R' and "
           u"h_country ='C' UNION select id,region,w_Country,w_State,w_City,First,Last,w_Std from cnt_main "
           u"where w_city is not null and w_city <>'' and region='R' and w_country ='C' UNION select "
           u"id,region,b_Country,b_State,b_City,First,Last,w_Std from cnt_main where b_city is not null and "
           u"b_city <>'' and region='R' and b_country ='C' order by region,h_country,h_state,h_city"_s;
    const QString state
        = u"select id,region,h_country,h_state,h_city,First,Last,h_std from cnt_main where region='R' and "
          u"h_country='C' and h_state ='S'%1 UNION select "
          u"id,region,w_country,w_state,w_city,First,Last,w_std "
          u"from cnt_main where w_city is not null and w_city <>'' and region='R' and w_country='C' and "
          u"w_state ='S'%2 UNION select id,region,b_country,b_state,b_city,First,Last,b_std from cnt_main "
          u"where "
          u"b_city is not null and b_city <>'' and region='R' and b_country='C' and b_state ='S'%3 order by "
          u"region,h_country,h_state,h_city"_s;
    QTest::newRow("state") << location({u"R"_s, u"C"_s, u"S"_s}) << state.arg(u""_s, u""_s, u""_s);
    QTest::newRow("city") << location({u"R"_s, u"C"_s, u"S"_s, u"T"_s})
                          << state.arg(u" and h_city='T'"_s, u" and w_city='T'"_s, u" and b_city='T'"_s);
    QTest::newRow("thumbnail")
        << thumbnailQuery(7, ViewBy::Name).sql
        << u"Select id,Category1,Category2,First,Last,h_city,h_std from cnt_main where id=7"_s;
}

void TreeSearchSqlTest::nodes()
{
    QFETCH(QString, sql);
    QTEST(sql, "expected");
}

void TreeSearchSqlTest::nodesFind_data()
{
    QTest::addColumn<TreeKind>("kind");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("found");
    const QStringList mumbai{u"West"_s, u"India"_s, u"Maharashtra"_s, u"Mumbai"_s};
    QTest::newRow("city: once though home and work are both there")
        << TreeKind::Location << mumbai << u"1,11"_s;
    QTest::newRow("state: once for each address that differs")
        << TreeKind::Location << mumbai.first(3) << u"1,1,11,3"_s;
    QTest::newRow("sub category") << TreeKind::Category << QStringList{u"Business"_s, u"Clients"_s}
                                  << u"1,11,4"_s;
    QTest::newRow("an apostrophe finds nothing")
        << TreeKind::Category << QStringList{u"It's"_s} << u"(failed)"_s;
}

void TreeSearchSqlTest::nodesFind()
{
    QFETCH(TreeKind, kind);
    QFETCH(QStringList, path);
    support::TestBook book(support::TestBook::Rows::Sample);
    if (path.last().contains(u'\''))
        book.expectFailure(u"It's"_s);
    QStringList found = ids(book, nodeQuery(kind, path, ViewBy::Category).sql).split(u',');
    found.sort();
    QTEST(found.join(u','), "found");
    QCOMPARE(book.unexpected(), QString());
}

void TreeSearchSqlTest::headingsFitTheirColumns_data()
{
    QTest::addColumn<ResultQuery>("query");
    QTest::addColumn<QStringList>("columns");
    const QStringList categoryFirst{
        u"id"_s, u"Category1"_s, u"Category2"_s, u"First"_s, u"Last"_s, u"h_City"_s, u"h_Std"_s};
    QTest::newRow("found") << foundQuery({}, ViewBy::Name) << categoryFirst;
    QTest::newRow("node") << nodeQuery(TreeKind::Category, {}, ViewBy::Category) << categoryFirst;
}

// The words of a heading tell the column that stands below it.
void TreeSearchSqlTest::headingsFitTheirColumns()
{
    QFETCH(ResultQuery, query);
    QFETCH(QStringList, columns);
    support::TestBook book;
    QCOMPARE(
        book.data().openRecordset(query.sql).columns().join(u',').toLower(), columns.join(u',').toLower());
    QStringList headings;
    for (const QStringView heading : query.headings.split(u'|'))
        headings << heading.trimmed().toString();
    QCOMPARE(headings.join(u','), u",Category,Subcategory,First,Last,City,Telcode"_s);
}

void TreeSearchSqlTest::branches_data()
{
    QTest::addColumn<TreeKind>("kind");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("countries of all three addresses, neither All nor empty")
        << TreeKind::Location << QStringList{u"North"_s} << QStringList{u"Chad"_s, u"Peru"_s};
    QTest::newRow("states") << TreeKind::Location << QStringList{u"North"_s, u"Peru"_s}
                            << QStringList{u"Cusco"_s};
    QTest::newRow("cities") << TreeKind::Location << QStringList{u"North"_s, u"Peru"_s, u"Cusco"_s}
                            << QStringList{u"Ollantaytambo"_s, u"Pisac"_s};
    QTest::newRow("categories") << TreeKind::Category << QStringList{} << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("subcategories") << TreeKind::Category << QStringList{u"A"_s}
                                   << QStringList{u"x"_s, u"y"_s};
}

void TreeSearchSqlTest::branches()
{
    QFETCH(TreeKind, kind);
    QFETCH(QStringList, path);
    support::TestBook book;
    for (const QStringView values : {u"'North','Peru','Chad','All','Cusco','','Pisac','A','x'",
             u"'North','','Peru',null,null,'Cusco','Pisac','a','y'",
             u"'South','Mali','','','','','','B','z'"}) {
        QVERIFY(book.data().execute(
            u"insert into cnt_main (region,h_country,w_country,b_country,h_state,w_state,h_city,category1,category2) values ("_s
            + values.toString() + u')'));
    }
    QVERIFY(book.data().execute(u"update cnt_main set w_city='Ollantaytambo' where w_state='Cusco'"));
    QTEST(book.rows(treeBranchesSql(kind, path)), "texts");
    QCOMPARE(book.unexpected(), QString());
}

void TreeSearchSqlTest::dashInACategory()
{
    support::TestBook book;
    QVERIFY(book.data().execute(u"insert into cnt_main (category1,category2) values ('A-B','C-D')"));
    QVERIFY(book.data().execute(u"insert into cnt_main (category1,category2) values ('A','B')"));
    const QStringList path{u"A-B"_s, u"C-D"_s};
    QCOMPARE(treeNodeKey(path), u"A-B-C-D"_s);
    QCOMPARE(treeNodeKey({}), u"Main"_s);
    QCOMPARE(ids(book, nodeQuery(TreeKind::Category, path, ViewBy::Category).sql), u"1"_s);
}

void TreeSearchSqlTest::normalisingFillsWhatIsEmpty()
{
    support::TestBook book;
    QVERIFY(book.data().execute(u"insert into cnt_main (category1,h_city,w_country) values ('','Pune','')"));
    QCOMPARE(book.firstText(unclassifiedSql()), u"1"_s);
    for (const QString& statement : normalisingStatements())
        QVERIFY(book.data().execute(statement));
    QCOMPARE(
        book.rows(
            u"select category1,category2,region,h_country,b_country,h_state,b_state,w_state,h_city,w_city,b_city from cnt_main"_s),
        QStringList{
            u"Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Pune|Undefined|Undefined"_s});
    // Kept: the empty text is looked for in the country of the home, so an empty one at work stays.
    QCOMPARE(book.rows(u"select w_country from cnt_main"_s), QStringList{u""_s});
    QCOMPARE(book.firstText(unclassifiedSql()), u"0"_s);
}

void TreeSearchSqlTest::listsOffer_data()
{
    QTest::addColumn<QString>("combo");
    QTest::addColumn<QString>("restriction");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("country of any address")
        << u"cboCountry"_s << u""_s << QStringList{u"India"_s, u"Peru"_s, u"Spain"_s};
    QTest::newRow("city, All") << u"cboCity"_s << u"All"_s << QStringList{u"Cusco"_s, u"Pune"_s, u"Vigo"_s};
    QTest::newRow("city of a country: of that address only")
        << u"cboCity"_s << u"Peru"_s << QStringList{u"Cusco"_s};
    QTest::newRow("code of a country") << u"cboStd"_s << u"Spain"_s << QStringList{u"986"_s};
    QTest::newRow("subcategory of a category") << u"cboSubCateg"_s << u"A"_s << QStringList{u"x"_s};
    QTest::newRow("main name: six columns")
        << u"cboMain"_s << u""_s
        << QStringList{u"Alt"_s, u"Kid1"_s, u"Kid2"_s, u"Kid3"_s, u"Main"_s, u"Spouse"_s};
    QTest::newRow("maiden without null and empty") << u"cboMaiden"_s << u""_s << QStringList{u"Kent"_s};
}

void TreeSearchSqlTest::listsOffer()
{
    QFETCH(QString, combo);
    QFETCH(QString, restriction);
    support::TestBook book;
    QVERIFY(book.data().execute(u"insert into cnt_main "
                                u"(name,spouse,kid1,kid2,kid3,altcontact,maiden,category1,category2,h_"
                                u"country,h_city,h_std,w_country,w_city,b_country,b_city,b_std) values "
                                u"('Main','Spouse','Kid1','Kid2','Kid3','Alt','Kent','A','x','India','Pune','"
                                u"020','Peru','Cusco','Spain','Vigo','986')"));
    QVERIFY(book.data().execute(
        u"insert into cnt_main (name,spouse,kid1,kid2,kid3,altcontact,maiden,category1,category2) values "
        u"('Main','Spouse','Kid1','Kid2','Kid3','Alt','','B','y')"));
    for (const TreeList& list : treeLists()) {
        if (list.combo == combo)
            QTEST(book.rows(treeListSql(list, restriction)), "values");
        else
            book.rows(treeListSql(list, u"Peru"_s)); // none fails
    }
    QCOMPARE(book.unexpected(), QString());
}

QTEST_GUILESS_MAIN(TreeSearchSqlTest)
#include "tree_search_sql_test.moc"
