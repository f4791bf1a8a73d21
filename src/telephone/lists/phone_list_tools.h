#pragma once

#include "core/tool.h"

namespace telephone {

/// What can be done with a person of a telephone list, and with the list.
core::ToolTable phoneListTools();

} // namespace telephone
