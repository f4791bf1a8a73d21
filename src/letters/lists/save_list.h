#pragma once

#include "core/context.h"
#include "output/grid/grid_files.h"

class QWidget;

namespace letters {

/// Saves people and their addresses as a workbook, comma-separated or as a text: asks for the file, tells how
/// it went and offers to open it.
/// @param rows the name and six columns of the address
/// @param list the name of the list, for that of the file
void saveMembers(core::Context& context, jet::Recordset rows, output::GridFormat format, const QString& list,
    QWidget* over);

} // namespace letters
