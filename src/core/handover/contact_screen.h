#pragma once

#include <QtGlobal>

namespace core {

/// A screen that can show one contact: full view, dialer, letter creator, linked records, an entry form in
/// its edit mode. Found by form name.
class ContactScreen {
public:
    virtual ~ContactScreen() = default;
    /// False when there is no such contact.
    virtual bool showContact(qint64 id) = 0;
};

} // namespace core
