#pragma once

#include <functional>

#include <QString>

#include "platform/mail_account.h"

namespace platform {

/// Passwords, kept by the desktop and never in a file of the program. Where no such store runs they are kept
/// in memory until the program ends, and the answers say so. Answers come later, through the event loop, and
/// in the order of the calls.
class SecretStore {
public:
    SecretStore() = default;
    SecretStore(const SecretStore&) = delete;
    SecretStore& operator=(const SecretStore&) = delete;
    virtual ~SecretStore() = default;

    using Read = std::function<void(const QString& secret, PasswordPlace place)>;
    virtual void read(const QString& key, Read then) = 0;
    /// An empty secret is taken away.
    virtual void write(const QString& key, const QString& secret, MailAccounts::Placed then) = 0;
};

} // namespace platform
