#include "widgets/row_outline.h"

#include <algorithm>

namespace widgets {

namespace {

int lastNotAbove(const std::vector<int>& rising, int value)
{
    return int(std::upper_bound(rising.begin(), rising.end(), value) - rising.begin()) - 1;
}

} // namespace

void RowOutline::begin(int rows)
{
    clear();
    m_rows = rows;
    if (rows > 0)
        setGroups({0});
}

void RowOutline::setGroups(std::vector<int> firstRows)
{
    m_firstRows = std::move(firstRows);
    m_headings.assign(m_firstRows.size(), 0);
    m_folded.assign(m_firstRows.size(), false);
    countLines(0);
}

void RowOutline::clear()
{
    m_rows = 0;
    m_firstRows.clear();
    m_headings.clear();
    m_folded.clear();
}

int RowOutline::lines() const
{
    if (!isActive())
        return m_rows;
    const int last = groups() - 1;
    return m_headings.back() + 1 + (isFolded(last) ? 0 : rowsIn(last));
}

RowOutline::Line RowOutline::at(int line) const
{
    const int group = lastNotAbove(m_headings, line);
    const int within = line - m_headings[size_t(group)];
    return {group, within == 0 ? std::nullopt : std::optional(firstRow(group) + within - 1)};
}

int RowOutline::lineOf(int row) const
{
    const int group = lastNotAbove(m_firstRows, row);
    return m_headings[size_t(group)] + (isFolded(group) ? 0 : row - firstRow(group) + 1);
}

int RowOutline::rowsIn(int group) const
{
    const int end = group + 1 < groups() ? firstRow(group + 1) : m_rows;
    return end - firstRow(group);
}

void RowOutline::fold(int group, bool folded)
{
    m_folded[size_t(group)] = folded;
    countLines(group);
}

void RowOutline::foldAll(bool folded)
{
    m_folded.assign(m_firstRows.size(), folded);
    countLines(0);
}

void RowOutline::countLines(int fromGroup)
{
    for (int group = std::max(1, fromGroup + 1); group < groups(); ++group)
        m_headings[size_t(group)]
            = m_headings[size_t(group) - 1] + 1 + (isFolded(group - 1) ? 0 : rowsIn(group - 1));
}

} // namespace widgets
