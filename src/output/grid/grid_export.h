#pragma once

#include "core/context.h"
#include "output/grid/grid_table.h"

class QWidget;

namespace output {

/// Saves any grid as a workbook, comma-separated, tab-separated or as a web page: asks for the file, shows
/// how far it is, tells how it went and offers to open the file.
/// @return whether a file was written
bool GridXLS(core::Context& context, const GridTable& grid, QWidget* over);

/// Where exported lists go unless the person wants them elsewhere, as the program names it.
inline constexpr QStringView kExportFolder = u"C:\\OVUserfiles\\Exported Files\\Excel";

/// How the file of a list is called that has a name of its own.
struct GridFile {
    QString filter; ///< of the dialog
    QString stem; ///< a legal name, without its ending
    QString ending; ///< ".xls"
};
/// The same as GridXLS with such a file.
bool saveGrid(core::Context& context, const GridTable& grid, const GridFile& file, QWidget* over);

/// What an export or a print of a list is called: its title, " - " and today's date.
QString datedTitle(const core::Context& context, const QString& title);

} // namespace output
