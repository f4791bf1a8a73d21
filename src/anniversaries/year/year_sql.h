#pragma once

#include <QDate>
#include <QString>

namespace anniversaries {

/// The two views of the year, which ask for the same people in statements of their own.
enum class YearKind { Birthdays, Signs };

/// Who was born on that day, in whatever year.
QString bornOnDaySql(YearKind kind, QDate day);
/// Who was born on that very date.
QString bornOnDateSql(YearKind kind, QDate date);
/// Everybody, in the order of the year.
QString wholeYearSql(YearKind kind);
/// The days on which somebody was born, each with the priorities of those people.
QString markedDaysSql();

} // namespace anniversaries
