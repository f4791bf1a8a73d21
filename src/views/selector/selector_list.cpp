#include "views/selector/selector_list.h"

#include "jet/date_text.h"
#include "views/filters/chosen_value.h"

#include <QCoreApplication>
#include <QDate>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// Kept: by category and by last change the letter is that of the name, not of the column sorted by.
constexpr SelectorSort kSorts[] = {
    {u"Name", u"select id,name from cnt_main ", u"name", u" order by name", u"|Name                         ",
        "", QT_TRANSLATE_NOOP("views", "Name"), {}},
    {u"First", u"Select id,first,Last,name from cnt_main", u"first", u" order by first",
        u"|First                 |Last                        ",
        QT_TRANSLATE_NOOP("views", "Sorted By First"), QT_TRANSLATE_NOOP("views", "First"), u"first"},
    {u"Last", u"Select id,last,First,Name from cnt_main", u"last", u" order by last",
        u"|Last                     |First                             ",
        QT_TRANSLATE_NOOP("views", "Sorted By Last"), QT_TRANSLATE_NOOP("views", "Last"), u"last"},
    {u"Categ", u"Select id,Category1,name from cnt_main", u"name", u" order by category1,name",
        u"  |Category              |Name                         ",
        QT_TRANSLATE_NOOP("views", "Sorted By Category"), QT_TRANSLATE_NOOP("views", "Category"),
        u"Category1"},
    {u"City", u"Select id,h_City,name from cnt_main", u"h_city", u" order by h_City,name",
        u"  |City                  |Name                            ",
        QT_TRANSLATE_NOOP("views", "Sorted By City"), QT_TRANSLATE_NOOP("views", "City"), u"h_City"},
    {u"Co", u"Select id,Company,name from cnt_main", u"company", u" order by Company,name",
        u"|Company             |Name                         ",
        QT_TRANSLATE_NOOP("views", "Sorted By Company"), QT_TRANSLATE_NOOP("views", "Company"), u"Company"},
    {u"L Modi", u"Select id,format(DateModi,'mmm-yyyy') ,name from cnt_main", u"name",
        u" order by DateModi desc ,name", u"  |Last Modified On  |Name                          ",
        QT_TRANSLATE_NOOP("views", "Sorted By Last Modified"), QT_TRANSLATE_NOOP("views", "Last modified"),
        kChangedColumn},
    {u"Product", u"select ID,PRODUCT,NAME from CNT_MAIN  where len(PRODUCT)<>0", u"PRODUCT",
        u" order by PRODUCT", u"|Product/Service                |Name                   ",
        QT_TRANSLATE_NOOP("views", "Sorted By Product"), QT_TRANSLATE_NOOP("views", "Product"), u"PRODUCT"},
};

/// The three tabs of several letters.
struct LetterTerm {
    QStringView letter;
    QStringView term; ///< "%1" is the column
};

constexpr LetterTerm kLetterTerms[] = {
    {u"T", u"(%1 like 'T*' or %1 like 'U*')"},
    {u"P", u"(%1 like 'P*' or %1 like 'Q*')"},
    {u"X", u"(%1 like 'X*' or %1 like 'Y*' or %1 like 'Z*')"},
};

QString letterTerm(const SelectorSort& sort, const QString& letter)
{
    if (!isChosen(letter))
        return {};
    for (const LetterTerm& row : kLetterTerms) {
        if (row.letter == letter)
            return row.term.toString().arg(sort.letterColumn);
    }
    return sort.letterColumn.toString() + u" like '"_s + letter + u"*'"_s;
}

/// Adds a condition to a statement that may have one.
class Conditions {
public:
    explicit Conditions(QStringView select)
        : m_sql(select.toString())
        , m_any(select.contains(u" where "))
    {
    }
    void add(QStringView term, QStringView leading)
    {
        m_sql += m_any ? QStringView(u" and ") : leading;
        m_sql += term;
        m_any = true;
    }
    const QString& sql() const { return m_sql; }

private:
    QString m_sql;
    bool m_any;
};

struct PriorityTerm {
    QStringView word;
    QStringView first;
    QStringView later;
};

constexpr PriorityTerm kPriorityTerms[] = {
    {u"1&2", u" ( PRIORITY='1' or PRIORITY='2') ", u" and ( PRIORITY='1' or PRIORITY='2') "},
    // Kept: alone, or before other conditions, it finds the priorities 1 and 2.
    {u"2&3", u" ( priority='1' or priority='2') ", u" and ( PRIORITY='2' or PRIORITY='3')"},
    {u"3&4", u" ( PRIORITY='3' or PRIORITY='4') ", u" and ( priority='3' or priority='4') "},
};

} // namespace

std::span<const SelectorSort> selectorSorts()
{
    return kSorts;
}

QStringList selectorLetters()
{
    QStringList letters{u"All"_s};
    for (char16_t letter = u'A'; letter <= u'O'; ++letter)
        letters << QString(QChar(letter));
    return letters << u"PQ"_s << u"R"_s << u"S"_s << u"TU"_s << u"V"_s << u"W"_s << u"XYZ"_s;
}

QString letterWord(const QString& caption)
{
    return isChosen(caption) ? caption.left(1) : u"All"_s;
}

QString selectorSql(const SelectorSort& sort, const QString& letter, const QString& clause)
{
    Conditions conditions(sort.select);
    if (const QString term = letterTerm(sort, letter); !term.isEmpty()) {
        // The pair T and U brings no blank of its own.
        const bool spaced = letter == u"T" && sort.select.endsWith(u' ');
        conditions.add(term, spaced ? QStringView(u"where ") : QStringView(u" where "));
    }
    if (!clause.trimmed().isEmpty())
        conditions.add(clause, u" where ");
    return conditions.sql() + sort.order.toString();
}

QString quickClause(const QuickChoices& choices)
{
    QString clause;
    int terms = 0;
    if (isChosen(choices.city)) {
        clause += u" H_CITY ='"_s + choices.city + u'\'';
        ++terms;
    }
    for (const PriorityTerm& row : kPriorityTerms) {
        if (row.word == choices.priority)
            clause += terms++ > 0 ? row.later : row.first;
    }
    if (isChosen(choices.category))
        clause += (terms++ > 0 ? u" and CATEGORY1 ='"_s : u" CATEGORY1 ='"_s) + choices.category + u'\'';
    if (isChosen(choices.subcategory))
        clause += (terms++ > 0 ? u" and CATEGORY2='"_s : u" CATEGORY2 ='"_s) + choices.subcategory + u'\'';
    return clause;
}

QString quickCitiesSql()
{
    return u"Select distinct h_city  from cnt_main where h_city is not null and len(trim(h_city)) > 0 order by h_city"_s;
}

QString quickCategoriesSql()
{
    return u"Select distinct Category1 from cnt_main  where category1 is not null and len(trim(category1))> 0 order by Category1 "_s;
}

QStringList quickPriorities()
{
    QStringList words{u"All"_s};
    for (const PriorityTerm& row : kPriorityTerms)
        words << row.word.toString();
    return words;
}

QString quickSubcategoriesSql()
{
    return u"Select distinct Category2 from cnt_main where category2 is not null and len(trim(category2))> 0 order by Category2"_s;
}

QString quickSubcategoriesSql(const QString& category)
{
    if (!isChosen(category))
        return u"select distinct CATEGORY2 from CNT_MAIN where CATEGORY2 is not null and len(category2)> 0 order by CATEGORY2"_s;
    return u"select distinct CATEGORY2 from CnT_MAIN where CATEGORY1 = '"_s + category
        + u"' and CATEGORY2 is not null and len(CATEGORY2)> 0 order by CATEGORY2"_s;
}

QString shortMonth(const QString& month)
{
    const auto first = jet::readDate(u"1-"_s + month, jet::DateOrder::DayFirst);
    return first ? jet::formatDate(*first, u"mmm yy") : month;
}

} // namespace views
