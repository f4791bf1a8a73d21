#pragma once

#include "core/context.h"
#include "output/grid/grid_table.h"

class QWidget;

namespace output {

/// Saves any grid as a workbook, comma-separated, tab-separated or as a web page: asks for the file, shows
/// how far it is, tells how it went and offers to open the file.
/// @return whether a file was written
bool GridXLS(core::Context& context, const GridTable& grid, QWidget* over);

/// What an export or a print of a list is called: its title, " - " and today's date.
QString datedTitle(const core::Context& context, const QString& title);

} // namespace output
