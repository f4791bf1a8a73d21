#pragma once

#include "widgets/heading_grid.h"
#include "widgets/row_outline.h"

#include <QPointer>

namespace widgets {

/// What stands in a grid, for those who take it elsewhere: to a file, to paper. Lines are those of the grid
/// with all its groups unfolded; texts are whole. Reads the rows of the grid as they are asked for, and
/// nothing any more when the grid has gone.
class GridContents {
public:
    /// Finds the groups first, where that is still going on.
    explicit GridContents(HeadingGrid* grid);

    int columns() const;
    QString heading(int column) const;
    bool isShown(int column) const; ///< a margin is not
    jet::ColumnType type(int column) const;
    int groupColumn() const; ///< -1 when there are no groups

    int lines() const;
    bool isHeading(int line) const;
    bool isFolded(int line) const; ///< a row out of sight, below a heading
    QString text(int line, int column) const;
    QVariant value(int line, int column) const; ///< invalid for a heading
    /// Whether a cell is one with the cell above it.
    bool isMergedAbove(int line, int column) const;
    bool merges(int column) const;

private:
    int rowOf(int line) const; ///< -1 for a heading

    QPointer<HeadingGrid> m_grid;
    RowOutline m_outline;
    QList<int> m_shown;
    QList<int> m_merging; ///< columns in which equal texts are one cell
};

} // namespace widgets
