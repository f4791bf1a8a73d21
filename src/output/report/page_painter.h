#pragma once

#include "output/report/report_pager.h"

#include <QImage>

#include <functional>

class QPainter;

namespace output {

/// The picture behind a path of the book, no larger than it is shown; null when there is none.
using PictureOf = std::function<QImage(const QString& path)>;

/// What stands on a page beside its blocks.
struct PageMarks {
    int pages = 0; ///< of the whole report, 0 while nobody knows
    QString found; ///< what was searched for, marked wherever it stands
};

/// Draws a page, one unit a twip, the origin at the upper left corner of the paper. The paper itself is left
/// to the caller.
class PagePainter {
public:
    PagePainter(const ReportPager& pager, PictureOf pictures);

    void paint(QPainter& painter, const Page& page, const PageMarks& marks) const;

private:
    void paintHead(QPainter& painter, const Page& page, const PageMarks& marks) const;
    void paintPart(QPainter& painter, int part) const;
    void paintFrame(QPainter& painter, const QRectF& label) const;
    void paintBlock(QPainter& painter, const PlacedBlock& placed, const QString& found) const;
    void paintLines(QPainter& painter, const Block& block, QPointF origin, const QString& found) const;
    void paintCell(
        QPainter& painter, const Cell& cell, double y, const QColor& color, const QString& found) const;
    void paintRich(QPainter& painter, const Cell& cell, double y, const QColor& color) const;
    void paintText(
        QPainter& painter, const QString& text, const QRectF& place, TextRole role, Align align) const;
    void paintPicture(QPainter& painter, const PlacedBlock& placed) const;

    const ReportPager& m_pager;
    PictureOf m_pictures;
};

/// "Page 3 of 12".
QString pageNumberText(int page, int pages);

} // namespace output
