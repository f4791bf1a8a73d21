#pragma once

#include "jet/recordset.h"
#include "platform/message_boxes.h"

namespace core {

/// "3 of 120" for a recordset with a current row; empty otherwise.
QString positionText(const jet::Recordset& rows);

/// One step on; at the last row it says so and stays.
void NextRecord(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title);
/// One step back; at the first row it says so and stays.
void PrevRecord(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title);
/// Asks, and deletes the current row on Yes.
void DeleteCurrent(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title);

} // namespace core
