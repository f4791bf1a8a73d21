#include "output/report/report_pager.h"

#include <QElapsedTimer>

#include <algorithm>

namespace output {

namespace {

constexpr double kPageFoot = 400; ///< the page's number

constexpr double kSheetHeadGap = 90;

/// The lines of a block from one on, as many as fit into the room, but one at least.
Block partOf(const Block& whole, std::size_t from, double room)
{
    Block part{.kind = whole.kind,
        .spaceBelow = whole.spaceBelow,
        .x = whole.x,
        .width = whole.width,
        .isBoxed = whole.isBoxed,
        .height = whole.spaceBelow};
    for (std::size_t at = from; at < whole.lines.size(); ++at) {
        const Line& line = whole.lines[at];
        if (at > from && part.height + line.height > room)
            break;
        part.height += line.height;
        part.lines.push_back(line);
    }
    if (from == 0 && !whole.picture.isEmpty()) {
        part.picture = whole.picture;
        part.height = std::max(part.height, kPictureHeight + part.spaceBelow);
    }
    return part;
}

} // namespace

ReportPager::ReportPager(const Report& report)
    : m_setter(report)
    , m_headsHeight(m_setter.columnHeads().height)
    , m_next(m_setter.first())
{
}

double ReportPager::top() const
{
    return m_setter.pageTop() + m_headsHeight;
}

double ReportPager::bottom() const
{
    return report().paper.height - report().paper.margin - (report().hasPageMarks ? kPageFoot : 0);
}

int ReportPager::pageCount() const
{
    if (!report().sheet)
        return static_cast<int>(m_starts.size());
    const SheetLayout& sheet = *report().sheet;
    const int labels = report().source ? report().source->count() * sheet.copies : 0;
    return labels == 0 ? 0 : (sheet.firstLabel + labels - 1) / sheet.labels() + 1;
}

bool ReportPager::step(int milliseconds)
{
    if (report().sheet)
        return false;
    QElapsedTimer clock;
    clock.start();
    do {
        if (m_next.atEnd)
            return false;
        m_starts.push_back(m_next);
        m_next = fill(m_next, nullptr);
    } while (clock.elapsed() < milliseconds);
    return !m_next.atEnd;
}

Page ReportPager::page(int number) const
{
    Page page{.number = number, .blocks = {}};
    if (number < 1 || number > pageCount())
        return page;
    if (report().sheet)
        return sheetPage(number);
    if (Block heads = m_setter.columnHeads(); !heads.isEmpty()) {
        const double height = heads.height;
        page.blocks.push_back({std::move(heads), report().paper.margin, top() - m_headsHeight, height});
    }
    auto at = static_cast<std::size_t>(number - 1);
    fill(m_starts[at], &page);
    for (; at > 0 && m_starts[at].line > 0; --at)
        ++page.part;
    return page;
}

Page ReportPager::sheetPage(int number) const
{
    const SheetLayout& sheet = *report().sheet;
    Page page{.number = number, .blocks = {}};
    if (number == 1) {
        Block head = m_setter.block(m_setter.first());
        const double room = sheet.top - kSheetHeadTop - kSheetHeadGap;
        if (!head.isEmpty() && room > 0) {
            const double scale = std::min(1.0, room / head.height);
            const double height = head.height;
            page.blocks.push_back({std::move(head), report().paper.margin,
                sheet.top - kSheetHeadGap - height * scale, height, scale});
        }
    }
    const int first = (number - 1) * sheet.labels();
    const int end = sheet.firstLabel + report().source->count() * sheet.copies;
    FittedBlock label;
    int row = -1;
    for (int at = std::max(first, sheet.firstLabel); at < std::min(first + sheet.labels(), end); ++at) {
        if (const int next = (at - sheet.firstLabel) / sheet.copies; next != row) {
            row = next;
            label = m_setter.label(row);
        }
        const double x = sheet.left + sheet.pitchX * ((at - first) % sheet.columns);
        const double y = sheet.top + sheet.pitchY * ((at - first) / sheet.columns);
        page.blocks.push_back({label.block, x + kLabelPadding, y + kLabelPadding, label.block.height,
            label.scale, QRectF(x, y, sheet.width, sheet.height)});
    }
    return page;
}

// A heading goes to the next page rather than standing at the foot of one without a row.
bool ReportPager::leavesHeadingAlone(const Place& place, double room) const
{
    if (place.kind != BlockKind::GroupHeader)
        return false;
    const Block next = m_setter.block(m_setter.after(place));
    return !next.isEmpty() && next.height - next.spaceBelow > room;
}

// A block that takes several pages is set once for all of them.
const Block& ReportPager::blockAt(const Place& place) const
{
    if (!m_set || m_setAt.row != place.row || m_setAt.kind != place.kind) {
        m_set = m_setter.block(place);
        m_setAt = place;
    }
    return *m_set;
}

Place ReportPager::fill(Place place, Page* page) const
{
    double y = top();
    const double pageRoom = bottom() - top();
    bool isFirst = true;
    while (!place.atEnd) {
        const Block& block = blockAt(place);
        if (block.isEmpty()) {
            place = m_setter.after(place);
            continue;
        }
        const double room = bottom() - y;
        const auto lines = static_cast<int>(block.lines.size());
        double height = block.height;
        int end = lines;
        std::optional<Block> part;
        if (place.line > 0 || block.height - block.spaceBelow > pageRoom) {
            part = partOf(block, static_cast<std::size_t>(place.line), room);
            end = place.line + static_cast<int>(part->lines.size());
            height = part->height;
        }
        if (!isFirst && (height - block.spaceBelow > room || leavesHeadingAlone(place, room - height)))
            return place;
        if (page)
            page->blocks.push_back({part ? std::move(*part) : block, report().paper.margin, y, height});
        y += height;
        isFirst = false;
        if (end < lines) {
            place.line = end;
            return place;
        }
        const bool endsPage = report().rowsBeginPages && place.kind == BlockKind::Detail;
        place = m_setter.after(place);
        if (endsPage && place.kind == BlockKind::Detail)
            return place;
    }
    return place;
}

} // namespace output
