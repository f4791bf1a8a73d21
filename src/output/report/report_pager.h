#pragma once

#include "output/report/report_blocks.h"

#include <QRectF>

#include <optional>
#include <vector>

namespace output {

/// A block, or a part of one, on a page.
struct PlacedBlock {
    Block block;
    double x = 0; ///< from the left edge of the paper
    double y = 0; ///< from the top of the paper
    double height = 0;
    double scale = 1; ///< of all that is in it
    std::optional<QRectF> frame = {}; ///< of the label that it stands on
};

struct Page {
    int number = 0; ///< from 1
    int part = 1; ///< of a row that takes several pages
    std::vector<PlacedBlock> blocks;
};

/// Breaks a report into pages, some at a time, and sets any page that is known. Of a page it keeps where it
/// begins.
class ReportPager {
public:
    explicit ReportPager(const Report& report);

    const Report& report() const { return m_setter.report(); }
    const ReportSetter& setter() const { return m_setter; }

    /// Goes on for about so long, at least by one page; false when all pages are known.
    bool step(int milliseconds);
    bool isDone() const { return report().sheet || m_next.atEnd; }
    int pageCount() const; ///< known so far
    int rowsDone() const { return isDone() ? report().source->count() : m_next.row; }
    Page page(int number) const;

    double top() const; ///< of the rows, below the head of the page
    double bottom() const;

private:
    Place fill(Place place, Page* page) const;
    Page sheetPage(int number) const;
    bool leavesHeadingAlone(const Place& place, double room) const;

    const Block& blockAt(const Place& place) const;

    ReportSetter m_setter;
    mutable std::optional<Block> m_set;
    mutable Place m_setAt;
    double m_headsHeight = 0;
    std::vector<Place> m_starts;
    Place m_next;
};

} // namespace output
