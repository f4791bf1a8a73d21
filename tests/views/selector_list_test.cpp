#include "support/test_book.h"
#include "views/selector/selector_list.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The list of the record selector: its statements to the letter, and whom they find.
class SelectorListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listTexts_data();
    void listTexts();
    void everyListCanBeRead();
    void quickTexts_data();
    void quickTexts();
    void found_data();
    void found();
    void lastModifiedOrder();
    void combosOffer();
    void captions();

private:
    static const SelectorSort& sort(const QString& word);

    support::TestBook m_book{support::TestBook::Rows::Sample};
};

const SelectorSort& SelectorListTest::sort(const QString& word)
{
    for (const SelectorSort& row : selectorSorts()) {
        if (row.word == word)
            return row;
    }
    qFatal("no such sort word");
}

void SelectorListTest::listTexts_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("clause");
    QTest::addColumn<QString>("sql");
    const auto row = [](const char* idea, const QString& word, const QString& tab, const QString& clause,
                         const QString& sql) { QTest::newRow(idea) << word << tab << clause << sql; };
    const QString city = u" H_CITY ='Mumbai'"_s;
    row("all", u"First"_s, u"All"_s, {}, u"Select id,first,Last,name from cnt_main order by first"_s);
    row("one letter", u"Name"_s, u"R"_s, {},
        u"select id,name from cnt_main  where name like 'R*' order by name"_s);
    row("tab PQ stands for P and Q", u"Last"_s, u"PQ"_s, {},
        u"Select id,last,First,Name from cnt_main where (last like 'P*' or last like 'Q*') order by last"_s);
    row("tab XYZ", u"City"_s, u"XYZ"_s, {},
        u"Select id,h_City,name from cnt_main where (h_city like 'X*' or h_city like 'Y*' or h_city like 'Z*') order by h_City,name"_s);
    row("TU behind a blank", u"Name"_s, u"TU"_s, {},
        u"select id,name from cnt_main where (name like 'T*' or name like 'U*') order by name"_s);
    row("TU without one", u"Co"_s, u"TU"_s, {},
        u"Select id,Company,name from cnt_main where (company like 'T*' or company like 'U*') order by Company,name"_s);
    row("by category the letter is the name's", u"Categ"_s, u"B"_s, {},
        u"Select id,Category1,name from cnt_main where name like 'B*' order by category1,name"_s);
    row("product has a condition of its own", u"Product"_s, u"TU"_s, {},
        u"select ID,PRODUCT,NAME from CNT_MAIN  where len(PRODUCT)<>0 and (PRODUCT like 'T*' or PRODUCT like 'U*') order by PRODUCT"_s);
    row("product with a clause", u"Product"_s, u"All"_s, city,
        u"select ID,PRODUCT,NAME from CNT_MAIN  where len(PRODUCT)<>0 and  H_CITY ='Mumbai' order by PRODUCT"_s);
    row("clause alone", u"L Modi"_s, u"All"_s, city,
        u"Select id,format(DateModi,'mmm-yyyy') ,name from cnt_main where  H_CITY ='Mumbai' order by DateModi desc ,name"_s);
    row("clause behind a letter", u"Name"_s, u"R"_s, city,
        u"select id,name from cnt_main  where name like 'R*' and  H_CITY ='Mumbai' order by name"_s);
    row("empty clause of a filter on All", u"Name"_s, u"All"_s, u"  "_s,
        u"select id,name from cnt_main  order by name"_s);
}

void SelectorListTest::listTexts()
{
    QFETCH(QString, word);
    QFETCH(QString, tab);
    QFETCH(QString, clause);
    QTEST(selectorSql(sort(word), letterWord(tab), clause), "sql");
}

void SelectorListTest::everyListCanBeRead()
{
    const QString clause = quickClause({u"Pune"_s, u"1&2"_s, u"Personal"_s, u"Family"_s});
    for (const SelectorSort& each : selectorSorts()) {
        for (const QString& tab : selectorLetters()) {
            for (const QString& narrowed : {QString(), clause}) {
                const jet::Recordset rows
                    = m_book.data().openRecordset(selectorSql(each, letterWord(tab), narrowed));
                QVERIFY2(rows.isValid(), qPrintable(each.word.toString() + u' ' + tab));
                QVERIFY(rows.columnIndex(u"name") > 0);
                QVERIFY(each.outline.isEmpty() || rows.columnIndex(each.outline) == 1);
            }
        }
    }
    QCOMPARE(m_book.unexpected(), QString());
}

void SelectorListTest::quickTexts_data()
{
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<QString>("clause");
    const QString all = u"All"_s;
    const auto row = [](const char* idea, const QStringList& choices, const QString& clause) {
        QTest::newRow(idea) << choices << clause;
    };
    row("nothing", {all, all, all, u" "_s}, {});
    row("2&3 first is another range", {all, u"2&3"_s, all, all}, u" ( priority='1' or priority='2') "_s);
    row("2&3 behind a city", {u"Pune"_s, u"2&3"_s, all, all},
        u" H_CITY ='Pune' and ( PRIORITY='2' or PRIORITY='3')"_s);
    row("all four", {u"Mumbai"_s, u"1&2"_s, u"Business"_s, u"Clients"_s},
        u" H_CITY ='Mumbai' and ( PRIORITY='1' or PRIORITY='2')  and CATEGORY1 ='Business' and CATEGORY2='Clients'"_s);
    row("3&4 first, then a subcategory", {all, u"3&4"_s, all, u"Club"_s},
        u" ( PRIORITY='3' or PRIORITY='4')  and CATEGORY2='Club'"_s);
    row("3&4 behind a city", {u"Paris"_s, u"3&4"_s, all, all},
        u" H_CITY ='Paris' and ( priority='3' or priority='4') "_s);
    row("1&2 first, then a category", {all, u"1&2"_s, u"Business"_s, all},
        u" ( PRIORITY='1' or PRIORITY='2')  and CATEGORY1 ='Business'"_s);
    row("category first", {all, all, u"Business"_s, all}, u" CATEGORY1 ='Business'"_s);
    row("subcategory first", {all, all, all, u"Clients"_s}, u" CATEGORY2 ='Clients'"_s);
}

void SelectorListTest::quickTexts()
{
    QFETCH(QStringList, choices);
    QTEST(quickClause({choices[0], choices[1], choices[2], choices[3]}), "clause");
}

void SelectorListTest::found_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("clause");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("TU: names with T or U")
        << u"Name"_s << u"TU"_s << QString() << QStringList{u"Tina Turner"_s};
    QTest::newRow("X by city: Zurich")
        << u"City"_s << u"XYZ"_s << QString() << QStringList{u"Xavier Quick"_s};
    QTest::newRow("2&3 alone: priorities 1 and 2")
        << u"Name"_s << u"R"_s << quickClause({{}, u"2&3"_s, {}, {}}) << QStringList{u"Rahul Sharma"_s};
    QTest::newRow("2&3 with a city: not the priority 1")
        << u"Name"_s << u"All"_s << quickClause({u"Mumbai"_s, u"2&3"_s, {}, {}})
        << QStringList{u"City Hospital"_s, u"Sara Stone"_s};
    QTest::newRow("keyword clause stays unbracketed")
        << u"Name"_s << u"Z"_s << u"  name like '*zen*' or company like '*pages*'"_s
        << QStringList{u"Xavier Quick"_s, u"Zen Traders"_s};
}

void SelectorListTest::found()
{
    QFETCH(QString, word);
    QFETCH(QString, tab);
    QFETCH(QString, clause);
    jet::Recordset rows = m_book.data().openRecordset(selectorSql(sort(word), letterWord(tab), clause));
    QStringList names;
    for (; !rows.eof(); rows.moveNext())
        names << rows.textOrEmpty(u"name");
    QTEST(names, "names");
    QCOMPARE(m_book.unexpected(), QString());
}

void SelectorListTest::lastModifiedOrder()
{
    const jet::Recordset rows = m_book.data().openRecordset(selectorSql(sort(u"L Modi"_s), u"All"_s, {}));
    QCOMPARE(rows.count(), 12);
    QCOMPARE(rows.number(u"id"), 11);
    QCOMPARE(rows.textAt(0, rows.columnIndex(kChangedColumn)), u"Jun-2026"_s);
    for (const int last : {10, 11})
        QVERIFY(rows.textAt(last, 1).isEmpty());
    QCOMPARE(shortMonth(u"Jun-2026"_s), u"Jun 26"_s);
    QCOMPARE(shortMonth({}), QString());
}

void SelectorListTest::combosOffer()
{
    QCOMPARE(m_book.rows(quickCitiesSql()).size(), 8); // MUMBAI is Mumbai
    QCOMPARE(m_book.rows(quickCategoriesSql()),
        (QStringList{u"Business"_s, u"Friends"_s, u"Personal"_s, u"Undefined"_s, u"Utilities"_s}));
    QCOMPARE(m_book.rows(quickSubcategoriesSql()), m_book.rows(quickSubcategoriesSql(u"All"_s)));
    QCOMPARE(
        m_book.rows(quickSubcategoriesSql(u"Friends"_s)), (QStringList{u"Club"_s, u"Family"_s, u"School"_s}));
    QCOMPARE(m_book.unexpected(), QString());
}

void SelectorListTest::captions()
{
    QCOMPARE(selectorLetters().size(), 23);
    QCOMPARE(selectorLetters().mid(15), u"O PQ R S TU V W XYZ"_s.split(u' '));
    QCOMPARE(quickPriorities(), (QStringList{u"All"_s, u"1&2"_s, u"2&3"_s, u"3&4"_s}));
    QCOMPARE(letterWord(u"TU"_s), u"T"_s);
}

QTEST_MAIN(SelectorListTest)
#include "selector_list_test.moc"
