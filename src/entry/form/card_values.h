#pragma once

#include "entry/form/form_values.h"
#include "formats/card_file.h"

namespace entry {

/// What goes into a vCard of what stands in an entry form.
formats::CardValues cardValuesOf(const FormValues& values, const QString& name);

} // namespace entry
