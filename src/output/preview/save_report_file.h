#pragma once

#include "core/context.h"
#include "output/report/save_report.h"

class QWidget;

namespace output {

/// Asks for a file and writes the report to it, as a whole or not at all; a long one shows how far it is and
/// can be stopped. What went wrong is told.
void saveReportFile(core::Context& context, const Report& report, ReportFormat format,
    const PictureOf& pictures, QWidget* over);

} // namespace output
