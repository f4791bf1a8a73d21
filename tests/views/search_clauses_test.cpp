#include "support/columns.h"
#include "support/test_book.h"
#include "views/filters/filter_clauses.h"
#include "views/full_view/full_view_sql.h"
#include "views/search/search_clauses.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace views;

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

/// The statements of the search screen, and what they find.
class SearchClausesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_book = std::make_unique<support::TestBook>();
        seed(*m_book);
    }

    void filterFinds_data()
    {
        support::columns<SearchChoices, QString>("choices", "ids");
        QTest::newRow("all") << SearchChoices{.category = u"All"_s} << u"1,2,3,4"_s;
        QTest::newRow("category") << SearchChoices{.category = u"work"_s} << u"2,3"_s;
        QTest::newRow("priority as a number") << SearchChoices{.priority = u"2"_s} << u"2,3"_s;
        QTest::newRow("no wildcard: the whole value") << SearchChoices{.city = u"Pun"_s} << u""_s;
        QTest::newRow("wildcard typed") << SearchChoices{.city = u"Pu*"_s} << u"1,3"_s;
        QTest::newRow("as typed, with its blanks") << SearchChoices{.city = u" Pu*"_s} << u""_s;
        QTest::newRow("marks of the pattern itself")
            << SearchChoices{.city = u"{v}%1"_s, .areaCode = u"%2"_s} << u""_s;
        QTest::newRow("untouched and blank") << SearchChoices{.city = u"  "_s} << u"1,2,3,4"_s;
        QTest::newRow("percent is a letter") << SearchChoices{.city = u"Pu%"_s} << u""_s;
        QTest::newRow("two conditions")
            << SearchChoices{.subcategory = u"Chess"_s, .company = u"Bolt"_s} << u"3"_s;
        QTest::newRow("family") << SearchChoices{.anyFirst = u"Ann"_s} << u"1,2,3"_s;
        QTest::newRow("Kept: family widens past the category")
            << SearchChoices{.category = u"Friends"_s, .anyFirst = u"Ann"_s} << u"1,2,3"_s;
        QTest::newRow("Kept: the first name widens past the category")
            << SearchChoices{.category = u"Work"_s, .first = u"Ann"_s} << u"1"_s;
        QTest::newRow("maiden") << SearchChoices{.maiden = u"Kent"_s} << u"4"_s;
        QTest::newRow("last and area code")
            << SearchChoices{.last = u"Lee"_s, .areaCode = u"020"_s} << u"1"_s;
    }

    void filterFinds()
    {
        QFETCH(SearchChoices, choices);
        QTEST(idsOf(*m_book, searchSql(choices) + u" order by id"_s), "ids");
        QCOMPARE(m_book->unexpected(), QString());
    }

    void brokenChoices()
    {
        for (const SearchChoices& choices : {SearchChoices{.priority = u"high"_s},
                 SearchChoices{.last = u"O'Brien"_s}, SearchChoices{.city = u"Pu[*"_s}}) {
            m_book->expectFailure(u" in: "_s);
            QVERIFY(!m_book->data().openRecordset(searchSql(choices)).isValid());
            QCOMPARE(m_book->unexpected(), QString());
        }
    }

    void nameSearch()
    {
        const std::pair<NameChoices, QString> found[]
            = {{{u"All"_s, u" "_s, {}}, u"1,2,3,4"_s}, {{.last = u"Lee"_s}, u"1,4"_s},
                {{.company = u"acme"_s}, u"1,2"_s}, {{u"A*"_s, u"L*"_s, u"Acme"_s}, u"1"_s}};
        for (const auto& [choices, ids] : found)
            QCOMPARE(idsOf(*m_book, nameSearchSql(choices)), ids);
        QCOMPARE(m_book->unexpected(), QString());
    }

    void keywordFinds_data()
    {
        support::columns<QString, QString>("keyword", "ids");
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

    void keywordFinds()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, ids);
        if (ids == u"fails"_s)
            m_book->expectFailure(u" in: "_s);
        QCOMPARE(idsOf(*m_book, keywordHitsSql(keyword)), ids);
        QCOMPARE(m_book->unexpected(), QString());
    }

    // Of all columns that a contact has, each search looks into just its own.
    void keywordsLookIntoTheirColumns()
    {
        const std::pair<QString, QString> searches[] = {
            {keywordHitsSql(u"k9"_s),
                u"first last company location category1 category2 h_city w_addtype fam_note b_note education region hobbies"_s},
            {keywordSql(u"k9"_s),
                u"first last company category1 category2 h_city w_addtype fam_note b_note education region hobbies altcontact"_s},
            {u"select id from cnt_main "_s + commonFilterClause(u"k9"_s, {}),
                u"name company priority h_add1 h_add2 h_city h_state h_pin h_country w_add1 w_add2 w_city w_state w_pin w_country b_add1 b_add2 b_city b_state b_pin b_country category1 category2 product region relation status education hobbies job_title spouse"_s}};
        support::TestBook book;
        QStringList columns{QString()};
        const jet::Schema schema = support::TestBook::schema();
        for (const jet::SchemaColumn& column : schema.table(u"cnt_main")->columns) {
            if (column.type != jet::ColumnType::Text && column.type != jet::ColumnType::Memo)
                continue;
            columns << column.name.toLower();
            QVERIFY(book.data().execute(u"insert into cnt_main ([%1]) values ('K9')"_s.arg(column.name)));
        }
        for (const auto& [sql, looked] : searches) {
            QStringList found;
            for (const QString& id : idsOf(book, sql).split(u','))
                found << columns.value(id.toInt());
            QStringList expected = looked.split(u' ');
            expected.sort();
            found.sort();
            QCOMPARE(found, expected);
        }
    }

    void lists_data()
    {
        support::columns<QString, QStringList>("sql", "values");
        QTest::newRow("city") << searchListSql(u"cmbgcity") << QStringList{u""_s, u"Agra"_s, u"Pune"_s};
        QTest::newRow("company") << searchListSql(u"CmbGCmpny") << QStringList{u""_s, u"Acme"_s, u"Bolt"_s};
        QTest::newRow("category") << searchListSql(u"cmbgcat") << QStringList{u"Friends"_s, u"Work"_s};
        QTest::newRow("area code") << searchListSql(u"CmbGStd") << QStringList{u""_s, u"020"_s, u"0562"_s};
        QTest::newRow("first") << searchListSql(u"cmbgfirst")
                               << QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dee"_s};
        QTest::newRow("last") << searchListSql(u"cmbglast") << QStringList{u"Lee"_s, u"Ray"_s, u"Young"_s};
        QTest::newRow("family") << searchListSql(
            u"cmbfl") << QStringList{u"null"_s, u""_s, u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dee"_s, u"Roy"_s};
        QTest::newRow("maiden") << searchListSql(u"DBCMaiden") << QStringList{u"Kent"_s, u"Moore"_s};
        QTest::newRow("subcategories of all")
            << subcategoryListSql(u"All"_s) << QStringList{u""_s, u"Chess"_s, u"Sales"_s};
        QTest::newRow("subcategories of one")
            << subcategoryListSql(u"Work"_s) << QStringList{u"Chess"_s, u"Sales"_s};
    }

    void lists()
    {
        QFETCH(QString, sql);
        QTEST(m_book->rows(sql), "values");
        QCOMPARE(m_book->unexpected(), QString());
    }

    // Each heading over a column that every contact has, and over it alone.
    void gridsPairOff()
    {
        const jet::Recordset all = m_book->data().openRecordset(contactsByCategorySql());
        for (const SearchGrid& grid :
            {contactGrid(ViewBy::Category), contactGrid(ViewBy::Name), keywordGrid()}) {
            const auto texts = grid.headings.split(u'|');
            QCOMPARE(grid.columns.size(), texts.size());
            for (int i = 0; i < texts.size(); ++i) {
                const QString& column = grid.columns[i];
                QCOMPARE(column.isEmpty(), texts[i].trimmed().isEmpty());
                QVERIFY2(column.isEmpty() || all.columnIndex(column) >= 0, qPrintable(column));
            }
            QSet<QString> shown(grid.columns.begin(), grid.columns.end());
            QCOMPARE(shown.size(), grid.columns.size() - grid.columns.count(QString()) + 1);
        }
    }

private:
    std::unique_ptr<support::TestBook> m_book;
};

QTEST_GUILESS_MAIN(SearchClausesTest)
#include "search_clauses_test.moc"
