#pragma once

#include <QDate>
#include <QString>

namespace telephone {

/// A date by a pattern as jet::formatDate() takes it, which may begin with "ddd" for the day of the week,
/// "Mon". Empty for an invalid date.
QString weekdayDate(QDate date, QStringView pattern);

} // namespace telephone
