#pragma once

#include "entry/form/form_values.h"
#include "platform/contact_sync.h"

namespace entry {

/// The item of the mail client for what stands in an entry form.
platform::MailContact mailContactOf(const FormValues& values, const QString& name, qint64 id);

} // namespace entry
