#pragma once

#include "core/tool.h"

namespace telephone {

/// What can be done with the person of a number that was found.
core::ToolTable phoneSearchTools();

} // namespace telephone
