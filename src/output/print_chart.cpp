#include "output/print_chart.h"

#include "platform/printer.h"
#include "widgets/bar_chart.h"

#include <QPainter>

namespace output {

bool printChart(
    platform::Printer& printer, const widgets::BarChart& chart, const QString& title, QWidget* over)
{
    constexpr double kWide = 11906; // A4, in twips
    constexpr double kHigh = 16838;
    constexpr double kMargin = 1134;
    const platform::PrintJob job{
        title, kWide, kHigh, 1, [&chart, title](QPainter& painter, int) {
            const QRectF page = QRectF(0, 0, kWide, kHigh).adjusted(kMargin, kMargin, -kMargin, -kMargin);
            QFont font = painter.font();
            font.setPixelSize(320);
            painter.setFont(font);
            painter.drawText(page, Qt::AlignLeft | Qt::AlignTop, title);
            font.setPixelSize(200);
            painter.setFont(font);
            chart.print(painter, page.adjusted(0, 600, 0, -page.height() / 2));
        }};
    return printer.print(job, over) != platform::Printed::Failed;
}

} // namespace output
