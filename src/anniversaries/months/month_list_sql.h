#pragma once

#include <QString>
#include <QStringList>

namespace anniversaries {

/// The people born in a month, with all that the export of birthdays has.
/// @param month 1 to 12; any other number for all people of the book
QString monthListSql(int month);
/// The columns of the list, which are its headings too.
QStringList monthListColumns();
/// Those of them that are dates.
QStringList monthListDates();

} // namespace anniversaries
