#pragma once

#include <QString>

namespace transfer {

/// What a person calls a column of a contact: "Home city". Columns that have no word go by their own name.
QString columnWord(QStringView column);

} // namespace transfer
