#pragma once

#include "jet/database.h"
#include "output/report/report.h"

#include <QStringList>

namespace output {

/// The reports of names and home addresses as labels: they differ in the sheet they are printed on, in the
/// order of the sheets there are.
enum class AddressLayout {
    rptHomeaddress,
    rptHomeaddress1,
    rptHomeaddress2,
    rptHomeaddress3,
    rptHomeaddress4
};

/// Fills the work table with the people of one name, and gives their rows in it. A name that has a "." is cut
/// there, so that its rows are not found again.
jet::Recordset addressRows(jet::Database& data, const QString& name);
/// The same for a list of ids with "," between, by name.
jet::Recordset addressRowsOf(jet::Database& data, const QString& ids);

Report addressLabels(AddressLayout layout, jet::Recordset rows, const QString& printDate);

} // namespace output
