#pragma once

#include "core/context.h"
#include "entry/form_values.h"
#include "entry/form_variant.h"

namespace entry {

/// What a stored contact brings with it where the set-up asks for it: the mail client's contact, the rows of
/// the scheduler, the favourites for its web addresses.
void applyAddEffects(
    core::Context& context, const FormVariant& variant, const FormValues& values, const QString& name);
/// A change makes no scheduler rows.
void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id);

} // namespace entry
