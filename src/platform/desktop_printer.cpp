#include "platform/desktop_printer.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr double kTwipsAnInch = 1440;
constexpr int kFewPages = 20; ///< that nobody has to watch

QString translated(const char* text)
{
    return QCoreApplication::translate("platform", text);
}

Printed printPages(QPrinter& printer, const PrintJob& job, QWidget* over)
{
    const int first = printer.fromPage() > 0 ? std::min(printer.fromPage(), job.pages) : 1;
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), job.pages) : job.pages;
    QPainter painter;
    if (!painter.begin(&printer))
        return Printed::Failed;
    QProgressDialog progress(
        translated("Printing %1").arg(job.title), translated("Stop"), first - 1, last, over);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(last - first < kFewPages ? 60'000 : 500);
    const bool fromLast = printer.pageOrder() == QPrinter::LastPageFirst;
    for (int printed = 0; printed <= last - first; ++printed) {
        progress.setValue(first - 1 + printed);
        if (progress.wasCanceled()) {
            printer.abort();
            return Printed::Cancelled;
        }
        if (printed > 0 && !printer.newPage())
            return Printed::Failed;
        painter.save();
        painter.scale(printer.logicalDpiX() / kTwipsAnInch, printer.logicalDpiY() / kTwipsAnInch);
        job.paint(painter, fromLast ? last - printed : first + printed);
        painter.restore();
    }
    return painter.end() ? Printed::Yes : Printed::Failed;
}

} // namespace

Printed DesktopPrinter::print(const PrintJob& job, QWidget* over)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.title);
    printer.setFullPage(true);
    const bool isWide = job.paperWidth > job.paperHeight;
    const QSizeF upright
        = isWide ? QSizeF(job.paperHeight, job.paperWidth) : QSizeF(job.paperWidth, job.paperHeight);
    printer.setPageSize(QPageSize(upright / 20, QPageSize::Point));
    printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, over);
    dialog.setObjectName(u"printDialog"_s);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, std::max(1, job.pages));
    if (dialog.exec() != QDialog::Accepted)
        return Printed::Cancelled;
    return printPages(printer, job, over);
}

} // namespace platform
