#pragma once

#include "output/report/report.h"
#include "telephone/lists/phone_list_sql.h"

namespace telephone {

/// A telephone list on paper: names with one number, the priority contacts with all their numbers, or the
/// members of an association with those at home and at work.
/// @param list its name; the contacts have none
/// @param rows of printedNumbersSql()
output::Report phoneReport(
    ListKind kind, const QString& list, std::shared_ptr<const output::ReportSource> rows);

} // namespace telephone
