#pragma once

#include "jet/recordset.h"

#include <QStringList>

namespace reports {

/// The columns of the rows below.
QStringList familyColumns();
/// The members of the family tree, each below its parents and as far to the right as it is generations away
/// from the root. One whose parents are not in the tree stands at the root.
/// @param members id, name, spouse, kid1 to kid3 and gen_id, the id of the parents
QList<QStringList> familyRows(const jet::Recordset& members);

} // namespace reports
