#pragma once

#include "core/context.h"

namespace views {

/// Hands a contact over to the detailed entry form in its edit mode; says "Error" when it is not there any
/// more, and is false then.
bool editContact(core::Context& context, qint64 id);

} // namespace views
