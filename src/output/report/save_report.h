#pragma once

#include "output/report/page_painter.h"

#include <QIODevice>

#include <functional>

namespace output {

enum class ReportFormat { Html, Pdf, Rtf };

/// How many rows are done; false stops the work.
using ReportProgress = std::function<bool(int done)>;

/// Writes all of a report to an open device; false when it was stopped or the device takes no more. Texts can
/// be searched and copied in each format.
bool writeReport(ReportFormat format, const Report& report, QIODevice& file, const PictureOf& pictures,
    const ReportProgress& progress);

} // namespace output
