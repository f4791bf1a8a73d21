#include "support/columns.h"
#include "support/test_book.h"
#include "views/filters/filter_clauses.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

namespace {

/// The columns into which each control looks.
const QStringList kCombos{u"cboCateg category1"_s, u"cboSubCateg category2"_s, u"cboPriority priority"_s,
    u"cboStatus status"_s, u"cboRegion region"_s, u"cboRelation relation"_s,
    u"cboCountry h_country b_country w_country"_s, u"cboCity h_city b_city w_city"_s};
const QStringList kLists{u"lstFirst first"_s, u"lstLast last"_s, u"lstPriority priority"_s,
    u"lstProduct product"_s, u"lstCateg category1"_s, u"lstRegion region"_s,
    u"lstCountry h_country b_country w_country"_s, u"lstCity h_city b_city w_city"_s,
    u"lstRelation relation"_s, u"lstStatus status"_s};

} // namespace

/// What the filters make of their choices: the texts to the letter, and whom they find.
class FilterClausesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book.data().execute(u"delete * from cnt_main"); }

    void cleanup() { QCOMPARE(m_book.unexpected(), QString()); }

    // Each choice finds whoever has it in one of its columns, and all together whoever has them all.
    void choicesLookIntoTheirColumns()
    {
        using Clause = std::function<QString(const FilterChoices&)>;
        const std::pair<QStringList, Clause> forms[]
            = {{kCombos, [](const FilterChoices& choices) { return commonFilterClause({}, choices); }},
                {kLists, [](const FilterChoices& choices) { return tabFilterClause(choices); }}};
        for (const auto& [controls, clause] : forms) {
            init();
            FilterChoices all;
            QStringList columns;
            for (const QString& control : controls) {
                all.insert(control.section(u' ', 0, 0), u"%1"_s);
                columns << control.section(u' ', 1).split(u' ');
                for (const QString& column : control.section(u' ', 1).split(u' '))
                    add(u"Name,"_s + column, u"'%1','%2'"_s.arg(control, u"%1"_s));
            }
            for (const QString& control : controls) {
                const QStringList names(control.count(u' '), control);
                QCOMPARE(found(clause({{control.section(u' ', 0, 0), u"%1"_s}})), names);
            }
            QCOMPARE(found(clause(all)), QStringList());
            add(u"Name,"_s + columns.join(u','), u"'all'"_s + u",'%1'"_s.repeated(columns.size()));
            QCOMPARE(found(clause(all)), QStringList{u"all"_s});
        }
        QCOMPARE(
            commonFilterClause(u" "_s, {{u"cboCity"_s, u"all"_s}, {u"cboRegion"_s, u"  "_s}}), QString());
        QCOMPARE(tabFilterClause({{u"lstCateg"_s, u"Home"_s}, {u"lstCategSub"_s, u"Work"_s}}),
            u" where category1  ='Work' and category2 =''"_s);
    }

    void choicesFind_data()
    {
        support::columns<QString, QStringList>("clause", "names");
        const auto common = [](const FilterChoices& choices) { return commonFilterClause({}, choices); };
        QTest::newRow("nothing: everybody")
            << tabFilterClause({}) << QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dot"_s};
        QTest::newRow("city in any address")
            << common({{u"cboCity"_s, u"pune"_s}}) << QStringList{u"Ann"_s, u"Bob"_s};
        QTest::newRow("later city in any address")
            << common({{u"cboRegion"_s, u"East"_s}, {u"cboCity"_s, u"Pune"_s}}) << QStringList{u"Bob"_s};
        QTest::newRow("country in any address")
            << tabFilterClause({{u"lstCountry"_s, u"Norway"_s}}) << QStringList{u"Cy"_s};
        QTest::newRow("Kept: later city misses the second address") << tabFilterClause(
            {{u"lstFirst"_s, u"Bob"_s}, {u"lstCity"_s, u"Agra"_s}}) << QStringList{u"Bob"_s};
        QTest::newRow("Kept: later city finds a country of that name") << tabFilterClause(
            {{u"lstRegion"_s, u"East"_s}, {u"lstCity"_s, u"Pune"_s}}) << QStringList{u"Bob"_s};
        QTest::newRow("Kept: later city misses a third address")
            << tabFilterClause({{u"lstFirst"_s, u"Cy"_s}, {u"lstCity"_s, u"Norway"_s}}) << QStringList{};
        QTest::newRow("keyword wins over the choices")
            << commonFilterClause(u"agra"_s, {{u"cboCity"_s, u"Pune"_s}}) << QStringList{u"Bob"_s};
        QTest::newRow("category with a dash") << common({{u"cboCateg"_s, u"A-B"_s}}) << QStringList{u"Ann"_s};
        QTest::newRow("Kept: its subcategory finds the others")
            << tabFilterClause({{u"lstCategSub"_s, u"A-B-C"_s}}) << QStringList{u"Bob"_s};
    }

    void choicesFind()
    {
        QFETCH(QString, clause);
        addPeople();
        QTEST(found(clause), "names");
    }

    void keywordMarks_data()
    {
        support::columns<QString, QStringList, bool>("keyword", "names", "fails");
        QTest::newRow("* stands for anything") << u"5*ff"_s << QStringList{u"5 off"_s, u"50% off"_s} << false;
        QTest::newRow("% stands for itself") << u"0%"_s << QStringList{u"50% off"_s} << false;
        QTest::newRow("? stands for one character") << u"5? o"_s << QStringList{} << false;
        QTest::newRow("# stands for a digit") << u"5#% o"_s << QStringList{u"50% off"_s} << false;
        QTest::newRow("a set of characters") << u"[x%] off"_s << QStringList{u"50% off"_s} << false;
        QTest::newRow("a set that does not end") << u"5["_s << QStringList{} << true;
        QTest::newRow("an apostrophe") << u"O'"_s << QStringList{} << true;
    }

    void keywordMarks()
    {
        QFETCH(QString, keyword);
        QFETCH(bool, fails);
        add(u"Name"_s, u"'50% off'"_s);
        add(u"Name"_s, u"'5 off'"_s);
        if (fails)
            m_book.expectFailure(keyword);
        QTEST(found(commonFilterClause(keyword, {})), "names");
        QCOMPARE(found({}).size(), 2);
    }

    void listsOffer_data()
    {
        support::columns<QString, FilterChoices, QStringList>("control", "choices", "values");
        QTest::newRow("countries of all addresses")
            << u"lstCountry"_s << FilterChoices{{u"lstRegion"_s, u"All"_s}}
            << QStringList{u"India"_s, u"Nepal"_s, u"Norway"_s, u"Pune"_s};
        // Kept: only the home country is asked for the region.
        QTest::newRow("Kept: countries of a region")
            << u"lstCountry"_s << FilterChoices{{u"lstRegion"_s, u"East"_s}}
            << QStringList{u"null"_s, u"Nepal"_s, u"Norway"_s, u"Pune"_s};
        QTest::newRow("cities of all addresses")
            << u"lstCity"_s << FilterChoices{} << QStringList{u"Agra"_s, u"Oslo"_s, u"Pune"_s};
        QTest::newRow("Kept: cities of a country")
            << u"lstCity"_s << FilterChoices{{u"lstCountry"_s, u"India"_s}}
            << QStringList{u"null"_s, u"Oslo"_s, u"Pune"_s};
        QTest::newRow("categories with subcategories")
            << u"lstCategSub"_s << FilterChoices{} << QStringList{u"null"_s, u"A-B"_s, u"A-B-C"_s};
        QTest::newRow("region does not restrict the cities")
            << u"lstCity"_s << FilterChoices{{u"lstRegion"_s, u"East"_s}}
            << QStringList{u"Agra"_s, u"Oslo"_s, u"Pune"_s};
    }

    void listsOffer()
    {
        QFETCH(QString, control);
        QFETCH(FilterChoices, choices);
        addPeople();
        for (const FilterList& list : tabFilterLists()) {
            if (list.control == control)
                QTEST(m_book.rows(tabFilterListSql(list, choices)), "values");
        }
    }

    void everyListCanBeRead()
    {
        addPeople();
        QSet<QString> controls;
        for (const auto& lists : {commonFilterLists(), tabFilterLists()}) {
            for (const FilterList& list : lists) {
                QVERIFY(m_book.data().openRecordset(list.sql).isValid());
                controls << list.control.toString();
            }
        }
        QSet<QString> offered{u"lstCategSub"_s};
        for (const QString& control : kCombos + kLists)
            offered << control.section(u' ', 0, 0);
        QCOMPARE(controls, offered);
    }

    void delivery_data()
    {
        // text: null for nothing
        support::columns<FilterForm, QString, QString, QString>("form", "caller", "clause", "text");
        const QString common = u" Where category1 ='Nowhere' and  status ='where'"_s;
        const QString tab = u" where first ='Where'"_s;
        for (const QString& caller : {u"FullView"_s, u"FormUserEdit"_s, u"FrmAddFullRptView"_s,
                 u"FrmAddFullRptNew"_s, u"FrmListDetails"_s})
            QTest::addRow("common, %s", qUtf8Printable(caller))
                << FilterForm::Common << caller << common << common;
        QTest::newRow("tabs, full view") << FilterForm::Tab << u"FullView"_s << tab << tab;
        QTest::newRow("tabs, list of details")
            << FilterForm::Tab << u"FrmListDetails"_s << tab
            << u"Select Name from cnt_Main  where first ='Where' order by category1,priority"_s;
        QTest::newRow("tabs, list of details, everybody")
            << FilterForm::Tab << u"FrmListDetails"_s << u""_s
            << u"Select Name from cnt_Main  order by category1,priority"_s;
        QTest::newRow("common, selector: only the leading word goes")
            << FilterForm::Common << u"frmSelector"_s << common
            << u"  category1 ='Nowhere' and  status ='where'"_s;
        QTest::newRow("tabs, selector")
            << FilterForm::Tab << u"frmSelector"_s << tab << u"  first ='Where'"_s;
        QTest::newRow("selector, everybody") << FilterForm::Tab << u"frmSelector"_s << u""_s << u""_s;
        QTest::newRow("nobody") << FilterForm::Common << u""_s << common << QString();
        QTest::newRow("a screen that takes no filter")
            << FilterForm::Tab << u"FormMain"_s << tab << QString();
    }

    void delivery()
    {
        QFETCH(FilterForm, form);
        QFETCH(QString, caller);
        QFETCH(QString, clause);
        QFETCH(QString, text);
        const std::optional<QString> delivered = deliveredFilter(form, caller, clause);
        QCOMPARE(delivered.has_value(), !text.isNull());
        QCOMPARE(delivered.value_or(QString()), text);
    }

private:
    void add(const QString& columns, const QString& values)
    {
        const QString sql = u"insert into cnt_main ("_s + columns + u") values ("_s + values + u')';
        if (!m_book.data().execute(sql).ok)
            qFatal("a row of the test was refused: %s", qUtf8Printable(sql));
    }

    /// People whose cities, countries and categories are easily taken for one another.
    void addPeople()
    {
        add(u"Name, First, category1, category2, region, h_city, h_country, w_country"_s,
            u"'Ann', 'Ann', 'A-B', 'C', 'West', 'Pune', 'India', 'Nepal'"_s);
        add(u"Name, First, category1, category2, region, h_city, w_city, w_country"_s,
            u"'Bob', 'Bob', 'A', 'B', 'East', 'Agra', 'Pune', 'Pune'"_s);
        add(u"Name, First, category1, region, b_city, b_country"_s,
            u"'Cy', 'Cy', 'A', 'West', 'Oslo', 'Norway'"_s);
        add(u"Name, First"_s, u"'Dot', 'Dot'"_s);
    }

    QStringList found(const QString& clause)
    {
        return m_book.rows(u"SELECT name FROM cnt_main "_s + clause + u" ORDER BY Name "_s);
    }

    support::TestBook m_book;
};

QTEST_GUILESS_MAIN(FilterClausesTest)
#include "filter_clauses_test.moc"
