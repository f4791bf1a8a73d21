#pragma once

#include <QString>
#include <QStringList>

namespace views {

/// What the filter of the search screen holds, each as it was chosen or typed; "All" or a blank text is no
/// condition.
struct SearchChoices {
    QString category = {};
    QString priority = {};
    QString subcategory = {};
    QString city = {};
    QString company = {};
    QString first = {};
    QString anyFirst = {}; ///< of the contact, the spouse or a child
    QString last = {};
    QString maiden = {};
    QString areaCode = {};
};

/// What the quick search for a name holds.
struct NameChoices {
    QString first = {};
    QString last = {};
    QString company = {};
};

/// The where clause with its leading word, or nothing. There are no wildcards but those that were typed, and
/// an apostrophe breaks the statement.
QString searchClause(const SearchChoices& choices);
QString searchSql(const SearchChoices& choices);
QString nameSearchSql(const NameChoices& choices);
/// Looks for the word in each of thirteen columns; a "*" in it stays a wildcard.
QString keywordHitsSql(const QString& keyword);

QString contactsByCategorySql(); ///< what both grids show first
QString contactsByNameSql();

/// The values behind one of the combos, by its name; the subcategories are those of the category chosen.
QStringList searchLists();
QString searchListSql(QStringView combo);
QString subcategoryListSql(const QString& category);

/// The headings of a grid and the column under each, "" for none.
struct SearchGrid {
    QStringView headings;
    QStringList columns;
};
enum class ViewBy { Category, Name };
SearchGrid contactGrid(ViewBy view);
/// Of the keyword grid. Three of its columns are known for the whole list only, not for the hits.
SearchGrid keywordGrid();

} // namespace views
