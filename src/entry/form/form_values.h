#pragma once

#include "widgets/field_values.h"

namespace entry {

/// What stands in the controls of an entry form.
using FormValues = widgets::FieldValues;

} // namespace entry
