#pragma once

#include "jet/database.h"

namespace core {

/// The settings row of the book, a column a setting. In a book that has none yet every text is blank and
/// every switch off.
jet::Recordset readSettings(jet::Database& data);
/// Stores one setting, in a row of its own where there is none; false when it could not be stored.
bool storeSetting(jet::Database& data, QStringView column, const QVariant& value);
/// What the three fields of the person's own are called: "User 1" where they got no name.
QStringList userFieldLabels(const jet::Recordset& settings);

} // namespace core
