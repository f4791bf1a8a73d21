#include "views/search/tree_search_sql.h"

#include "views/filters/chosen_value.h"

#include <array>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kValue = u"{v}";

struct Term {
    QString TreeChoices::*choice;
    QStringView text;
};

constexpr Term kTerms[] = {
    {&TreeChoices::priority, u" ( priority like '{v}' ) "},
    {&TreeChoices::country, u"( h_country like '{v}' or w_country like '{v}' or b_country like '{v}') "},
    {&TreeChoices::category, u" category1 like '{v}'"},
    {&TreeChoices::subcategory, u" category2 like '{v}'"},
    // Kept: the third test has an equals sign in its pattern and looks at the second work address once more,
    // so a city of the first work address alone is not found.
    {&TreeChoices::city, u" ( h_city like '{v}' or b_city like '{v}' or b_city like '={v}')"},
    {&TreeChoices::company, u" company like '{v}'"},
    {&TreeChoices::first, u" first like '{v}'"},
    {&TreeChoices::mainName,
        u" (name like '{v}' or spouse like '{v}' or kid1 like '{v}' or kid2 like '{v}' or kid3 like '{v}' "
        u"or altContact like'{v}')"},
    {&TreeChoices::last, u" last like '{v}'"},
    {&TreeChoices::maiden, u" maiden like '{v}'"},
    {&TreeChoices::areaCode, u"( h_std like '{v}' or w_std like '{v}' or b_std like '{v}')"},
    {&TreeChoices::product, u" ( product like '{v}')"},
    {&TreeChoices::relation, u" ( relation like '{v}')"},
    {&TreeChoices::status, u" ( status like '{v}')"},
};

struct Chain {
    QStringView word;
    QStringView chain;
};

constexpr Chain kPriorities[] = {
    {u"1&2", u"1' or Priority like '2"},
    {u"2&3", u"2' or Priority like '3"},
    {u"3&4", u"3' or Priority like '4"},
};

constexpr QStringView kNamesFirst
    = u"|First     |Last              |Category                    |Subcategory "
      u"                 |City                   |Telcode   "
      u"                         ";
constexpr QStringView kCategoryFirst
    = u"|Category           |Subcategory                    |First           "
      u"      |Last              |City                   "
      u"|Telcode                            ";
constexpr QStringView kLocation
    = u"|Region            |Country               |State              |City        "
      u"       |First             |Last                  "
      u"|Telcode                ";
constexpr QStringView kThumbnail = u"|Category     |First         |Last        |H City     |H Std      ";
constexpr QStringView kThumbnailNamesFirst = u"|First        |Last         |Category1         |Category2     "
                                             u"|H City              |H Std   ";

constexpr QStringView kSelectByCategory = u"select id,Category1,Category2,First,Last,h_City,h_Std";
constexpr QStringView kSelectByName = u"select id,First,Last,Category1,Category2,h_City,h_Std";

QString priorityChain(const QString& word)
{
    for (const Chain& row : kPriorities) {
        if (word == row.word)
            return row.chain.toString();
    }
    return word;
}

QString quoted(const QString& value)
{
    return u'\'' + value + u'\'';
}

QString categoryNodeSql(const QStringList& path, ViewBy view)
{
    const bool byCategory = view == ViewBy::Category;
    const QString select = (byCategory ? kSelectByCategory : kSelectByName).toString();
    if (path.isEmpty())
        return select + u" from cnt_main order by "_s + (byCategory ? u"category1"_s : u"first,last"_s);
    if (path.size() == 1)
        return select + u" from cnt_main where category1="_s + quoted(path[0]) + u" order by "_s
            + (byCategory ? u"category1 "_s : u"first,last "_s);
    // Kept: by name the category is not asked for, so people of other categories with that subcategory come
    // along.
    return select + u"  from cnt_main where category2="_s + quoted(path[1])
        + (byCategory ? u" and category1="_s + quoted(path[0]) + u" order by category1"_s
                      : u" order by First,Last"_s);
}

/// The three addresses of a contact, in the order in which the levels of the location tree join them.
constexpr std::array<QStringView, 3> kAddresses{u"h_", u"w_", u"b_"};

/// The column of the area code of each address, by level.
/// Kept: of a region the first work address shows the code of the home, and of a country the second work
/// address that of the first.
constexpr std::array<std::array<QStringView, 3>, 4> kAreaCodes{{
    {u"h_Std", u"h_Std", u"b_Std"},
    {u"h_Std", u"w_Std", u"w_Std"},
    {u"h_std", u"w_std", u"b_std"},
    {u"h_std", u"w_std", u"b_std"},
}};

QString addressBlock(std::size_t address, const QStringList& path)
{
    const QString a = kAddresses[address].toString();
    const auto level = std::size_t(path.size());
    const bool deep = level >= 3; // here the columns are spelt small
    QString sql = u"select id,region,"_s
        + (deep ? u"%1country,%1state,%1city"_s : u"%1Country,%1State,%1City"_s).arg(a) + u",First,Last,"_s
        + kAreaCodes[level - 1][address].toString() + u" from cnt_main where "_s;
    if (address > 0)
        sql += u"%1city is not null and %1city <>'' and "_s.arg(a);
    sql += u"region="_s + quoted(path[0]);
    if (level >= 2)
        sql += u" and "_s + a + (deep ? u"country="_s : u"country ="_s) + quoted(path[1]);
    if (level >= 3)
        sql += u" and "_s + a + u"state ="_s + quoted(path[2]);
    if (level >= 4)
        sql += u" and "_s + a + u"city="_s + quoted(path[3]);
    return sql;
}

QString locationNodeSql(const QStringList& path)
{
    if (path.isEmpty())
        return u"select id,region,h_Country,h_State,h_City,First,Last,h_Std from cnt_main order by region "_s;
    QStringList blocks;
    for (std::size_t address = 0; address < kAddresses.size(); ++address)
        blocks << addressBlock(address, path);
    return blocks.join(u" UNION "_s) + u" order by region,h_country,h_state,h_city"_s;
}

/// The columns of the location tree below the region.
constexpr std::array<QStringView, 3> kPlaces{u"country", u"state", u"city"};

QString placesSql(const QStringList& path)
{
    const QString place = kPlaces[std::size_t(path.size()) - 1].toString();
    QStringList arms;
    for (const QStringView address : kAddresses) {
        const QString column = address.toString() + place;
        QString arm = u"select distinct "_s + column + u" as "_s + place + u" from cnt_main where region="_s
            + quoted(path[0]);
        for (qsizetype level = 1; level < path.size(); ++level)
            arm += u" and "_s + address.toString() + kPlaces[std::size_t(level) - 1].toString() + u'='
                + quoted(path[level]);
        arms << arm + u" and %1 is not null and %1 <>'' and %1 <>'All'"_s.arg(column);
    }
    return arms.join(u" union "_s) + u" order by "_s + place;
}

struct Normalised {
    QStringView column;
    QStringView empty; ///< the column whose empty text counts
    bool alone = false; ///< in an index, which would be written for each row that any column is written of
};

constexpr Normalised kNormalised[] = {
    {u"category1", u"category1", true},
    {u"category2", u"category2", true},
    {u"region", u"region", true},
    {u"h_country", u"h_country"},
    // Kept: the empty text is looked for in the country of the home, so an empty one at work stays.
    {u"w_country", u"h_country"},
    {u"b_country", u"b_country"},
    {u"h_state", u"h_state"},
    {u"b_state", u"b_state"},
    {u"w_state", u"w_state"},
    {u"h_city", u"h_city"},
    {u"w_city", u"w_city"},
    {u"b_city", u"b_city"},
};

/// What is still to be filled in when the columns before have been.
QString isToFill(const Normalised& row)
{
    return (row.empty == row.column ? u"%1='' or %1 is null"_s : u"%1 is null"_s).arg(row.column);
}

constexpr TreeList kLists[] = {
    {u"cboCompany",
        u"select distinct company from cnt_main where company is not null and company <>'' order by company"},
    {u"cboFirst",
        u"select distinct first from cnt_main where first is not null and first <>'' order by first"},
    {u"cboLast", u"select distinct last from cnt_main where last is not null and last <>'' order by last"},
    {u"cboCountry",
        u"select distinct h_country as country from cnt_main where h_country is not null union "
        u"select distinct w_country as country from cnt_main where w_country is not null union "
        u"select distinct b_country as country from cnt_main where b_country is not null order by country"},
    {u"cboCity",
        u"select distinct h_city as city from cnt_main where h_city is not null union "
        u"select distinct w_city as city from cnt_main where w_city is not null union "
        u"select distinct b_city as city from cnt_main where b_city is not null order by city",
        u"cboCountry",
        u"select distinct h_city as city from cnt_main where h_city is not null and h_country ='{v}' union "
        u"select distinct w_city as city from cnt_main where w_city is not null and w_country ='{v}' union "
        u"select distinct b_city as city from cnt_main where b_city is not null and b_country ='{v}' order "
        u"by city"},
    {u"cboCateg",
        u"select distinct category1 from cnt_main where category1 is not null and category1 <>'' order by "
        u"category1"},
    {u"cboSubCateg",
        u"select distinct CATEGORY2 from CNT_MAIN where CATEGORY2 is not null and len(category2)> 0 order by "
        u"CATEGORY2",
        u"cboCateg",
        u"select distinct CATEGORY2 from CnT_MAIN where CATEGORY1 = '{v}' and CATEGORY2 is not null and "
        u"len(CATEGORY2)> 0 order by CATEGORY2"},
    {u"cboStd",
        u"select distinct h_std as std from cnt_main where h_std is not null union "
        u"select distinct w_std as std from cnt_main where w_std is not null union "
        u"select distinct b_std as std from cnt_main where b_std is not null order by std",
        u"cboCountry",
        u"select distinct h_std as std from cnt_main where h_std is not null and h_country ='{v}' union "
        u"select distinct w_std as std from cnt_main where w_std is not null and w_country ='{v}' union "
        u"select distinct b_std as std from cnt_main where b_std is not null and b_country ='{v}' order by "
        u"std"},
    {u"cboMain",
        u"select distinct name from cnt_main union select distinct spouse from cnt_main union select "
        u"distinct kid1 from cnt_main union select distinct kid2 from cnt_main union select distinct kid3 "
        u"from cnt_main union select distinct altContact from cnt_main"},
    {u"cboMaiden", u"select distinct Maiden from cnt_main where Maiden <> null and len(maiden) <> 0"},
    {u"cboProduct",
        u"select distinct product from cnt_main where product is not null and product <>'' order by product"},
    {u"cboRelation",
        u"select distinct relation from cnt_main where relation is not null and relation <>'' order by "
        u"relation"},
    {u"cboStatus",
        u"select distinct status from cnt_main where status is not null and status <>'' order by status"},
};

} // namespace

QString treeChoicesClause(const TreeChoices& choices)
{
    QString clause;
    for (const Term& term : kTerms) {
        const QString& choice = choices.*term.choice;
        if (!isChosen(choice))
            continue;
        const bool isPriority = term.choice == &TreeChoices::priority;
        clause += clause.isEmpty() ? u" where "_s : u" and "_s;
        clause
            += term.text.toString().replace(kValue.toString(), isPriority ? priorityChain(choice) : choice);
    }
    return clause;
}

// Kept: of what was searched for, the view by category shows the names first and the view by name the
// categories, the other way round than below the nodes of the tree.
ResultQuery foundQuery(const QString& whereClause, ViewBy view)
{
    if (view == ViewBy::Category)
        return {u"select id,first,last,Category1,Category2,h_City,h_Std  from cnt_main "_s + whereClause,
            kNamesFirst};
    return {u"select id,Category1,Category2,First,Last,h_City,h_Std  from cnt_main "_s + whereClause,
        kCategoryFirst};
}

ResultQuery nodeQuery(TreeKind kind, const QStringList& path, ViewBy view)
{
    Q_ASSERT(path.size() <= treeDepth(kind));
    if (kind == TreeKind::Location)
        return {locationNodeSql(path), kLocation};
    return {categoryNodeSql(path, view), view == ViewBy::Category ? kCategoryFirst : kNamesFirst};
}

// The five headings leave the subcategory out.
ResultQuery thumbnailQuery(qint64 id, ViewBy view)
{
    const QString sql = u"Select id,Category1,Category2,First,Last,h_city,h_std from cnt_main where id="_s
        + QString::number(id);
    if (view == ViewBy::Category)
        return {sql, kThumbnail, {u""_s, u"Category1"_s, u"First"_s, u"Last"_s, u"h_city"_s, u"h_std"_s}};
    return {sql, kThumbnailNamesFirst,
        {u""_s, u"First"_s, u"Last"_s, u"Category1"_s, u"Category2"_s, u"h_city"_s, u"h_std"_s}};
}

QString treeRootText(TreeKind kind)
{
    return kind == TreeKind::Category ? u"Orvane Contacts-Category Wise"_s
                                      : u"Orvane Contacts-Location Wise"_s;
}

QString treeNodeKey(const QStringList& path)
{
    return path.isEmpty() ? u"Main"_s : path.join(u'-');
}

int treeDepth(TreeKind kind)
{
    return kind == TreeKind::Category ? 2 : 4;
}

QString treeBranchesSql(TreeKind kind, const QStringList& path)
{
    Q_ASSERT(path.size() < treeDepth(kind));
    if (kind == TreeKind::Category) {
        return path.isEmpty()
            ? u"Select Category1 from cnt_main where category1 is not null and category1 <>''  group by category1 order by category1"_s
            : u"Select category2 from cnt_main where category2 is not null and category1="_s + quoted(path[0])
                + u" group by category2 order by category2"_s;
    }
    return path.isEmpty()
        ? u"Select region from cnt_main where region is not null group by region order by region "_s
        : placesSql(path);
}

// By the length, and in the order of the list: the index cnt_main_unclassified holds just these rows. By id,
// since they are filled from one id to another.
QString unclassifiedSql()
{
    QStringList terms;
    for (const Normalised& row : kNormalised)
        terms << u"len(%1)=0 or %2 is null"_s.arg(row.empty, row.column);
    return u"select id from cnt_main where "_s + terms.join(u" or "_s) + u" order by id"_s;
}

QStringList normalisingStatements(qint64 first, qint64 last)
{
    const auto within = [first, last](const QStringList& terms) {
        return u" where id between %1 and %2 and (%3)"_s.arg(first).arg(last).arg(terms.join(u" or "_s));
    };
    QStringList statements;
    QStringList columns;
    QStringList terms;
    for (const Normalised& row : kNormalised) {
        if (row.alone) {
            statements << u"Update cnt_main set %1='Undefined'"_s.arg(row.column) + within({isToFill(row)});
            continue;
        }
        columns << u"%1=iif(%2,'Undefined',%1)"_s.arg(row.column, isToFill(row));
        terms << isToFill(row);
    }
    return statements << u"Update cnt_main set "_s + columns.join(u", "_s) + within(terms);
}

std::span<const TreeList> treeLists()
{
    return kLists;
}

QString treeListSql(const TreeList& list, const QString& restriction)
{
    if (list.restrictedBy.isEmpty() || !isChosen(restriction))
        return list.sql.toString();
    return list.restrictedSql.toString().replace(kValue.toString(), restriction);
}

QString picturesSql()
{
    return u"Select * from cnt_main order by name"_s;
}

} // namespace views
