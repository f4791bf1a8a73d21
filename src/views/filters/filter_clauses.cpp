#include "views/filters/filter_clauses.h"

#include "core/text_pieces.h"
#include "views/filters/chosen_value.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kCategory = u"lstCateg";
constexpr QStringView kMergedCategory = u"lstCategSub";
constexpr QStringView kRegion = u"lstRegion";
constexpr QStringView kCountry = u"lstCountry";
constexpr QStringView kCity = u"lstCity";

constexpr QStringView kCategories = u"Select distinct category1 from cnt_main where category1 is not null "
                                    u"and category1 <>'' order by category1";
constexpr QStringView kPriorities = u"Select distinct priority from cnt_main where priority is not null and "
                                    u"priority <>'' order by priority";
constexpr QStringView kStatuses
    = u"Select distinct status from cnt_main where status is not null and status <>'' order by status";
constexpr QStringView kRegions
    = u"Select distinct region from cnt_main where region is not null and region <>'' order by region";
constexpr QStringView kRelations = u"Select distinct relation from cnt_main where relation is not null and "
                                   u"relation <>'' order by relation";
constexpr QStringView kCountries
    = u"Select distinct h_country as country from cnt_main where h_country is not null and h_country <>'' "
      u"union Select distinct b_country as country from cnt_main where b_country is not null and b_country "
      u"<>'' "
      u"union Select distinct w_country as country from cnt_main where w_country is not null and w_country "
      u"<>'' "
      u"order by country";
constexpr QStringView kCities
    = u"Select distinct h_city as city from cnt_main where h_city is not null and h_city <>'' "
      u"union Select distinct b_city as city from cnt_main where b_city is not null and b_city <>'' "
      u"union Select distinct w_city as city from cnt_main where w_city is not null and w_city <>'' "
      u"order by city";

// Kept: the second and the third part ask whether the comparison is null, so they give what all people with a
// region have, whichever it is.
constexpr QStringView kCountriesOfRegion
    = u"Select distinct h_country as country from cnt_main where region ='%1' and h_country is not null "
      u"Union Select distinct w_country as country from cnt_main where region='%1' is not null "
      u"Union Select distinct b_country as country from cnt_main where region='%1' is not null order by "
      u"country ";
constexpr QStringView kCitiesOfCountry
    = u"Select distinct h_city as city from cnt_main where h_country ='%1' and h_city is not null "
      u"Union Select distinct w_city as city from cnt_main where w_country='%1' is not null "
      u"Union Select distinct b_city as city from cnt_main where b_country='%1' is not null order by city ";

constexpr FilterList kCommonLists[] = {
    {u"cboCateg", kCategories, u"category1 ='%1'"},
    {u"cboSubCateg",
        u"Select distinct category2 from cnt_main where category2 is not null and category2 <>'' order by "
        u"category2",
        u"category2 ='%1'"},
    {u"cboPriority", kPriorities, u"priority ='%1'"},
    {u"cboStatus", kStatuses, u"status ='%1'"},
    {u"cboRegion", kRegions, u"region ='%1'"},
    {u"cboRelation", kRelations, u"relation ='%1'"},
    {u"cboCountry", kCountries, u"(h_country ='%1' or b_country='%1' or w_country ='%1')"},
    {u"cboCity", kCities, u"(h_city ='%1' or b_city ='%1' or w_city ='%1')"},
};

constexpr FilterList kTabLists[] = {
    {u"lstFirst",
        u"Select distinct first from cnt_main where first is not null and first <>'' order by first",
        u"first ='%1'"},
    {u"lstLast", u"Select distinct last from cnt_main where last is not null and last <>'' order by last",
        u"last ='%1'"},
    {u"lstPriority", kPriorities, u"priority ='%1'"},
    {u"lstProduct",
        u"Select distinct product from cnt_main where product is not null and product <>'' order by product",
        u"product ='%1'"},
    {kMergedCategory,
        u"Select distinct category1+'-'+category2 as categ from cnt_main where category1 is not null and "
        u"category1 <>''",
        u"category1  ='%1' and category2 ='%2'"},
    {kCategory, kCategories, u"category1  ='%1'"},
    {kRegion, kRegions, u"region ='%1'"},
    {kCountry, kCountries, u"( h_Country  ='%1' or b_Country ='%1' or w_Country ='%1') "},
    // Kept: behind another condition the third test looks at the country.
    {kCity, kCities, u"( h_City  ='%1' or b_City ='%1' or w_City ='%1') ",
        u" ( h_City  ='%1' or b_City ='%1' or w_Country ='%1') "},
    {u"lstRelation", kRelations, u"relation ='%1'"},
    {u"lstStatus", kStatuses, u"status ='%1'"},
};

constexpr QStringView kSearched[] = {u"name", u"company", u"Priority", u"h_add1", u"h_add2", u"h_city",
    u"h_state", u"h_Pin", u"h_country", u"w_add1", u"w_add2", u"W_city", u"W_state", u"w_pin", u"w_country",
    u"b_add1", u"b_add2", u"b_city", u"b_state", u"b_pin", u"b_country", u"category1", u"category2",
    u"product", u"region", u"relation", u"status", u"education", u"Hobbies", u"job_title", u"Spouse"};

/// The words that lead the first condition and the later ones.
struct Leading {
    QStringView first;
    QStringView later;
};

constexpr Leading kCommonLeading{u" Where ", u" and  "};
constexpr Leading kTabLeading{u" where ", u" and "};

// A subcategory is chosen together with its category, whose own list then does not count.
bool counts(const FilterList& list, const FilterChoices& choices)
{
    if (list.control == kCategory && isChosen(choices.value(kMergedCategory.toString())))
        return false;
    return isChosen(choices.value(list.control.toString()));
}

QString condition(const FilterList& list, QStringView text, const QString& value)
{
    // Kept: of an entry cut at its dashes the first two pieces count, so that of a category with a dash in
    // its name does not find its people.
    if (list.control == kMergedCategory)
        return text.toString().arg(core::PickByDash(value, 1), core::PickByDash(value, 2));
    return text.toString().arg(value);
}

QString clauseOf(std::span<const FilterList> lists, const Leading& leading, const FilterChoices& choices)
{
    QString clause;
    for (const FilterList& list : lists) {
        if (!counts(list, choices))
            continue;
        const bool first = clause.isEmpty();
        const bool other = !first && !list.laterCondition.isEmpty();
        clause += first ? leading.first : leading.later;
        clause += condition(
            list, other ? list.laterCondition : list.condition, choices.value(list.control.toString()));
    }
    return clause;
}

QString keywordFilterClause(const QString& keyword)
{
    QString clause;
    for (const QStringView column : kSearched) {
        clause += clause.isEmpty() ? u" Where "_s : u" or "_s;
        clause += column.toString() + u" like '*"_s + keyword + u"*'"_s;
    }
    return clause;
}

QString withoutWhere(QString clause)
{
    constexpr QStringView Word = u"where";
    const qsizetype at = clause.indexOf(Word, 0, Qt::CaseInsensitive);
    return at < 0 ? clause : clause.remove(at, Word.size());
}

enum class Takes { Clause, ClauseWithoutWhere, ClauseOrNames };

struct Caller {
    QStringView form;
    Takes takes;
};

constexpr Caller kCallers[] = {
    {u"frmSelector", Takes::ClauseWithoutWhere},
    {u"frmSelector1", Takes::Clause},
    {u"FrmListDetails", Takes::ClauseOrNames},
    {u"FormUserEdit", Takes::Clause},
    {u"FrmAddFullRptView", Takes::Clause},
    {u"FrmAddFullRptNew", Takes::Clause},
    {u"FullView", Takes::Clause},
    {u"FrmDuplicator", Takes::Clause},
};

} // namespace

std::span<const FilterList> commonFilterLists()
{
    return kCommonLists;
}

std::span<const FilterList> tabFilterLists()
{
    return kTabLists;
}

QString commonFilterClause(const QString& keyword, const FilterChoices& choices)
{
    return keyword.trimmed().isEmpty() ? clauseOf(kCommonLists, kCommonLeading, choices)
                                       : keywordFilterClause(keyword);
}

QString tabFilterClause(const FilterChoices& choices)
{
    return clauseOf(kTabLists, kTabLeading, choices);
}

QString tabFilterListSql(const FilterList& list, const FilterChoices& choices)
{
    struct Restricted {
        QStringView list;
        QStringView by;
        QStringView sql;
    };
    static constexpr Restricted kRestricted[]
        = {{kCountry, kRegion, kCountriesOfRegion}, {kCity, kCountry, kCitiesOfCountry}};
    for (const Restricted& row : kRestricted) {
        const QString value = choices.value(row.by.toString());
        if (row.list == list.control && isChosen(value))
            return row.sql.toString().arg(value);
    }
    return list.sql.toString();
}

std::optional<QString> deliveredFilter(FilterForm form, const QString& callerForm, const QString& whereClause)
{
    const auto* caller = std::find_if(
        std::begin(kCallers), std::end(kCallers), [&](const Caller& row) { return row.form == callerForm; });
    if (caller == std::end(kCallers))
        return {};
    if (caller->takes == Takes::ClauseWithoutWhere)
        return withoutWhere(whereClause);
    // The list of details gets the whole statement of its names from the tabs, but only the clause otherwise.
    if (caller->takes == Takes::ClauseOrNames && form == FilterForm::Tab)
        return u"Select Name from cnt_Main "_s + whereClause + u" order by category1,priority"_s;
    return whereClause;
}

} // namespace views
