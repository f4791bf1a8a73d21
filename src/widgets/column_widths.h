#pragma once

#include <QList>

namespace widgets {

/// How wide a column wants to be, and what is the least that it can do with.
struct ColumnWish {
    int wanted = 0;
    int least = 0;
};

/// Widths that take no more than the room there is, as far as the columns can give way: those that have most
/// to give go first, and together.
QList<int> widthsWithin(int room, const QList<ColumnWish>& columns);

} // namespace widgets
