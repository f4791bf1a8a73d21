#pragma once

#include "core/tool.h"

namespace letters {

/// The tools of the mailing lists: for the list, and for the member that is chosen.
core::ToolTable mailListTools();

} // namespace letters
