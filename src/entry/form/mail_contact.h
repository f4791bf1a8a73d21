#pragma once

#include "entry/form/form_values.h"
#include "platform/contact_sync.h"

namespace entry {

/// Writes what stands in an entry form into an item of the mail client. What the form has no control for
/// stays.
void fillMailContact(platform::MailContact& item, const FormValues& values, const QString& name);

} // namespace entry
