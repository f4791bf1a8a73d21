#pragma once

#include "output/report/report.h"

namespace letters {

/// The names of people, and their names with company and home address, on ordinary paper. The rows are those
/// of labels of home addresses.
/// @param list what they have in common, for the heading; may be empty
output::Report nameList(std::shared_ptr<const output::ReportSource> rows, const QString& list);
output::Report addressList(std::shared_ptr<const output::ReportSource> rows, const QString& list);

} // namespace letters
