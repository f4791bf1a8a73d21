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
constexpr double kFrameInset = 40; ///< of a label, so that the line is seen when a sheet lies askew
constexpr double kCross = 110; ///< half of its arm

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
    if (m_pager.report().hasPageMarks)
        paintHead(painter, page, marks);
    else if (page.part > 1)
        paintPart(painter, page.part);
    for (const PlacedBlock& placed : page.blocks)
        paintBlock(painter, placed, marks.found);
}

// A letter that goes on says which of its pages this is.
void PagePainter::paintPart(QPainter& painter, int part) const
{
    const Paper& paper = m_pager.report().paper;
    const double line = m_pager.setter().measure().lineHeight(TextRole::Quiet);
    painter.setPen(kQuiet);
    paintText(painter, u"\u2013 %1 \u2013"_s.arg(part),
        {paper.margin, paper.margin - 2 * line, paper.width - 2 * paper.margin, line}, TextRole::Quiet,
        Align::Center);
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

void PagePainter::paintFrame(QPainter& painter, const QRectF& label) const
{
    const SheetLayout& sheet = *m_pager.report().sheet;
    painter.setPen(QPen(sheet.hasCrosses ? QColor(Qt::black) : kRule, kRuleWidth));
    painter.setBrush(Qt::NoBrush);
    if (sheet.isFramed)
        painter.drawRect(label.adjusted(kFrameInset, kFrameInset, -kFrameInset, -kFrameInset));
    if (!sheet.hasCrosses)
        return;
    for (const QPointF& corner :
        {label.topLeft(), label.topRight(), label.bottomLeft(), label.bottomRight()}) {
        painter.drawLine(QLineF(corner.x() - kCross, corner.y(), corner.x() + kCross, corner.y()));
        painter.drawLine(QLineF(corner.x(), corner.y() - kCross, corner.x(), corner.y() + kCross));
    }
}

void PagePainter::paintBlock(QPainter& painter, const PlacedBlock& placed, const QString& found) const
{
    const Report& report = m_pager.report();
    const double width = m_pager.setter().textWidth();
    const bool isColored = placed.block.kind != BlockKind::ColumnHeads && !placed.frame;
    if (const SectionColors colors = isColored ? report.colors : SectionColors(); colors.back.isValid())
        painter.fillRect(QRectF(placed.x, placed.y, width, placed.height), colors.back);
    if (placed.frame)
        paintFrame(painter, *placed.frame);
    else if (placed.block.isBoxed) {
        painter.setPen(QPen(report.colors.text, kRuleWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(placed.x + placed.block.x - kCellGap, placed.y - kCellGap / 2,
            placed.block.width, placed.height - placed.block.spaceBelow + kCellGap));
    }
    if (placed.scale == 1) {
        paintLines(painter, placed.block, {placed.x, placed.y}, found);
    } else {
        painter.save();
        painter.translate(placed.x, placed.y);
        painter.scale(placed.scale, placed.scale);
        paintLines(painter, placed.block, {}, found);
        painter.restore();
    }
    if (!placed.block.picture.isEmpty())
        paintPicture(painter, placed);
}

void PagePainter::paintLines(
    QPainter& painter, const Block& block, QPointF origin, const QString& found) const
{
    const Report& report = m_pager.report();
    const SectionColors colors = block.kind == BlockKind::ColumnHeads ? SectionColors() : report.colors;
    double y = origin.y();
    for (const Line& line : block.lines) {
        for (Cell cell : line.cells) {
            cell.x += origin.x();
            paintCell(painter, cell, y, colors.text, found);
        }
        y += line.height;
        if (line.isRuled) {
            painter.setPen(
                QPen(colors.back.isValid() ? between(colors.back, colors.text) : kRule, kRuleWidth));
            painter.drawLine(QLineF(origin.x(), y, origin.x() + m_pager.setter().textWidth(), y));
        }
    }
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
    if (!cell.rich.empty()) {
        if (!found.isEmpty() && cell.text().contains(found, Qt::CaseInsensitive))
            painter.fillRect(QRectF(cell.x, y, width, cell.rich.front().height), kMark);
        return paintRich(painter, cell, y, color);
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

void PagePainter::paintRich(QPainter& painter, const Cell& cell, double y, const QColor& color) const
{
    const TextMeasure& measure = m_pager.setter().measure();
    for (const RichLine& line : cell.rich) {
        for (const RunOnLine& run : line.runs) {
            QFont font = measure.styled(cell.role, run.style);
            font.setWordSpacing(line.wordSpace);
            painter.setFont(font);
            painter.setPen(run.style.color == 0 ? color : QColor::fromRgba(run.style.color));
            painter.drawText(QPointF(cell.x + run.x, y + line.ascent), run.text);
        }
        y += line.height;
    }
    painter.setFont(measure.font(cell.role));
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
