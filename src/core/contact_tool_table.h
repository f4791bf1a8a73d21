#pragma once

#include "core/tool.h"

namespace core {

/// The tools of a screen that shows one contact in full.
ToolTable viewTools();
/// The tools of a list from which a contact is chosen.
ToolTable selectorTools();
/// What can be done with a contact that a search has found.
ToolTable hitTools();

/// What find and replace works on, and the word that tells it.
struct ReplaceRow {
    const char* text; ///< for translation in the context "core"
    QStringView callerWord;
};
std::span<const ReplaceRow> replaceRows();

} // namespace core
