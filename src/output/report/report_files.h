#pragma once

#include "output/report/save_report.h"

namespace output {

bool writeHtmlReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress);
bool writeRtfReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress);
bool writePdfReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress);

/// A picture as a JPEG no larger than a report shows it; empty for none.
QByteArray jpegOf(const PictureOf& pictures, const QString& path);

} // namespace output
