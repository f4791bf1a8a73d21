#pragma once

#include <optional>

#include <QByteArray>
#include <QStringList>

#include "platform/contact_sync.h"

namespace platform {

/// One vCard file of the mail client. What this program knows of it is read into a MailContact and written
/// back line by line; every line that it doesn't know, or whose meaning hasn't changed, stays as it was.
class ContactCard {
public:
    /// A new card with that identity.
    explicit ContactCard(const QString& uid);
    /// Nothing unless the bytes are one whole card of version 3.0 or 4.0.
    static std::optional<ContactCard> parse(const QByteArray& bytes);

    QString key() const;
    void setKey(const QString& key);
    MailContact contact() const;
    void setContact(const MailContact& contact);
    QByteArray bytes() const;

private:
    ContactCard() = default;

    QStringList m_lines; ///< unfolded, without BEGIN and END
};

} // namespace platform
