#include "views/search/search_clauses.h"

#include "views/filters/chosen_value.h"

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kValue = u"{v}";

struct Term {
    QString SearchChoices::*choice;
    QStringView text;
    QStringView joined = u" and "; ///< to a term before
    QStringView leading = u" where ";
};

// Kept: the terms with "or" have no brackets, so they widen the result past the conditions before them; the
// first name comes once more with "or"; and the priority is compared as a number, without apostrophes.
constexpr Term kTerms[] = {
    {&SearchChoices::category, u"where category1 like '{v}'", {}, {}},
    {&SearchChoices::priority, u" priority like {v}"},
    {&SearchChoices::subcategory, u" category2 like '{v}'"},
    {&SearchChoices::city, u" h_city like '{v}'"},
    {&SearchChoices::company, u" company like '{v}'"},
    {&SearchChoices::first, u" first like '{v}'"},
    {&SearchChoices::anyFirst,
        u" first like '{v}' or spouse like '{v}' or kid1 like '{v}' or kid2 like '{v}' or kid3 like '{v}'"},
    {&SearchChoices::first, u" first like '{v}'", u" or "},
    {&SearchChoices::last, u" last like '{v}'"},
    {&SearchChoices::maiden, u" maiden like '{v}'"},
    {&SearchChoices::areaCode, u" h_std like '{v}'"},
};

struct NameTerm {
    QString NameChoices::*choice;
    QStringView text;
};

constexpr NameTerm kNameTerms[] = {
    {&NameChoices::first, u" first like '{v}'"},
    {&NameChoices::last, u" last like '{v}'"},
    {&NameChoices::company, u" company like '{v}'"},
};

constexpr QStringView kKeywordColumns[] = {u"first", u"last", u"company", u"location", u"category1",
    u"category2", u"h_city", u"w_addtype", u"fam_note", u"b_note", u"education", u"region", u"hobbies"};

struct List {
    QStringView combo;
    QStringView sql;
};

constexpr List kLists[] = {
    {u"cmbgcity", u"select distinct h_city from cnt_main where h_city is not null"},
    {u"CmbGCmpny", u"select distinct company from cnt_main where company is not null"},
    {u"cmbgcat", u"select distinct category1 from cnt_main where category1 is not null"},
    {u"CmbGStd", u"select distinct h_std from cnt_main where h_std is not null"},
    {u"cmbgfirst", u"select distinct first from cnt_main"},
    {u"cmbglast", u"select distinct last from cnt_main"},
    {u"cmbfl",
        u"select distinct first  as name from cnt_main union select distinct spouse as name from cnt_main "
        u"union select distinct kid1   as name from cnt_main union select distinct kid2   as name from "
        u"cnt_main "
        u"union select distinct kid3   as name from cnt_main  "},
    {u"DBCMaiden", u"select distinct Maiden from cnt_main where Maiden <> null and len(maiden) <> 0"},
};

constexpr QStringView kByCategoryHeadings
    = u"               |Category               |Sub Category          |City                  |Company        "
      u"                    |Std                |First               |Last              |Name               "
      u"                     ";
constexpr QStringView kByNameHeadings = u"               |Name                          |Category            "
                                        u"   |Sub Category          |City      "
                                        u"            |Company                            |Std               "
                                        u" |First               |Last          "
                                        u"      ";
constexpr QStringView kKeywordHeadings
    = u"||First   |Last   |Company    |Location   |Category   |Sub Category   |City       |Home Address|Work "
      u"Address |Work Type  |Family Note    |Business Product|Business Note|Education|Region|Hobbies ";

// What is typed counts letter by letter here: "all" is a value like any other.
bool isAskedFor(const QString& choice)
{
    return choice != kAll && !choice.trimmed().isEmpty();
}

QString filledIn(QStringView text, const QString& value)
{
    return text.toString().replace(kValue.toString(), value);
}

} // namespace

QString searchClause(const SearchChoices& choices)
{
    QString clause;
    for (const Term& term : kTerms) {
        const QString& choice = choices.*term.choice;
        if (isAskedFor(choice))
            clause
                += (clause.isEmpty() ? term.leading : term.joined).toString() + filledIn(term.text, choice);
    }
    return clause;
}

QString searchSql(const SearchChoices& choices)
{
    return u"Select * from cnt_main "_s + searchClause(choices);
}

QString nameSearchSql(const NameChoices& choices)
{
    QString clause;
    for (const NameTerm& term : kNameTerms) {
        const QString& choice = choices.*term.choice;
        if (isAskedFor(choice))
            clause += (clause.isEmpty() ? u" where "_s : u" and "_s) + filledIn(term.text, choice);
    }
    return u"Select * from cnt_main "_s + clause + u"order by first,last,company"_s;
}

QString keywordHitsSql(const QString& keyword)
{
    QString clause;
    for (const QStringView column : kKeywordColumns) {
        clause += (clause.isEmpty() ? u" where "_s : u" or "_s) + u' ' + column.toString() + u" like '*"_s
            + keyword + u"*'"_s;
    }
    return u"select id, first,last,company,location,category1,category2,h_city,w_addtype,fam_note,b_note,education,region,hobbies from cnt_main "_s
        + clause;
}

QString contactsByCategorySql()
{
    return u"SELECT * FROM CNT_Main order by category1,name"_s;
}

QString contactsByNameSql()
{
    return u"SELECT * FROM CNT_Main order by name"_s;
}

QStringList searchLists()
{
    QStringList combos;
    for (const List& list : kLists)
        combos << list.combo.toString();
    return combos;
}

QString searchListSql(QStringView combo)
{
    for (const List& list : kLists) {
        if (list.combo == combo)
            return list.sql.toString();
    }
    Q_ASSERT_X(false, "searchListSql", qUtf8Printable(combo.toString()));
    return {};
}

QString subcategoryListSql(const QString& category)
{
    const QString all = u"select distinct category2 from cnt_main where category2 is not null"_s;
    return isAskedFor(category) ? all + u" and category1 like '"_s + category + u'\'' : all;
}

SearchGrid contactGrid(ViewBy view)
{
    if (view == ViewBy::Name) {
        return {kByNameHeadings,
            {u""_s, u"name"_s, u"category1"_s, u"category2"_s, u"h_city"_s, u"company"_s, u"h_std"_s,
                u"first"_s, u"last"_s}};
    }
    return {kByCategoryHeadings,
        {u""_s, u"category1"_s, u"category2"_s, u"h_city"_s, u"company"_s, u"h_std"_s, u"first"_s, u"last"_s,
            u"name"_s}};
}

SearchGrid keywordGrid()
{
    return {kKeywordHeadings,
        {u""_s, u""_s, u"first"_s, u"last"_s, u"company"_s, u"location"_s, u"category1"_s, u"category2"_s,
            u"h_city"_s, u"h_add1"_s, u"w_add1"_s, u"w_addtype"_s, u"fam_note"_s, u"product"_s, u"b_note"_s,
            u"education"_s, u"region"_s, u"hobbies"_s}};
}

} // namespace views
