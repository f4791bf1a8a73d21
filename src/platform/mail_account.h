#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "platform/mail_client.h"

namespace platform {

/// How the way to the server is kept from others.
enum class MailSecurity {
    Tls, ///< from the first byte
    StartTls, ///< before the account is named
    None, ///< for a server on this computer only
};

/// Who a person is for the server that takes their mail. The password is not part of it.
struct MailAccount {
    QString name;
    QString address;
    QString server;
    int port = 465;
    MailSecurity security = MailSecurity::Tls;
    QString user; ///< empty for a server that asks for none

    bool operator==(const MailAccount&) const = default;
};

int usualPort(MailSecurity security);
/// A plain sentence about what is wrong with the account; empty for one that can be used.
QString faultOf(const MailAccount& account);

/// Where the password of the account is.
enum class PasswordPlace {
    SecretStore, ///< of the desktop; it is there at the next start
    Memory, ///< no such store runs, so it is forgotten when the program ends
    Nowhere,
};

/// The account by which mail leaves. Answers that may take a while are given later, through the event loop.
class MailAccounts {
public:
    MailAccounts() = default;
    MailAccounts(const MailAccounts&) = delete;
    MailAccounts& operator=(const MailAccounts&) = delete;
    virtual ~MailAccounts() = default;

    /// Nothing when none was set up.
    virtual std::optional<MailAccount> account() const = 0;
    /// Keeps the account on this computer; no account takes it away. A new one is used at once.
    virtual MailResult store(const std::optional<MailAccount>& account) = 0;

    using Placed = std::function<void(PasswordPlace place)>;
    virtual void findPassword(Placed then) = 0;
    /// An empty one is forgotten everywhere.
    virtual void keepPassword(const QString& password, Placed then) = 0;

    /// Sends a message to the account's own address and tells what the server said. Without a password the
    /// one that is kept is taken.
    using Tested = std::function<void(bool sent, const QString& words)>;
    virtual void sendTest(const MailAccount& account, const std::optional<QString>& password, Tested then)
        = 0;
};

} // namespace platform
