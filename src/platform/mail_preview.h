#pragma once

#include "platform/mailbox_client.h"

class QWidget;

namespace platform {

/// Shows a message as it will leave, its texts as plain text, and asks what is to become of it. Closed
/// otherwise it is kept as a draft, so that nothing that was written is lost.
PreviewChoice showMailPreview(const MailItem& item, QWidget* parent = nullptr);

} // namespace platform
