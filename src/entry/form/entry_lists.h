#pragma once

#include "core/context.h"

class QWidget;

namespace entry {

/// Gives every combo of an entry form its source; nothing is read before a list drops down. Controls that a
/// form does not have are passed over, since the forms differ in their pages.
void setListSources(QWidget* form, core::Context& context);
/// After a vocabulary was changed elsewhere: the lists are read again when they are needed.
void refillLists(QWidget* form);

} // namespace entry
