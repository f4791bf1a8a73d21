#include "output/report/page_painter.h"

#include <QCoreApplication>
#include <QPainter>

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr QColor kQuiet(0x5f, 0x68, 0x76);
constexpr QColor kRule(0xd1, 0xd5, 0xdb);
constexpr QColor kMark(0xff, 0xe0, 0x66);
constexpr double kRuleWidth = 10;

bool isQuiet(TextRole role)
{
    return role == TextRole::Label || role == TextRole::Quiet;
}

QColor between(const QColor& first, const QColor& second)
{
    return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
        (first.blue() + second.blue()) / 2);
}

} // namespace

QString pageNumberText(int page, int pages)
{
    return pages > 0 ? QCoreApplication::translate("output", "Page %1 of %2").arg(page).arg(pages)
                     : QCoreApplication::translate("output", "Page %1").arg(page);
}

PagePainter::PagePainter(const ReportPager& pager, PictureOf pictures)
    : m_pager(pager)
    , m_pictures(std::move(pictures))
{
}

void PagePainter::paint(QPainter& painter, const Page& page, const PageMarks& marks) const
{
    paintHead(painter, page, marks);
    for (const PlacedBlock& placed : page.blocks)
        paintBlock(painter, placed, marks.found);
}

void PagePainter::paintHead(QPainter& painter, const Page& page, const PageMarks& marks) const
{
    const Report& report = m_pager.report();
    const double margin = report.paper.margin;
    const double width = report.paper.width - 2 * margin;
    const double line = m_pager.setter().measure().lineHeight(TextRole::Quiet);
    const QRectF head(margin, margin, width, line);
    // A report that does not begin with its title has it at the head of each page.
    const bool isTitled = report.header.lines.empty();
    painter.setPen(isTitled ? QColor(Qt::black) : kQuiet);
    paintText(painter, report.title, head.translated(0, isTitled ? -line * 0.5 : 0),
        isTitled ? TextRole::GroupTitle : TextRole::Quiet, Align::Left);
    painter.setPen(kQuiet);
    paintText(painter, report.printDate, head, TextRole::Quiet, Align::Right);
    const QRectF foot(margin, report.paper.height - margin - line, width, line);
    paintText(painter, pageNumberText(page.number, marks.pages), foot, TextRole::Quiet, Align::Center);
    painter.setPen(QPen(kRule, kRuleWidth));
    const double y = margin + line * 1.4;
    painter.drawLine(QLineF(margin, y, margin + width, y));
}

void PagePainter::paintBlock(QPainter& painter, const PlacedBlock& placed, const QString& found) const
{
    const Report& report = m_pager.report();
    const double left = report.paper.margin;
    const double width = m_pager.setter().textWidth();
    const bool isColored = placed.block.kind != BlockKind::ColumnHeads;
    const SectionColors colors = isColored ? report.colors : SectionColors();
    if (colors.back.isValid())
        painter.fillRect(QRectF(left, placed.y, width, placed.height), colors.back);
    if (placed.block.isBoxed) {
        painter.setPen(QPen(colors.text, kRuleWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(left + placed.block.x - kCellGap, placed.y - kCellGap / 2, placed.block.width,
            placed.height - placed.block.spaceBelow + kCellGap));
    }
    double y = placed.y;
    for (const Line& line : placed.block.lines) {
        for (Cell cell : line.cells) {
            cell.x += left;
            paintCell(painter, cell, y, colors.text, found);
        }
        y += line.height;
        if (line.isRuled) {
            painter.setPen(
                QPen(colors.back.isValid() ? between(colors.back, colors.text) : kRule, kRuleWidth));
            painter.drawLine(QLineF(left, y, left + width, y));
        }
    }
    if (!placed.block.picture.isEmpty())
        paintPicture(painter, placed);
}

void PagePainter::paintCell(
    QPainter& painter, const Cell& cell, double y, const QColor& color, const QString& found) const
{
    const TextMeasure& measure = m_pager.setter().measure();
    const double width = cell.width - kCellGap;
    const QColor quiet = color == QColor(Qt::black) ? kQuiet : color;
    if (!cell.label.isEmpty()) {
        painter.setPen(quiet);
        const double height = measure.lineHeight(TextRole::Label);
        paintText(painter, cell.label, {cell.x, y, width, height}, TextRole::Label, cell.align);
        y += height;
    }
    const double height = measure.lineHeight(cell.role);
    for (const QString& text : cell.lines) {
        const QRectF place(cell.x, y, width, height);
        if (!found.isEmpty() && text.contains(found, Qt::CaseInsensitive))
            painter.fillRect(place, kMark);
        painter.setPen(isQuiet(cell.role) ? quiet : color);
        paintText(painter, text, place, cell.role, cell.align);
        y += height;
    }
}

void PagePainter::paintText(
    QPainter& painter, const QString& text, const QRectF& place, TextRole role, Align align) const
{
    const TextMeasure& measure = m_pager.setter().measure();
    double x = place.left();
    if (align != Align::Left) {
        const double room = place.width() - measure.width(text, role);
        x += align == Align::Right ? room : room / 2;
    }
    // A font that is set again costs as much as a short text.
    if (painter.font().pixelSize() != measure.font(role).pixelSize()
        || painter.font().bold() != measure.font(role).bold())
        painter.setFont(measure.font(role));
    painter.drawText(QPointF(x, place.top() + measure.ascent(role)), text);
}

void PagePainter::paintPicture(QPainter& painter, const PlacedBlock& placed) const
{
    const QImage picture = m_pictures ? m_pictures(placed.block.picture) : QImage();
    if (picture.isNull())
        return;
    const double right = m_pager.report().paper.margin + m_pager.setter().textWidth();
    const QSizeF size = QSizeF(picture.size()).scaled(kPictureWidth, kPictureHeight, Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(right - size.width(), placed.y), size), picture);
}

} // namespace output
