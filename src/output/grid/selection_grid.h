#pragma once

#include "jet/recordset.h"
#include "output/grid/grid_table.h"

#include <QStringList>

namespace output {

/// A selection as a grid, for what goes out of the book without being on a screen. Dates are written by the
/// pattern, yes/no columns are ticks.
/// @param headings of its columns, one each
GridTable selectionGrid(
    jet::Recordset rows, const QStringList& headings, const QString& title, const QString& datePattern);

/// What the cells of a column of the book are.
CellKind kindOfColumn(jet::ColumnType type);

} // namespace output
