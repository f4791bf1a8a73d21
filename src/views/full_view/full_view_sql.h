#pragma once

#include <QString>

namespace views {

/// The list of the full view; a filter gives its where clause with the leading word.
QString contactListSql(const QString& whereClause = {});

/// The where clause of the keyword search: every field, always.
QString keywordClause(const QString& keyword);
QString keywordSql(const QString& keyword);

QString contactByIdSql(qint64 id);
QString contactForEditSql(qint64 id);
/// A name is put into the statement as it is: of two people with one name it finds the first, and with an
/// apostrophe in it the look-up fails.
QString contactByNameSql(const QString& name);
/// The look-up behind an associate's name.
QString associateSql(const QString& name);

// The branches of the category tree.
QString treeCategoriesSql();
QString treeSubcategoriesSql(const QString& category);
QString treePeopleSql(const QString& subcategory);

} // namespace views
