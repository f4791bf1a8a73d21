#include "support/columns.h"
#include "support/test_book.h"
#include "views/search/tree_search_sql.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

namespace {

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

/// The statements behind the results of the advanced search and of the trees.
class TreeSearchSqlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Each choice finds whoever has it in one of its columns, and nobody by another column.
    void choicesLookIntoTheirColumns()
    {
        using Choice = QString TreeChoices::*;
        const std::pair<Choice, QString> places[] = {{&TreeChoices::priority, u"priority"_s},
            {&TreeChoices::country, u"h_country w_country b_country"_s},
            {&TreeChoices::category, u"category1"_s}, {&TreeChoices::subcategory, u"category2"_s},
            {&TreeChoices::city, u"h_city b_city"_s}, {&TreeChoices::company, u"company"_s},
            {&TreeChoices::first, u"first"_s},
            {&TreeChoices::mainName, u"name spouse kid1 kid2 kid3 altContact"_s},
            {&TreeChoices::last, u"last"_s}, {&TreeChoices::maiden, u"maiden"_s},
            {&TreeChoices::areaCode, u"h_std w_std b_std"_s}, {&TreeChoices::product, u"product"_s},
            {&TreeChoices::relation, u"relation"_s}, {&TreeChoices::status, u"status"_s}};
        support::TestBook book;
        for (const auto& [choice, columns] : places) {
            for (const QString& column : columns.split(u' '))
                QVERIFY(book.data().execute(
                    u"insert into cnt_main (%1,memo1) values ('hit','%2')"_s.arg(column, columns)));
        }
        TreeChoices all;
        for (const auto& [choice, columns] : places) {
            TreeChoices one;
            one.*choice = all.*choice = u"hit"_s;
            const QString memos = u"select memo1 from cnt_main "_s + treeChoicesClause(one);
            QCOMPARE(book.rows(memos), QStringList(columns.count(u' ') + 1, columns));
            const int both = choice == &TreeChoices::priority ? 1 : 0;
            QCOMPARE(ids(book, u"select id from cnt_main "_s + treeChoicesClause(all)).size(), both);
        }
        QCOMPARE(treeChoicesClause({.country = u"All"_s, .city = u"  "_s}), QString());
        QCOMPARE(book.unexpected(), QString());
    }

    void choicesFind_data()
    {
        support::columns<TreeChoices, QString>("choices", "found");
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

    void choicesFind()
    {
        QFETCH(TreeChoices, choices);
        support::TestBook book(support::TestBook::Rows::Sample);
        QVERIFY(book.data().execute(u"update cnt_main set w_city='Colaba', b_city='=Kothrud' where id=3"));
        QTEST(ids(book, foundQuery(treeChoicesClause(choices), ViewBy::Category).sql), "found");
        QCOMPARE(book.unexpected(), QString());
    }

    void nodesFind_data()
    {
        support::columns<TreeKind, ViewBy, QStringList, QString>("kind", "view", "path", "found");
        const QStringList mumbai{u"West"_s, u"India"_s, u"Maharashtra"_s, u"Mumbai"_s};
        const auto place = [](const char* name, const QStringList& path, const QString& found) {
            QTest::newRow(name) << TreeKind::Location << ViewBy::Name << path << found;
        };
        place("city: once though home and work are both there", mumbai, u"1,11"_s);
        place("state: once for each address that differs", mumbai.first(3), u"1,1,11,3"_s);
        place("country", mumbai.first(2), u"1,1,11,3,7"_s);
        const auto category
            = [](const char* name, ViewBy view, const QStringList& path, const QString& found) {
                  QTest::newRow(name) << TreeKind::Category << view << path << found;
              };
        category("category by name", ViewBy::Name, {u"Friends"_s}, u"12,2,10,9"_s);
        category("subcategory", ViewBy::Category, {u"Friends"_s, u"Family"_s}, u"10"_s);
        category("Kept: subcategory by name leaves the category out", ViewBy::Name,
            {u"Friends"_s, u"Family"_s}, u"10,3"_s);
        category("an apostrophe finds nothing", ViewBy::Category, {u"It's"_s}, u"(failed)"_s);
    }

    void nodesFind()
    {
        QFETCH(TreeKind, kind);
        QFETCH(ViewBy, view);
        QFETCH(QStringList, path);
        support::TestBook book(support::TestBook::Rows::Sample);
        if (path.last().contains(u'\''))
            book.expectFailure(u"It's"_s);
        QStringList found = ids(book, nodeQuery(kind, path, view).sql).split(u',');
        if (kind == TreeKind::Location) // of one place in any order
            found.sort();
        QTEST(found.join(u','), "found");
        QCOMPARE(ids(book, thumbnailQuery(7, view).sql), u"7"_s);
        QCOMPARE(book.unexpected(), QString());
    }

    // Kept: of a region the first work address shows the code of the home, and of a country the second work
    // address that of the first.
    void areaCodesOfTheAddresses()
    {
        support::TestBook book;
        QVERIFY(book.data().execute(u"insert into cnt_main "
                                    u"(region,h_country,w_country,b_country,h_state,w_state,b_state,h_city,w_"
                                    u"city,b_city,h_std,w_std,b_"
                                    u"std) values ('R','C','C','C','S','S','S','H','W','B','1','2','3')"));
        QStringList path;
        for (const auto& [step, codes] :
            {std::pair{u"R"_s, u"3 1 1"_s}, std::pair{u"C"_s, u"2 1 2"_s}, std::pair{u"S"_s, u"3 1 2"_s}}) {
            path << step;
            QStringList shown;
            for (const QString& row : book.rows(nodeQuery(TreeKind::Location, path, ViewBy::Name).sql))
                shown << row.section(u'|', -1);
            QCOMPARE(shown.join(u' '), codes); // by city: B, H, W
        }
    }

    void headingsFitTheirColumns_data()
    {
        support::columns<ResultQuery, QStringList>("query", "columns");
        const QStringList categoryFirst{
            u"id"_s, u"Category1"_s, u"Category2"_s, u"First"_s, u"Last"_s, u"h_City"_s, u"h_Std"_s};
        QTest::newRow("found") << foundQuery({}, ViewBy::Name) << categoryFirst;
        QTest::newRow("node") << nodeQuery(TreeKind::Category, {}, ViewBy::Category) << categoryFirst;
    }

    // The words of a heading tell the column that stands below it.
    void headingsFitTheirColumns()
    {
        QFETCH(ResultQuery, query);
        QFETCH(QStringList, columns);
        support::TestBook book;
        QCOMPARE(book.data().openRecordset(query.sql).columns().join(u',').toLower(),
            columns.join(u',').toLower());
        QStringList headings;
        for (const QStringView heading : query.headings.split(u'|'))
            headings << heading.trimmed().toString();
        QCOMPARE(headings.join(u','), u",Category,Subcategory,First,Last,City,Telcode"_s);
    }

    void branches_data()
    {
        support::columns<TreeKind, QStringList, QStringList>("kind", "path", "texts");
        QTest::newRow("countries of all three addresses, neither All nor empty")
            << TreeKind::Location << QStringList{u"North"_s} << QStringList{u"Chad"_s, u"Peru"_s};
        QTest::newRow("states") << TreeKind::Location << QStringList{u"North"_s, u"Peru"_s}
                                << QStringList{u"Cusco"_s};
        QTest::newRow("cities") << TreeKind::Location << QStringList{u"North"_s, u"Peru"_s, u"Cusco"_s}
                                << QStringList{u"Ollantaytambo"_s, u"Pisac"_s};
        QTest::newRow("categories") << TreeKind::Category << QStringList{} << QStringList{u"A"_s, u"B"_s};
        QTest::newRow("subcategories")
            << TreeKind::Category << QStringList{u"A"_s} << QStringList{u"x"_s, u"y"_s};
    }

    void branches()
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

    void dashInACategory()
    {
        support::TestBook book;
        QVERIFY(book.data().execute(u"insert into cnt_main (category1,category2) values ('A-B','C-D')"));
        QVERIFY(book.data().execute(u"insert into cnt_main (category1,category2) values ('A','B')"));
        const QStringList path{u"A-B"_s, u"C-D"_s};
        QCOMPARE(treeNodeKey(path), u"A-B-C-D"_s);
        QCOMPARE(treeNodeKey({}), u"Main"_s);
        QCOMPARE(ids(book, nodeQuery(TreeKind::Category, path, ViewBy::Category).sql), u"1"_s);
    }

    void normalisingFillsWhatIsEmpty()
    {
        support::TestBook book;
        QVERIFY(
            book.data().execute(u"insert into cnt_main (category1,h_city,w_country) values ('','Pune','')"));
        QVERIFY(book.data().execute(
            u"insert into cnt_main (category1,h_country,w_country) values ('A','','Peru')"_s));
        const auto normalise = [&book](qint64 id) {
            for (const QString& statement : normalisingStatements(id, id))
                QVERIFY(book.data().execute(statement));
        };
        normalise(1);
        QCOMPARE(book.rows(unclassifiedSql()), QStringList{u"2"_s});
        normalise(2);
        QCOMPARE(book.rows(u"select category1,h_country,w_country from cnt_main where id=2"_s),
            QStringList{u"A|Undefined|Peru"_s});
        QVERIFY(book.data().execute(u"delete * from cnt_main where id=2"));
        QCOMPARE(
            book.rows(
                u"select category1,category2,region,h_country,b_country,h_state,b_state,w_state,h_city,w_city,b_city from cnt_main"_s),
            QStringList{
                u"Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Undefined|Pune|Undefined|Undefined"_s});
        // Kept: the empty text is looked for in the country of the home, so an empty one at work stays.
        QCOMPARE(book.rows(u"select w_country from cnt_main"_s), QStringList{u""_s});
        QCOMPARE(book.rows(unclassifiedSql()), QStringList());
        // To the letter, or the index is not used and each look takes as long as a search.
        for (const jet::SchemaIndex& index : support::TestBook::schema().indexes) {
            QString condition = index.condition.toLower().remove(u'[').remove(u']');
            condition.replace(u"length"_s, u"len"_s).replace(u" = "_s, u"="_s);
            if (index.name == u"cnt_main_unclassified")
                QVERIFY2(unclassifiedSql().contains(u" where "_s + condition + u" order"_s),
                    qPrintable(condition));
        }
    }

    void listsOffer_data()
    {
        support::columns<QString, QString, QStringList>("combo", "restriction", "values");
        QTest::newRow("country of any address")
            << u"cboCountry"_s << u""_s << QStringList{u"India"_s, u"Peru"_s, u"Spain"_s};
        QTest::newRow("city, All") << u"cboCity"_s << u"All"_s
                                   << QStringList{u"Cusco"_s, u"Pune"_s, u"Vigo"_s};
        QTest::newRow("city of a country: of that address only")
            << u"cboCity"_s << u"Peru"_s << QStringList{u"Cusco"_s};
        QTest::newRow("code of a country") << u"cboStd"_s << u"Spain"_s << QStringList{u"986"_s};
        QTest::newRow("subcategory of a category") << u"cboSubCateg"_s << u"A"_s << QStringList{u"x"_s};
        QTest::newRow("main name: six columns")
            << u"cboMain"_s << u""_s
            << QStringList{u"Alt"_s, u"Kid1"_s, u"Kid2"_s, u"Kid3"_s, u"Main"_s, u"Spouse"_s};
        QTest::newRow("maiden without null and empty") << u"cboMaiden"_s << u""_s << QStringList{u"Kent"_s};
    }

    void listsOffer()
    {
        QFETCH(QString, combo);
        QFETCH(QString, restriction);
        support::TestBook book;
        QVERIFY(
            book.data().execute(u"insert into cnt_main "
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
};

QTEST_GUILESS_MAIN(TreeSearchSqlTest)
#include "tree_search_sql_test.moc"
