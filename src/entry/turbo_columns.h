#pragma once

#include "entry/contact_columns.h"
#include "entry/save_effects.h"

namespace entry {

/// The columns of a contact from the turbo form, in the order required. Category and subcategory stand in one
/// box.
std::span<const ColumnRow> turboColumns();

/// The name of the contact: first and last as they stand, so that it is a blank when nothing was entered.
QString turboName(const FormValues& values);

/// What a stored contact of the turbo form may bring with it.
NewContact newTurboContact(const FormValues& values);

} // namespace entry
