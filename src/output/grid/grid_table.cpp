#include "output/grid/grid_table.h"

namespace output {

QList<int> GridTable::shownColumns() const
{
    QList<int> shown;
    for (int column = 0; column < columns.size(); ++column) {
        if (columns[column].isShown())
            shown << column;
    }
    return shown;
}

int GridTable::shownWidth() const
{
    int width = 0;
    for (const GridColumn& column : columns)
        width += column.isShown() ? column.width : 0;
    return width;
}

} // namespace output
