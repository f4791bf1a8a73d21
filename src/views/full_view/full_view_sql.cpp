#include "views/full_view/full_view_sql.h"

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kSearched[] = {u"first", u"last", u"company", u"category1", u"category2", u"h_city",
    u"w_addtype", u"fam_note", u"b_note", u"education", u"region", u"hobbies", u"altcontact"};

} // namespace

QString keywordClause(const QString& keyword)
{
    QString clause;
    for (const QStringView column : kSearched) {
        clause += (clause.isEmpty() ? u" where "_s : u" or "_s) + u' ' + column.toString() + u" like '*"_s
            + keyword + u"*'"_s;
    }
    return clause;
}

QString keywordSql(const QString& keyword)
{
    return u"select id,name from cnt_main "_s + keywordClause(keyword);
}

QString associateSql(const QString& name)
{
    return u"Select * from cnt_Main where name='"_s + name + u'\'';
}

QString treeCategoriesSql()
{
    return u"SELECT DISTINCT Category1 FROM [cnt_main] WHERE category1 IS NOT NULL AND category1 <>'' ORDER BY category1"_s;
}

QString treeSubcategoriesSql(const QString& category)
{
    return u"Select distinct category2 from cnt_main where category2 is not null and category2 <>'' and category1='"_s
        + category + u"' order by category2"_s;
}

// Kept: the category is not asked for, so a subcategory that two categories have lists the people of both
// under each.
QString treePeopleSql(const QString& subcategory)
{
    return u"Select id,name from cnt_main where category2='"_s + subcategory
        + u"' and name is not null  order by name"_s;
}

} // namespace views
