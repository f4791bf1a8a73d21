#pragma once

#include "jet/types.h"

#include <QVariant>
#include <sqlite3.h>

namespace jet {

/// Turns a value into what a column of a type holds; false when it does not fit.
bool toStored(const QVariant& value, ColumnType type, QVariant* stored);
/// Binds text, whole number, real number or null.
void bindText(sqlite3_stmt* statement, int place, const QString& text);
void bindStored(sqlite3_stmt* statement, int place, const QVariant& stored);

} // namespace jet
