#pragma once

#include <QString>

namespace core {

/// The list of names; a filter gives its where clause with the leading word.
QString contactListSql(const QString& whereClause = {});
QString contactByIdSql(qint64 id); ///< every column
QString contactNameSql(qint64 id); ///< id and name only
/// A name is put into the statement as it is: of two people with one name it finds the first, and with an
/// apostrophe in it the look-up fails.
QString contactByNameSql(const QString& name);
QString contactCountSql();

} // namespace core
