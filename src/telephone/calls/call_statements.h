#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// The statements behind the record of calls.
namespace telephone {

/// " where ..." for the calls of one day or of the days from one to another; empty without a date.
QString callDates(const std::optional<QDate>& from, const std::optional<QDate>& to);

QString allCallsSql(const QString& dates = {});
enum class CallFilter { Person, Purpose, Response };
/// Without a value all calls, in the order of saving.
QString filteredCallsSql(CallFilter filter, const QString& value);
QString callChoicesSql();
QString callsByPersonSql(const QString& dates);
/// Kept: months go up within years that go down.
QString callsByMonthSql(const QString& dates);
QString callsToMakeSql();

/// "March 2024" for the month as the statement above has it, "2024,3".
QString monthText(const QString& yearAndMonth);

} // namespace telephone
