#pragma once

#include <QList>

namespace core {

/// A screen that works on several contacts at once: the letter creators, the group letter, the lists to which
/// contacts are added.
class ContactsTarget {
public:
    virtual ~ContactsTarget() = default;
    /// Takes contacts over, in this order; those that are gone are left out.
    /// @param listName what they have in common, such as the name of a mailing list; may be empty
    /// @return false when the person would rather keep what the screen holds
    virtual bool takeContacts(const QList<qint64>& ids, const QString& listName) = 0;
};

} // namespace core
