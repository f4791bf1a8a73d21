#pragma once

#include "jet/database.h"
#include "output/labels/label_report.h"

namespace letters {

/// Fills the work table with the same person for every label of a sheet, and gives the rows. Of two people
/// of one name it is the one of the id.
/// @param id 0 where only the name is known
/// @return empty when there is no such person, invalid when the work table could not be filled
jet::Recordset personLabels(
    jet::Database& data, const QString& name, qint64 id, output::AddressSet address, int labels);

} // namespace letters
