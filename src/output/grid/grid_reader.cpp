#include "output/grid/grid_reader.h"

#include "output/grid/selection_grid.h"
#include "widgets/grid_contents.h"

#include <QHash>

namespace output {

namespace {

constexpr int kTwipsAPixel = 15;
constexpr int kRight = 7;

class RowsOfGrid final : public GridRows {
public:
    explicit RowsOfGrid(widgets::HeadingGrid* grid)
        : m_contents(grid)
    {
    }

    const widgets::GridContents& contents() const { return m_contents; }

    int count() const override { return m_contents.lines(); }

    GridCell cell(int row, int column) const override
    {
        GridCell cell{m_contents.text(row, column), m_contents.value(row, column)};
        cell.look.isBold = m_contents.isHeading(row);
        return cell;
    }

    GridRow row(int row) const override
    {
        constexpr int kGroup = 1;
        return {
            .isHidden = m_contents.isFolded(row), .outlineLevel = m_contents.isHeading(row) ? kGroup : -1};
    }

    // Rows are asked for from top to bottom, so the range found last is nearly always the one.
    MergedRange mergedRange(int row, int column) const override
    {
        if (!m_contents.merges(column))
            return {row, column};
        if (const auto last = m_last.constFind(column);
            last != m_last.cend() && row >= last->row && row < last->row + last->rows)
            return *last;
        MergedRange range{row, column};
        while (m_contents.isMergedAbove(range.row, column))
            --range.row;
        int below = row + 1;
        while (below < count() && m_contents.isMergedAbove(below, column))
            ++below;
        range.rows = below - range.row;
        m_last.insert(column, range);
        return range;
    }

private:
    widgets::GridContents m_contents;
    mutable QHash<int, MergedRange> m_last; ///< by column
};

} // namespace

GridTable gridTableOf(widgets::HeadingGrid* grid, const QString& title)
{
    auto rows = std::make_shared<RowsOfGrid>(grid);
    GridTable table{.title = title,
        .rows = rows,
        .fontName = grid->font().family(),
        .clientWidth = grid->viewport()->width() * kTwipsAPixel};
    const widgets::GridContents& contents = rows->contents();
    table.groupColumn = contents.groupColumn();
    for (int column = 0; column < contents.columns(); ++column) {
        const CellKind kind = kindOfColumn(contents.type(column));
        table.columns << GridColumn{.heading = contents.heading(column),
            .width = std::max(1, grid->columnWidth(column)) * kTwipsAPixel,
            .kind = kind,
            .alignment = kind == CellKind::Number ? kRight : kGeneralAlignment,
            .isHidden = !contents.isShown(column)};
    }
    return table;
}

} // namespace output
