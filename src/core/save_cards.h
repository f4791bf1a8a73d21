#pragma once

#include "core/context.h"

class QWidget;

namespace core {

/// Writes the vCards of a list of ids, with "," between, to a folder and tells the person how it went. A long
/// list shows how far it is and can be stopped.
void saveCards(Context& context, const QString& idList, const QString& folder, QWidget* over);

} // namespace core
