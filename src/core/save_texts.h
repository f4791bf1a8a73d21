#pragma once

#include "core/context.h"

class QWidget;

/// Text files of contacts on the desktop, and what the person is told of them.
namespace core {

/// One contact, in a file named by it.
void saveContactText(Context& context, qint64 id);
/// The whole book, by name. Shows how far it is and can be stopped.
/// @return whether the file was written
bool saveBookText(Context& context, bool labels, QWidget* over);

} // namespace core
