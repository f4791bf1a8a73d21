#include "widgets/column_widths.h"

#include <algorithm>
#include <numeric>

namespace widgets {

QList<int> widthsWithin(int room, const QList<ColumnWish>& columns)
{
    // What each gives is cut off at one height for all; the lowest height that is enough is looked for.
    const auto given = [](const ColumnWish& column, int height) {
        return std::max(0, column.wanted - column.least - height);
    };
    const auto total = [&](int height) {
        return std::accumulate(columns.begin(), columns.end(), 0,
            [&](int sum, const ColumnWish& column) { return sum + column.wanted - given(column, height); });
    };
    int height = 0;
    for (const ColumnWish& column : columns)
        height = std::max(height, column.wanted - column.least);
    while (height > 0 && total(height) > room)
        --height;
    QList<int> widths;
    for (const ColumnWish& column : columns)
        widths << column.wanted - given(column, height);
    return widths;
}

} // namespace widgets
