#pragma once

#include "core/contact_record.h"
#include "entry/form/contact_columns.h"

namespace entry {

/// The contact that stands in a form, by the columns that its controls show. What the form has no control
/// for is not in it.
core::ContactRecord enteredContact(
    std::span<const ColumnRow> columns, const FormValues& values, const QString& name);

/// The columns of the controls of the detailed form, of which the shorter forms have some.
std::span<const ColumnRow> enteredColumns();

} // namespace entry
