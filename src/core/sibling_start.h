#pragma once

#include "core/command_table.h"
#include "core/context.h"

#include <QStringList>

#include <functional>

namespace core {

inline constexpr QStringView kLinkAndSync = u"Orvane Link & Sync.exe";

/// A sibling program that takes over from this one.
struct SiblingStart {
    QStringView program; ///< its file
    QStringList statements = {}; ///< that leave word for it in the book
    std::function<bool()> instead = {}; ///< what is done when it is not there; false when that failed too
};

/// Starts the sibling and ends this program, when no open screen objects for something typed. A sibling that
/// is not there gets its word left all the same.
/// @return whether the sibling was started, or what stands in for it was done
bool startSibling(Context& context, const SiblingStart& start);

} // namespace core
