#pragma once

#include <QDate>

namespace anniversaries {

/// The sign of the zodiac that the list of birthdays tells for a day. The year views go by limits of their
/// own.
QString signOfDay(QDate date);

} // namespace anniversaries
