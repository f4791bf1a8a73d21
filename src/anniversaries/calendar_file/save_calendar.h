#pragma once

#include "core/context.h"

class QWidget;

namespace anniversaries {

/// Writes all birthdays and wedding days of the book to an iCalendar file, for the calendar of a desktop or
/// telephone: asks for the file, shows how far it is, tells how it went and offers to open it.
void saveCalendarFile(core::Context& context, QWidget* over);

} // namespace anniversaries
