#pragma once

#include <atomic>
#include <memory>

#include <QObject>

#include "platform/mail_account.h"
#include "platform/smtp_transfer.h"

class QThread;

namespace platform {

class Clock;
class SecretStore;

/// The account as it is kept on this computer: a settings file without the password, which the secret store
/// has under the names of user and server. So it never goes to another server than the one it was given for.
class MailAccountFile final : public QObject, public MailAccounts {
    Q_OBJECT

public:
    MailAccountFile(QString file, SecretStore& secrets, const Clock& clock);
    ~MailAccountFile() override;

    std::optional<MailAccount> account() const override;
    MailResult store(const std::optional<MailAccount>& account) override;
    void findPassword(Placed then) override;
    void keepPassword(const QString& password, Placed then) override;
    void sendTest(const MailAccount& account, const std::optional<QString>& password, Tested then) override;

    /// The password of the account, for the transfer.
    using Found = std::function<void(const QString& password, PasswordPlace place)>;
    void readPassword(const MailAccount& account, Found then);

    /// How servers are reached; for a test that has one of its own.
    void setLimits(const SmtpLimits& limits) { m_limits = limits; }
    void setAuthorities(const QString& file) { m_authorities = file; }
    SmtpServer serverOf(const MailAccount& account, const QString& password) const;

Q_SIGNALS:
    void changed(); ///< the account or its password

private:
    void runTest(const MailAccount& account, const QString& password, const Tested& then);

    QString m_file;
    SecretStore& m_secrets;
    const Clock& m_clock;
    SmtpLimits m_limits;
    QString m_authorities;
    std::shared_ptr<std::atomic_bool> m_stop;
    QThread* m_test = nullptr; ///< while one runs
};

} // namespace platform
