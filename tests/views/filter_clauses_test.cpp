#include "support/test_book.h"
#include "views/filters/filter_clauses.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// What the filters make of their choices: the texts to the letter, and whom they find.
class FilterClausesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void commonClause_data();
    void commonClause();
    void tabClause_data();
    void tabClause();
    void choicesFind_data();
    void choicesFind();
    void keywordLooksIntoEachField_data();
    void keywordLooksIntoEachField();
    void keywordMarks_data();
    void keywordMarks();
    void listsOffer_data();
    void listsOffer();
    void everyListCanBeRead();
    void delivery_data();
    void delivery();

private:
    void add(const QString& columns, const QString& values);
    void addPeople();
    QStringList found(const QString& clause);

    support::TestBook m_book;
};

namespace {

FilterChoices allCombos()
{
    return {{u"cboCateg"_s, u"C1"_s}, {u"cboSubCateg"_s, u"C2"_s}, {u"cboPriority"_s, u"1"_s},
        {u"cboStatus"_s, u"S"_s}, {u"cboRegion"_s, u"R"_s}, {u"cboRelation"_s, u"L"_s},
        {u"cboCountry"_s, u"Y"_s}, {u"cboCity"_s, u"T"_s}};
}

FilterChoices allLists()
{
    return {{u"lstFirst"_s, u"F"_s}, {u"lstLast"_s, u"L"_s}, {u"lstPriority"_s, u"1"_s},
        {u"lstProduct"_s, u"P"_s}, {u"lstCateg"_s, u"C"_s}, {u"lstCategSub"_s, u"A-B"_s},
        {u"lstRegion"_s, u"R"_s}, {u"lstCountry"_s, u"Y"_s}, {u"lstCity"_s, u"T"_s},
        {u"lstRelation"_s, u"N"_s}, {u"lstStatus"_s, u"S"_s}};
}

} // namespace

void FilterClausesTest::init()
{
    m_book.data().execute(u"delete * from cnt_main");
}

void FilterClausesTest::cleanup()
{
    QCOMPARE(m_book.unexpected(), QString());
}

void FilterClausesTest::add(const QString& columns, const QString& values)
{
    const QString sql = u"insert into cnt_main ("_s + columns + u") values ("_s + values + u')';
    if (!m_book.data().execute(sql).ok)
        qFatal("a row of the test was refused: %s", qUtf8Printable(sql));
}

/// People whose cities, countries and categories are easily taken for one another.
void FilterClausesTest::addPeople()
{
    add(u"Name, First, category1, category2, region, h_city, h_country, w_country"_s,
        u"'Ann', 'Ann', 'A-B', 'C', 'West', 'Pune', 'India', 'Nepal'"_s);
    add(u"Name, First, category1, category2, region, h_city, w_city, w_country"_s,
        u"'Bob', 'Bob', 'A', 'B', 'East', 'Agra', 'Pune', 'Pune'"_s);
    add(u"Name, First, category1, region, b_city, b_country"_s,
        u"'Cy', 'Cy', 'A', 'West', 'Oslo', 'Norway'"_s);
    add(u"Name, First"_s, u"'Dot', 'Dot'"_s);
}

QStringList FilterClausesTest::found(const QString& clause)
{
    return m_book.rows(u"SELECT name FROM cnt_main "_s + clause + u" ORDER BY Name "_s);
}

void FilterClausesTest::commonClause_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<FilterChoices>("choices");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing chosen") << u""_s << FilterChoices{} << u""_s;
    QTest::newRow("All in any case, and blanks")
        << u" "_s
        << FilterChoices{{u"cboCateg"_s, u"All"_s}, {u"cboCity"_s, u"all"_s}, {u"cboRegion"_s, u"  "_s}}
        << u""_s;
    QTest::newRow("first condition") << u""_s << FilterChoices{{u"cboCateg"_s, u"Work"_s}}
                                     << u" Where category1 ='Work'"_s;
    QTest::newRow("later one, two blanks")
        << u""_s << FilterChoices{{u"cboStatus"_s, u"New"_s}, {u"cboSubCateg"_s, u"A-B"_s}}
        << u" Where category2 ='A-B' and  status ='New'"_s;
    QTest::newRow("country alone")
        << u""_s << FilterChoices{{u"cboCountry"_s, u"India"_s}}
        << u" Where (h_country ='India' or b_country='India' or w_country ='India')"_s;
    QTest::newRow("all, in their order")
        << u""_s << allCombos()
        << u" Where category1 ='C1' and  category2 ='C2' and  priority ='1' and  status ='S' and  region ='R'"
           u" and  relation ='L' and  (h_country ='Y' or b_country='Y' or w_country ='Y')"
           u" and  (h_city ='T' or b_city ='T' or w_city ='T')"_s;
    QTest::newRow("a value that looks like a mark")
        << u""_s << FilterChoices{{u"cboCity"_s, u"%1"_s}}
        << u" Where (h_city ='%1' or b_city ='%1' or w_city ='%1')"_s;
    QTest::newRow("keyword wins over all choices")
        << u"k %1"_s << allCombos()
        << QString(u" Where name like '*#*' or company like '*#*' or Priority like '*#*' or h_add1 like '*#*'"
                   u" or h_add2 like '*#*' or h_city like '*#*' or h_state like '*#*' or h_Pin like '*#*'"
                   u" or h_country like '*#*' or w_add1 like '*#*' or w_add2 like '*#*' or W_city like '*#*'"
                   u" or W_state like '*#*' or w_pin like '*#*' or w_country like '*#*' or b_add1 like '*#*'"
                   u" or b_add2 like '*#*' or b_city like '*#*' or b_state like '*#*' or b_pin like '*#*'"
                   u" or b_country like '*#*' or category1 like '*#*' or category2 like '*#*'"
                   u" or product like '*#*' or region like '*#*' or relation like '*#*' or status like '*#*'"
                   u" or education like '*#*' or Hobbies like '*#*' or job_title like '*#*'"
                   u" or Spouse like '*#*'"_s)
               .replace(u'#', u"k %1"_s);
}

void FilterClausesTest::commonClause()
{
    QFETCH(QString, keyword);
    QFETCH(FilterChoices, choices);
    const QString clause = commonFilterClause(keyword, choices);
    QTEST(clause, "expected");
    found(clause);
}

void FilterClausesTest::tabClause_data()
{
    QTest::addColumn<FilterChoices>("choices");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing chosen") << FilterChoices{{u"lstFirst"_s, u"All"_s}, {u"lstCity"_s, u""_s}}
                                    << u""_s;
    QTest::newRow("first and last") << FilterChoices{{u"lstFirst"_s, u"Ann"_s}, {u"lstLast"_s, u"Lee"_s}}
                                    << u" where first ='Ann' and last ='Lee'"_s;
    QTest::newRow("category alone") << FilterChoices{{u"lstCateg"_s, u"Work"_s}, {u"lstCategSub"_s, u"All"_s}}
                                    << u" where category1  ='Work'"_s;
    QTest::newRow("subcategory wins over its category") << FilterChoices{{u"lstCateg"_s, u"Home"_s},
        {u"lstCategSub"_s, u"Work-Sales"_s}} << u" where category1  ='Work' and category2 ='Sales'"_s;
    QTest::newRow("subcategory without a dash")
        << FilterChoices{{u"lstCategSub"_s, u"Work"_s}} << u" where category1  ='Work' and category2 =''"_s;
    QTest::newRow("Kept: cut inside a category with a dash")
        << FilterChoices{{u"lstCategSub"_s, u"A-B-C"_s}} << u" where category1  ='A' and category2 ='B'"_s;
    QTest::newRow("country alone") << FilterChoices{{u"lstCountry"_s,
        u"India"_s}} << u" where ( h_Country  ='India' or b_Country ='India' or w_Country ='India') "_s;
    QTest::newRow("city alone") << FilterChoices{{u"lstCity"_s, u"Pune"_s}}
                                << u" where ( h_City  ='Pune' or b_City ='Pune' or w_City ='Pune') "_s;
    QTest::newRow("Kept: later city looks at the country")
        << FilterChoices{{u"lstFirst"_s, u"Ann"_s}, {u"lstCity"_s, u"Pune"_s}}
        << u" where first ='Ann' and  ( h_City  ='Pune' or b_City ='Pune' or w_Country ='Pune') "_s;
    QTest::newRow("all, in their order")
        << allLists()
        << u" where first ='F' and last ='L' and priority ='1' and product ='P' and category1  ='A'"
           u" and category2 ='B' and region ='R' and ( h_Country  ='Y' or b_Country ='Y' or w_Country ='Y') "
           u" and  ( h_City  ='T' or b_City ='T' or w_Country ='T')  and relation ='N' and status ='S'"_s;
}

void FilterClausesTest::tabClause()
{
    QFETCH(FilterChoices, choices);
    const QString clause = tabFilterClause(choices);
    QTEST(clause, "expected");
    found(clause);
}

void FilterClausesTest::choicesFind_data()
{
    QTest::addColumn<QString>("clause");
    QTest::addColumn<QStringList>("names");
    const auto common = [](const FilterChoices& choices) { return commonFilterClause({}, choices); };
    QTest::newRow("nothing: everybody")
        << tabFilterClause({}) << QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s, u"Dot"_s};
    QTest::newRow("city in any address")
        << common({{u"cboCity"_s, u"pune"_s}}) << QStringList{u"Ann"_s, u"Bob"_s};
    QTest::newRow("later city in any address")
        << common({{u"cboRegion"_s, u"East"_s}, {u"cboCity"_s, u"Pune"_s}}) << QStringList{u"Bob"_s};
    QTest::newRow("country in any address")
        << tabFilterClause({{u"lstCountry"_s, u"Norway"_s}}) << QStringList{u"Cy"_s};
    QTest::newRow("Kept: later city misses the second address")
        << tabFilterClause({{u"lstFirst"_s, u"Bob"_s}, {u"lstCity"_s, u"Agra"_s}}) << QStringList{u"Bob"_s};
    QTest::newRow("Kept: later city finds a country of that name")
        << tabFilterClause({{u"lstRegion"_s, u"East"_s}, {u"lstCity"_s, u"Pune"_s}}) << QStringList{u"Bob"_s};
    QTest::newRow("Kept: later city misses a third address")
        << tabFilterClause({{u"lstFirst"_s, u"Cy"_s}, {u"lstCity"_s, u"Norway"_s}}) << QStringList{};
    QTest::newRow("category with a dash") << common({{u"cboCateg"_s, u"A-B"_s}}) << QStringList{u"Ann"_s};
    QTest::newRow("Kept: its subcategory finds the others")
        << tabFilterClause({{u"lstCategSub"_s, u"A-B-C"_s}}) << QStringList{u"Bob"_s};
}

void FilterClausesTest::choicesFind()
{
    QFETCH(QString, clause);
    addPeople();
    QTEST(found(clause), "names");
}

void FilterClausesTest::keywordLooksIntoEachField_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<int>("found");
    for (const char* column : {"Name", "Priority", "h_add2", "h_Pin", "w_add1", "w_state", "b_country",
             "region", "status", "Hobbies", "Job_Title", "Spouse"})
        QTest::newRow(column) << QString::fromLatin1(column) << 1;
    for (const char* column : {"First", "nick", "memo1", "Religion", "h_email1", "Kid1"})
        QTest::newRow(column) << QString::fromLatin1(column) << 0;
}

void FilterClausesTest::keywordLooksIntoEachField()
{
    QFETCH(QString, column);
    add(u'[' + column + u']', u"'a NEEDLE b'"_s);
    add(u'[' + column + u']', u"'hay'"_s);
    const QString clause = commonFilterClause(u"needle"_s, {});
    QTEST(m_book.data().openRecordset(u"SELECT id,name FROM cnt_main "_s + clause).count(), "found");
}

void FilterClausesTest::keywordMarks_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("fails");
    QTest::newRow("* stands for anything") << u"5*ff"_s << QStringList{u"5 off"_s, u"50% off"_s} << false;
    QTest::newRow("% stands for itself") << u"0%"_s << QStringList{u"50% off"_s} << false;
    QTest::newRow("? stands for one character") << u"5? o"_s << QStringList{} << false;
    QTest::newRow("# stands for a digit") << u"5#% o"_s << QStringList{u"50% off"_s} << false;
    QTest::newRow("a set of characters") << u"[x%] off"_s << QStringList{u"50% off"_s} << false;
    QTest::newRow("a set that does not end") << u"5["_s << QStringList{} << true;
    QTest::newRow("an apostrophe") << u"O'"_s << QStringList{} << true;
}

void FilterClausesTest::keywordMarks()
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

void FilterClausesTest::listsOffer_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<FilterChoices>("choices");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("countries of all addresses")
        << u"lstCountry"_s << FilterChoices{{u"lstRegion"_s, u"All"_s}}
        << QStringList{u"India"_s, u"Nepal"_s, u"Norway"_s, u"Pune"_s};
    // Kept: only the home country is asked for the region.
    QTest::newRow("Kept: countries of a region")
        << u"lstCountry"_s << FilterChoices{{u"lstRegion"_s, u"East"_s}}
        << QStringList{u"null"_s, u"Nepal"_s, u"Norway"_s, u"Pune"_s};
    QTest::newRow("cities of all addresses")
        << u"lstCity"_s << FilterChoices{} << QStringList{u"Agra"_s, u"Oslo"_s, u"Pune"_s};
    QTest::newRow("Kept: cities of a country") << u"lstCity"_s << FilterChoices{{u"lstCountry"_s, u"India"_s}}
                                               << QStringList{u"null"_s, u"Oslo"_s, u"Pune"_s};
    QTest::newRow("categories with subcategories")
        << u"lstCategSub"_s << FilterChoices{} << QStringList{u"null"_s, u"A-B"_s, u"A-B-C"_s};
    QTest::newRow("region does not restrict the cities")
        << u"lstCity"_s << FilterChoices{{u"lstRegion"_s, u"East"_s}}
        << QStringList{u"Agra"_s, u"Oslo"_s, u"Pune"_s};
}

void FilterClausesTest::listsOffer()
{
    QFETCH(QString, control);
    QFETCH(FilterChoices, choices);
    addPeople();
    for (const FilterList& list : tabFilterLists()) {
        if (list.control == control)
            QTEST(m_book.rows(tabFilterListSql(list, choices)), "values");
    }
}

void FilterClausesTest::everyListCanBeRead()
{
    addPeople();
    QSet<QString> controls;
    for (const auto& lists : {commonFilterLists(), tabFilterLists()}) {
        for (const FilterList& list : lists) {
            QVERIFY(m_book.data().openRecordset(list.sql).isValid());
            controls << list.control.toString();
        }
    }
    const QStringList offered = allCombos().keys() + allLists().keys();
    QCOMPARE(controls, QSet<QString>(offered.begin(), offered.end()));
}

void FilterClausesTest::delivery_data()
{
    QTest::addColumn<FilterForm>("form");
    QTest::addColumn<QString>("caller");
    QTest::addColumn<QString>("clause");
    QTest::addColumn<QString>("text"); ///< null for nothing
    const QString common = u" Where category1 ='Nowhere' and  status ='where'"_s;
    const QString tab = u" where first ='Where'"_s;
    for (const QString& caller :
        {u"FullView"_s, u"FormUserEdit"_s, u"FrmAddFullRptView"_s, u"FrmAddFullRptNew"_s}) {
        QTest::addRow("common, %s", qUtf8Printable(caller))
            << FilterForm::Common << caller << common << common;
        QTest::addRow("tabs, %s", qUtf8Printable(caller)) << FilterForm::Tab << caller << tab << tab;
    }
    QTest::newRow("common, list of details") << FilterForm::Common << u"FrmListDetails"_s << common << common;
    QTest::newRow("tabs, list of details")
        << FilterForm::Tab << u"FrmListDetails"_s << tab
        << u"Select Name from cnt_Main  where first ='Where' order by category1,priority"_s;
    QTest::newRow("tabs, list of details, everybody")
        << FilterForm::Tab << u"FrmListDetails"_s << u""_s
        << u"Select Name from cnt_Main  order by category1,priority"_s;
    QTest::newRow("common, selector: only the leading word goes")
        << FilterForm::Common << u"frmSelector"_s << common
        << u"  category1 ='Nowhere' and  status ='where'"_s;
    QTest::newRow("tabs, selector") << FilterForm::Tab << u"frmSelector"_s << tab << u"  first ='Where'"_s;
    QTest::newRow("selector, everybody") << FilterForm::Tab << u"frmSelector"_s << u""_s << u""_s;
    QTest::newRow("nobody") << FilterForm::Common << u""_s << common << QString();
    QTest::newRow("a screen that takes no filter") << FilterForm::Tab << u"FormMain"_s << tab << QString();
}

void FilterClausesTest::delivery()
{
    QFETCH(FilterForm, form);
    QFETCH(QString, caller);
    QFETCH(QString, clause);
    QFETCH(QString, text);
    const std::optional<QString> delivered = deliveredFilter(form, caller, clause);
    QCOMPARE(delivered.has_value(), !text.isNull());
    QCOMPARE(delivered.value_or(QString()), text);
}

QTEST_GUILESS_MAIN(FilterClausesTest)
#include "filter_clauses_test.moc"
