#pragma once

#include "output/grid/grid_table.h"

namespace widgets {
class HeadingGrid;
}

namespace output {

/// A list of a screen as a value. Its rows are read from the grid as they are asked for; once the grid has
/// gone, it has none.
GridTable gridTableOf(widgets::HeadingGrid* grid, const QString& title);

} // namespace output
