#pragma once

#include "core/loaded_row.h"
#include "widgets/field_set.h"

namespace core {

/// The fields of a form, as a save asks for them. Lives no longer than the set.
inline TouchedFields touchedFieldsOf(const widgets::FieldSet& fields)
{
    return {.isTouched = [&fields](const QString& control) { return fields.isTouched(control); },
        .label = [&fields](const QString& control) { return fields.label(control); }};
}

} // namespace core
