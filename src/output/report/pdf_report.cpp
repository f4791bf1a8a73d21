#include "output/report/report_files.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace output {

namespace {

constexpr int kResolution = 1440; ///< one unit a twip
constexpr int kPagingShare = 20; ///< milliseconds between two looks at the stop button

} // namespace

bool writePdfReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress)
{
    ReportPager pager(report);
    while (pager.step(kPagingShare)) {
        if (progress && !progress(0))
            return false;
    }
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setTitle(report.title);
    writer.setPageSize(QPageSize(QSizeF(report.paper.width / 20, report.paper.height / 20), QPageSize::Point,
        QString(), QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    const PagePainter pages(pager, pictures);
    const int count = report.source->count();
    for (int number = 1; number <= pager.pageCount(); ++number) {
        if (number > 1)
            writer.newPage();
        pages.paint(painter, pager.page(number), {.pages = pager.pageCount(), .found = {}});
        const int done = static_cast<int>(static_cast<qint64>(count) * number / pager.pageCount());
        if (progress && !progress(done))
            return false;
    }
    return painter.end();
}

} // namespace output
