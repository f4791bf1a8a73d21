#include "output/report/save_report.h"

#include "output/report/report_files.h"

#include <QBuffer>
#include <QPainter>

namespace output {

bool writeReport(ReportFormat format, const Report& report, QIODevice& file, const PictureOf& pictures,
    const ReportProgress& progress)
{
    switch (format) {
    case ReportFormat::Html: return writeHtmlReport(report, file, pictures, progress);
    case ReportFormat::Pdf: return writePdfReport(report, file, pictures, progress);
    case ReportFormat::Rtf: return writeRtfReport(report, file, pictures, progress);
    }
    Q_UNREACHABLE();
}

QByteArray jpegOf(const PictureOf& pictures, const QString& path)
{
    const QImage picture = path.isEmpty() || !pictures ? QImage() : pictures(path);
    QByteArray bytes;
    if (picture.isNull())
        return bytes;
    // JPEG has no transparency; what is behind a picture is the paper.
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, picture);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    opaque.save(&buffer, "JPEG", 85);
    return bytes;
}

} // namespace output
