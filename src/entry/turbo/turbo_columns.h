#pragma once

#include "entry/form/contact_columns.h"
#include "entry/form/save_effects.h"

namespace entry {

/// The columns of a contact from the turbo form, in the order in which books have them. Category and
/// subcategory stand in one box.
std::span<const ColumnRow> turboColumns();

/// The name of the contact: first and last as they stand, so that it is a blank when nothing was entered.
QString turboName(const FormValues& values);

/// What a stored contact of the turbo form may bring with it.
NewContact newTurboContact(const FormValues& values);

} // namespace entry
