#pragma once

#include <QtGlobal>

namespace core {

/// The screen that composes mail; any screen may add a contact to its recipients.
class MailComposer {
public:
    virtual ~MailComposer() = default;
    virtual void AddRecipient(qint64 contactId) = 0;
};

} // namespace core
