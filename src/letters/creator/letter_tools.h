#pragma once

#include "core/tool.h"

namespace letters {

/// The tools of a letter creator.
core::ToolTable letterTools();
/// Those of the whole letter.
core::ToolTable wholeLetterTools();

} // namespace letters
