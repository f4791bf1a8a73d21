#include "output/report/report_pager.h"

#include <QElapsedTimer>

#include <algorithm>

namespace output {

namespace {

constexpr double kPageHead = 520; ///< title and date, and the line below them
constexpr double kPageFoot = 400; ///< the page's number

/// Takes away lines from the front, and those that do not fit into the room, but leaves one at least.
/// @return how many of them stay
int cutTo(Block& block, int from, double room)
{
    block.lines.erase(block.lines.begin(), block.lines.begin() + from);
    block.height = block.spaceBelow;
    if (from > 0)
        block.picture.clear();
    int kept = 0;
    for (const Line& line : block.lines) {
        if (kept > 0 && block.height + line.height > room)
            break;
        block.height += line.height;
        ++kept;
    }
    block.lines.resize(static_cast<std::size_t>(kept));
    if (!block.picture.isEmpty())
        block.height = std::max(block.height, kPictureHeight + block.spaceBelow);
    return kept;
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
    return report().paper.margin + kPageHead + m_headsHeight;
}

double ReportPager::bottom() const
{
    return report().paper.height - report().paper.margin - kPageFoot;
}

bool ReportPager::step(int milliseconds)
{
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
    if (Block heads = m_setter.columnHeads(); !heads.isEmpty()) {
        const double height = heads.height;
        page.blocks.push_back({std::move(heads), top() - m_headsHeight, height});
    }
    fill(m_starts[static_cast<std::size_t>(number - 1)], &page);
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

Place ReportPager::fill(Place place, Page* page) const
{
    double y = top();
    const double pageRoom = bottom() - top();
    bool isFirst = true;
    while (!place.atEnd) {
        Block block = m_setter.block(place);
        if (block.isEmpty()) {
            place = m_setter.after(place);
            continue;
        }
        const double room = bottom() - y;
        const bool isCut = place.line > 0 || block.height - block.spaceBelow > pageRoom;
        const auto lines = static_cast<int>(block.lines.size());
        int end = lines;
        if (isCut)
            end = place.line + cutTo(block, place.line, room);
        if (!isFirst
            && (block.height - block.spaceBelow > room || leavesHeadingAlone(place, room - block.height)))
            return place;
        const double height = block.height;
        if (page)
            page->blocks.push_back({std::move(block), y, height});
        y += height;
        isFirst = false;
        if (end < lines) {
            place.line = end;
            return place;
        }
        place = m_setter.after(place);
    }
    return place;
}

} // namespace output
