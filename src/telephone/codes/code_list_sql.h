#pragma once

#include "jet/recordset.h"

#include <QString>
#include <QStringList>

namespace telephone {

/// The parts of the table of city codes, in the order of their tabs.
enum class CodeList { All, Country, India, UnitedStates, UnitedStatesCities };

/// @param mainOnly only the main cities; it counts where the cities of the home country are read
QString codeListSql(CodeList list, bool nationalMode, bool mainOnly);
/// The heading of a part; the columns under it are `state` where it has three, `city` and `std`.
QStringView codeListHeadings(CodeList list);
bool hasGroups(CodeList list);

/// The rows of a part that has groups: each group says its name in its first row only.
QList<QStringList> groupedRows(const jet::Recordset& rows, CodeList list);

enum class SearchBy { City, Code };
/// What begins as it was typed; a blank text finds all. The columns are `City` and codeColumn().
QString codeSearchSql(SearchBy by, const QString& typed, bool nationalMode);
QString codeColumn(bool nationalMode);

} // namespace telephone
