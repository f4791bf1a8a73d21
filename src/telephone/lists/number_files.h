#pragma once

#include "jet/recordset.h"

#include <QString>

namespace telephone {

/// Where the numbers go that are written for other devices.
inline constexpr QStringView kTimexFile = u"C:\\OVUserfiles\\OV_Timex.txt";

/// Writes a list of numbers, a line a row, in place of an old file: the name, and the number behind the mark
/// that goes with the ending ("xls", "csv", "txt").
/// @param path of this computer
/// @return why it was not written, a piece of a sentence; empty when it was
QString exportNumbers(const jet::Recordset& rows, const QString& path, const QString& ending);

/// The same for the file of fixed form, with `desc` for the name.
QString exportTimex(const jet::Recordset& rows, const QString& path);

} // namespace telephone
