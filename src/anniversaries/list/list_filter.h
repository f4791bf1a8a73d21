#pragma once

#include <QDate>
#include <QString>

namespace anniversaries {

/// What of the list is in sight.
struct ListFilter {
    bool next60 = false; ///< days
    bool hides34 = false; ///< "Priority 1 && 2" is down
    bool hides12 = false; ///< "Priority 3 && 4" is down
    QString category = {}; ///< empty for all
    QString priority = {};

    bool hidesNothing() const
    {
        return !next60 && !hides34 && !hides12 && category.isEmpty() && priority.isEmpty();
    }
};

/// A row of the list, as far as it decides whether it is shown.
struct FilteredRow {
    QDate date;
    QString priority = {};
    QString category = {};
};

bool isShown(const FilteredRow& row, const ListFilter& filter, QDate today);
/// Whether the day of this year lies within the 60 that follow. It does not look beyond the end of the year,
/// and a year without a 29 February has no such day.
bool isWithinNext60(QDate date, QDate today);

/// The day and month in that year, 28 February where it has no 29th.
QDate dayInYear(QDate date, int year);

} // namespace anniversaries
