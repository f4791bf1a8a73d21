#pragma once

#include "anniversaries/occasion.h"

#include <QString>
#include <QStringList>

#include <span>

namespace anniversaries {

/// A date column of the contacts and what it is the date of.
struct DayColumn {
    QStringView column;
    Occasion occasion;
};
/// In the order in which a later one paints over an earlier one.
std::span<const DayColumn> dayColumns();

/// The days of all months on which there is such a date, each once a priority.
QString daysSql(QStringView column);
/// The names of the styles, in the order of their colours; the last is that of the chosen day.
QStringList dayStyles();
/// The style of a day; empty for a priority that has none.
QString dayStyle(Occasion occasion, const QString& priority);

} // namespace anniversaries
