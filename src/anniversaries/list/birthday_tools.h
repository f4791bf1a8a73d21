#pragma once

#include "core/tool.h"

namespace anniversaries {

/// What can be done with the list of birthdays and the day that is current in it.
core::ToolTable birthdayTools();

} // namespace anniversaries
