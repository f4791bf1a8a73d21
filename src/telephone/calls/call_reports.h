#pragma once

#include "jet/recordset.h"
#include "output/report/report.h"

#include <span>

namespace telephone {

/// A print of the record of calls.
struct CallReportRow {
    QStringView name; ///< by which the program knows it
    const char* title; ///< for translation in the context "telephone"
    const char16_t* order; ///< of its rows
    const char16_t* group; ///< the column of its headings
};
/// By person, by date and by purpose.
std::span<const CallReportRow> callReports();

QString callReportSql(const CallReportRow& row, const QString& dates);
/// @param calls of the statement above
/// @param datePattern of its dates
output::Report callReport(
    const CallReportRow& row, const jet::Recordset& calls, const QString& datePattern, QDate today);

} // namespace telephone
