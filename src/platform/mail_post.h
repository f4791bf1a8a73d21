#pragma once

#include <atomic>
#include <memory>

#include <QObject>
#include <QTimer>

#include "platform/maildir.h"
#include "platform/smtp_transfer.h"

class QThread;

namespace platform {

class MailAccountFile;

/// Something about mail on its way that a person has to know.
struct MailNews {
    enum class Kind {
        Sent,
        Refused, ///< by the server; kept among the failed ones
        Delayed, ///< tried again by itself; told once for each message
        Unclear, ///< the server may have it or not; not tried again unless the person wants it
        AccountMissing, ///< told once
        PasswordMissing, ///< told once
        AccountFault, ///< told again only after another attempt of the person
    };
    Kind kind = Kind::Sent;
    QString subject;
    QString words; ///< of the server
    QString name; ///< of the message in its folder
};

/// The folders of the outbox. In which one a message lies is what is known about it.
struct OutboxFolders {
    explicit OutboxFolders(const QString& mailBox);

    Maildir waiting;
    Maildir sending; ///< handed over; only the answer of the server is missing
    Maildir failed;
    Maildir sent;

    /// Why a failed message failed.
    void keepReason(const QString& name, const QString& words) const;
    QString reasonOf(const QString& name) const;
};

/// Carries what lies in the outbox to the server of the account, one message after the other, on a thread of
/// its own.
///
/// A message is moved from waiting to sending before its last bytes leave, and to sent at the moment of the
/// server's answer; each move is one step on the disk. So a crash at any time loses none, and none goes
/// twice: what lies in sending at the start may have arrived, and only the person can find out whether it
/// has.
class MailPost : public QObject {
    Q_OBJECT

public:
    MailPost(const QString& mailBox, MailAccountFile& accounts, QObject* parent = nullptr);
    ~MailPost() override;

    /// At the start: what was on its way when the program ended is told, then the outbox is looked at.
    void begin();
    /// Sends what waits, now.
    void lookAtOutbox();
    /// An unclear message: once more, or no more.
    void sendAgain(const QString& name);
    void giveUp(const QString& name);

    bool isBusy() const { return m_thread != nullptr; }
    /// The pause after the first attempt that came to nothing; each one after it is twice as long.
    void setFirstPause(int ms) { m_firstPause = ms; }

Q_SIGNALS:
    void news(const platform::MailNews& news);

private:
    struct Run;

    void look();
    void start(const MailAccount& account, const QString& password);
    void finish(const std::shared_ptr<Run>& run);
    void tellOnce(MailNews::Kind kind, const QString& words = {});
    void accountChanged();

    QString m_mailBox;
    MailAccountFile& m_accounts;
    OutboxFolders m_folders;
    std::shared_ptr<std::atomic_bool> m_stop;
    QThread* m_thread = nullptr; ///< while it runs
    bool m_isReadingPassword = false;
    bool m_lookAgain = false; ///< something came while it ran
    bool m_hasFault = false; ///< nothing goes until the account is changed
    QTimer m_retry;
    int m_firstPause = 60'000;
    int m_pause = 0; ///< the last one
    QStringList m_delayed; ///< names of messages of which the delay was told
    QList<MailNews::Kind> m_told;
};

} // namespace platform
