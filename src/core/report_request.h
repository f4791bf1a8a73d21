#pragma once

#include "core/context.h"

#include <QStringList>

namespace core {

inline constexpr QStringView kAddressReports = u"FrmAddFullRptView";

/// The statements with which screens leave a note for a report.
QStringList reportNote(const QString& name);

/// Asks the sibling that prints reports for one of them: leaves it a note in the book, starts it and ends
/// this program. Where it is not there, our own screen shows the report.
/// @param statements that leave the note
bool requestReport(Context& context, const QString& name, const QStringList& statements);

} // namespace core
