#include "output/grid/grid_table.h"

namespace output {

QString textOf(const GridColumn& column, const GridCell& cell)
{
    if (column.kind != CellKind::CheckBox || !cell.value.isValid())
        return cell.text;
    return cell.value.toInt() != 0 ? QStringLiteral("Y") : QString();
}

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
