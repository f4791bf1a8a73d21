#include "support/columns.h"
#include "support/test_book.h"
#include "views/selector/selector_list.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The list of the record selector: whom its statements find, and in which order.
class SelectorListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyListCanBeRead()
    {
        const QString clause = quickClause({u"Pune"_s, u"1&2"_s, u"Personal"_s, u"Family"_s});
        for (const SelectorSort& each : selectorSorts()) {
            for (const QString& tab : selectorLetters()) {
                for (const QString& narrowed : {QString(), u"  "_s, clause}) {
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

    void found_data()
    {
        support::columns<QString, QString, QString, QString>("word", "tab", "clause", "names");
        const auto row = [](const char* idea, const QString& word, const QString& tab, const QString& clause,
                             const QString& names) { QTest::newRow(idea) << word << tab << clause << names; };
        const auto quick = [&row](const char* idea, const QuickChoices& choices, const QString& names) {
            row(idea, u"Name"_s, u"All"_s, quickClause(choices), names);
        };
        row("TU: names with T or U", u"Name"_s, u"TU"_s, {}, u"Tina Turner"_s);
        row("PQ by last name", u"Last"_s, u"PQ"_s, {}, u"Peter Quill"_s);
        row("X by city: Zurich", u"City"_s, u"XYZ"_s, {}, u"Xavier Quick"_s);
        row("Kept: by category the letter is the name's", u"Categ"_s, u"M"_s, {}, u"Mary Brown"_s);
        row("those with a product, by it", u"Product"_s, u"W"_s, {}, u"Sean O'Brien,José Ángel"_s);
        row("a clause behind a letter", u"Name"_s, u"S"_s, quickClause({u"Mumbai"_s, {}, {}, {}}),
            u"Sara Stone"_s);
        row("a clause behind the product", u"Product"_s, u"All"_s, quickClause({u"Paris"_s, {}, {}, {}}),
            u"Peter Quill"_s);
        row("keyword clause stays unbracketed", u"Name"_s, u"Z"_s,
            u"  name like '*zen*' or company like '*pages*'"_s, u"Xavier Quick,Zen Traders"_s);
        row("Kept: 2&3 alone finds the priorities 1 and 2", u"Name"_s, u"R"_s,
            quickClause({{}, u"2&3"_s, {}, {}}), u"Rahul Sharma"_s);
        quick("2&3 with a city: not the priority 1", {u"Mumbai"_s, u"2&3"_s, {}, {}},
            u"City Hospital,Sara Stone"_s);
        quick("1&2 with a city", {u"Mumbai"_s, u"1&2"_s, u"Business"_s, {}},
            u"Rahul Sharma,Sara Stone,Zen Traders"_s);
        quick("3&4 with a city", {u"London"_s, u"3&4"_s, {}, {}}, u"Sean O'Brien"_s);
        quick("3&4, then a subcategory", {u"All"_s, u"3&4"_s, u"All"_s, u"Club"_s}, u"José Ángel"_s);
        quick("1&2, then a category", {{}, u"1&2"_s, u"Friends"_s, {}}, u"Mary Brown,Xavier Quick"_s);
        quick("all four", {u"Mumbai"_s, u"1&2"_s, u"Business"_s, u"Clients"_s}, u"Rahul Sharma,Sara Stone"_s);
        quick("a subcategory alone", {{}, u" "_s, {}, u"Family"_s}, u"Peter Quill,Priya Mehta"_s);
    }

    void found()
    {
        QFETCH(QString, word);
        QFETCH(QString, tab);
        QFETCH(QString, clause);
        jet::Recordset rows = m_book.data().openRecordset(selectorSql(sort(word), letterWord(tab), clause));
        QStringList names;
        for (; !rows.eof(); rows.moveNext())
            names << rows.textOrEmpty(u"name");
        QTEST(names.join(u','), "names");
        QCOMPARE(m_book.unexpected(), QString());
    }

    void lastModifiedOrder()
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

    void combosOffer()
    {
        QCOMPARE(m_book.rows(quickCitiesSql()).size(), 8); // MUMBAI is Mumbai
        QCOMPARE(m_book.rows(quickCategoriesSql()),
            (QStringList{u"Business"_s, u"Friends"_s, u"Personal"_s, u"Undefined"_s, u"Utilities"_s}));
        QCOMPARE(m_book.rows(quickSubcategoriesSql()), m_book.rows(quickSubcategoriesSql(u"All"_s)));
        QCOMPARE(m_book.rows(quickSubcategoriesSql(u"Friends"_s)),
            (QStringList{u"Club"_s, u"Family"_s, u"School"_s}));
        QCOMPARE(m_book.unexpected(), QString());
    }

    void captions()
    {
        QCOMPARE(selectorLetters().size(), 23);
        QCOMPARE(selectorLetters().mid(15), u"O PQ R S TU V W XYZ"_s.split(u' '));
        QCOMPARE(quickPriorities(), (QStringList{u"All"_s, u"1&2"_s, u"2&3"_s, u"3&4"_s}));
        QCOMPARE(letterWord(u"TU"_s), u"T"_s);
    }

private:
    static const SelectorSort& sort(const QString& word)
    {
        for (const SelectorSort& row : selectorSorts()) {
            if (row.word == word)
                return row;
        }
        qFatal("no such sort word");
    }

    support::TestBook m_book{support::TestBook::Rows::Sample};
};

QTEST_MAIN(SelectorListTest)
#include "selector_list_test.moc"
