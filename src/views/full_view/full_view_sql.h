#pragma once

#include <QString>

namespace views {

/// The where clause of the keyword search: every field, always.
QString keywordClause(const QString& keyword);
QString keywordSql(const QString& keyword);

/// The look-up behind an associate's name.
QString associateSql(const QString& name);

// The branches of the category tree.
QString treeCategoriesSql();
QString treeSubcategoriesSql(const QString& category);
QString treePeopleSql(const QString& subcategory);

} // namespace views
