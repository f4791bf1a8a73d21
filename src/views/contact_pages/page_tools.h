#pragma once

#include "core/context.h"

#include <functional>

class QToolBar;

namespace views {

inline constexpr QStringView kPageTools = u"PageTools"; ///< the name of the bar

/// What can be done with the contact of a page that has no tools of its own.
/// @param shown the id of the contact, 0 for none
QToolBar* makePageTools(core::Context& context, QWidget* page, std::function<qint64()> shown);

} // namespace views
