#pragma once

#include <QCoreApplication>
#include <QHash>

#include "platform/mail_account_file.h"
#include "platform/mail_post.h"
#include "platform/mailbox_client.h"
#include "platform/secret_store.h"
#include "support/recording_services.h"

namespace support {

/// Passwords in memory, answered later as a desktop does.
class SlowSecrets final : public platform::SecretStore {
public:
    void read(const QString& key, Read then) override
    {
        later([this, key, then = std::move(then)] {
            then(secrets.value(key),
                secrets.contains(key) ? platform::PasswordPlace::SecretStore
                                      : platform::PasswordPlace::Nowhere);
        });
    }
    void write(const QString& key, const QString& secret, platform::MailAccounts::Placed then) override
    {
        later([this, key, secret, then = std::move(then)] {
            secret.isEmpty() ? void(secrets.remove(key)) : void(secrets.insert(key, secret));
            then(secret.isEmpty() ? platform::PasswordPlace::Nowhere : platform::PasswordPlace::SecretStore);
        });
    }

    QHash<QString, QString> secrets;

private:
    static void later(std::function<void()> call)
    {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(call), Qt::QueuedConnection);
    }
};

/// The real mail client in a folder of its own, with an account at a server of this computer on that port.
class MailAccount {
public:
    MailAccount(const QString& folder, int port)
        : clock(QDateTime(QDate(2024, 3, 15), QTime(12, 0)))
        , accounts(folder + QStringLiteral("/mail.ini"), secrets, clock)
        , post(folder + QStringLiteral("/MailBox"), accounts)
        , client(folder + QStringLiteral("/MailBox"), accounts, post, shell, clock)
    {
        post.setFirstPause(100);
        accounts.setLimits({.connectMs = 5000, .answerMs = 2000, .totalMs = 20'000});
        if (port > 0)
            accounts.store(open(port));
    }
    static platform::MailAccount open(int port)
    {
        return {QStringLiteral("Asha Rao"), QStringLiteral("me@x.in"), QStringLiteral("localhost"), port,
            platform::MailSecurity::None, {}};
    }

    FixedClock clock;
    SlowSecrets secrets;
    RecordingShell shell;
    platform::MailAccountFile accounts;
    platform::MailPost post;
    platform::MailboxClient client;
};

} // namespace support
