#pragma once

#include "output/labels/label_sheet.h"

namespace output {

/// Which of the addresses of a contact is on its label.
enum class AddressSet { Home, Work1, Work2 };

/// The columns of an address: first and second line, city, state, pin.
QStringList addressColumns(AddressSet set);

/// Labels of names and addresses. The rows have `name` and the columns of the address; a label takes no more
/// room than the sheet has for it.
Report labelReport(std::shared_ptr<const ReportSource> rows, AddressSet set, const LabelSheet& sheet,
    const QString& printDate);

/// The same rows with those of one address as one, under all their names. Rows without an address stay as
/// they are. Reads them all.
std::shared_ptr<const ReportSource> householdsOf(const ReportSource& rows, AddressSet set);

} // namespace output
