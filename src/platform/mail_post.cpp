#include "platform/mail_post.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QThread>

#include "formats/mail_message.h"
#include "platform/mail_account_file.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qint64 kMaxMessageBytes = 64 * 1024 * 1024;
constexpr int kLongestPause = 3'600'000;
constexpr int kMaxWords = 500;

QString subjectOf(const QByteArray& message)
{
    return formats::readMailTop(message.left(formats::kMaxTopBytes)).subject;
}

} // namespace

OutboxFolders::OutboxFolders(const QString& mailBox)
    : waiting(mailBox + u"/Outbox"_s)
    , sending(mailBox + u"/Outbox/Sending"_s)
    , failed(mailBox + u"/Outbox/Failed"_s)
    , sent(mailBox + u"/Sent"_s)
{
}

// A line for the person only: a message without it is failed all the same.
void OutboxFolders::keepReason(const QString& name, const QString& words) const
{
    QDir().mkpath(failed.folder() + u"/reasons"_s);
    QFile file(failed.folder() + u"/reasons/"_s + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(words.left(kMaxWords).toUtf8());
}

QString OutboxFolders::reasonOf(const QString& name) const
{
    QFile file(failed.folder() + u"/reasons/"_s + name);
    return !name.contains(u'/') && file.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(file.read(4 * kMaxWords)).simplified()
        : QString();
}

/// One walk through the outbox, on the thread.
struct MailPost::Run {
    OutboxFolders folders;
    SmtpServer server;
    std::shared_ptr<std::atomic_bool> stop;
    std::function<void(const MailNews& news)> tell;
    bool isDelayed = false;
    bool hasFault = false;

    void walk();
    bool sendOne(const QString& name); ///< false when the others need not be tried
    void fail(const QString& name, const Maildir& from, const MailNews& news);
};

void MailPost::Run::walk()
{
    for (const QString& name : folders.waiting.names()) {
        if (stop->load() || !sendOne(name))
            return;
    }
}

void MailPost::Run::fail(const QString& name, const Maildir& from, const MailNews& news)
{
    folders.keepReason(name, news.words);
    from.moveTo(name, folders.failed);
    tell(news);
}

bool MailPost::Run::sendOne(const QString& name)
{
    using Kind = MailNews::Kind;
    const std::optional<QByteArray> message = folders.waiting.read(name, kMaxMessageBytes);
    if (!message)
        return true;
    const QString subject = subjectOf(*message);
    const formats::SendableMail mail
        = formats::sendable(*message, {server.account.name, server.account.address});
    if (mail.recipients.isEmpty()) {
        fail(name, folders.waiting,
            {Kind::Refused, subject, tr("The message names nobody to send it to."), name});
        return true;
    }
    const SmtpReply reply = sendBySmtp(server, {server.account.address.toUtf8(), mail.recipients, mail.bytes},
        {.mayEnd = [&] { return folders.waiting.moveTo(name, folders.sending); },
            .accepted = [&] { folders.sending.moveTo(name, folders.sent); },
            .isStopped = [this] { return stop->load(); }});
    const bool wasMarked = folders.sending.contains(name);
    switch (reply.end) {
    case SmtpEnd::Accepted:
        if (wasMarked)
            folders.sending.moveTo(name, folders.sent);
        tell({Kind::Sent, subject, reply.words, name});
        return true;
    case SmtpEnd::Refused:
        fail(
            name, wasMarked ? folders.sending : folders.waiting, {Kind::Refused, subject, reply.words, name});
        return true;
    case SmtpEnd::Unknown:
        isDelayed = true; // the others
        tell({Kind::Unclear, subject, reply.words, name});
        return false;
    case SmtpEnd::TryLater:
        if (wasMarked)
            folders.sending.moveTo(name, folders.waiting);
        isDelayed = true;
        tell({Kind::Delayed, subject, reply.words, name});
        return reply.wasHeard;
    case SmtpEnd::AccountFault:
        hasFault = true;
        tell({Kind::AccountFault, subject, reply.words, name});
        return false;
    case SmtpEnd::Stopped: return false;
    }
    return false;
}

MailPost::MailPost(const QString& mailBox, MailAccountFile& accounts, QObject* parent)
    : QObject(parent)
    , m_mailBox(mailBox)
    , m_accounts(accounts)
    , m_folders(mailBox)
    , m_stop(std::make_shared<std::atomic_bool>(false))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &MailPost::look);
    connect(&accounts, &MailAccountFile::changed, this, &MailPost::accountChanged);
}

MailPost::~MailPost()
{
    *m_stop = true;
    if (m_thread)
        m_thread->wait();
}

void MailPost::begin()
{
    for (const QString& name : m_folders.sending.names()) {
        const auto top = m_folders.sending.beginning(name, formats::kMaxTopBytes);
        Q_EMIT news({MailNews::Kind::Unclear, subjectOf(top.value_or(QByteArray())), {}, name});
    }
    // Who sends without an account is told when they send.
    if (m_accounts.account())
        lookAtOutbox();
}

void MailPost::lookAtOutbox()
{
    m_hasFault = false;
    look();
}

void MailPost::look()
{
    if (m_thread || m_isReadingPassword) {
        m_lookAgain = true;
        return;
    }
    if (m_hasFault || m_folders.waiting.names().isEmpty())
        return;
    const std::optional<MailAccount> account = m_accounts.account();
    if (!account)
        return tellOnce(MailNews::Kind::AccountMissing);
    if (account->user.isEmpty())
        return start(*account, {});
    m_isReadingPassword = true;
    m_accounts.readPassword(
        *account, [self = QPointer(this), account](const QString& password, PasswordPlace place) {
            if (!self)
                return;
            self->m_isReadingPassword = false;
            // A password goes to the server that it was read for, whatever was set up meanwhile.
            if (self->m_accounts.account() != account)
                self->look();
            else if (place == PasswordPlace::Nowhere)
                self->tellOnce(MailNews::Kind::PasswordMissing);
            else
                self->start(*account, password);
        });
}

void MailPost::start(const MailAccount& account, const QString& password)
{
    m_retry.stop();
    m_lookAgain = false;
    const auto tell = [this](const MailNews& told) {
        QMetaObject::invokeMethod(
            this,
            [this, told] {
                const bool isKnown = told.kind == MailNews::Kind::Delayed && m_delayed.contains(told.name);
                if (told.kind == MailNews::Kind::Delayed)
                    m_delayed << told.name;
                if (!isKnown)
                    Q_EMIT news(told);
            },
            Qt::QueuedConnection);
    };
    const auto run = std::make_shared<Run>(
        Run{OutboxFolders(m_mailBox), m_accounts.serverOf(account, password), m_stop, tell});
    m_thread = QThread::create([run] { run->walk(); });
    m_thread->setParent(this);
    connect(m_thread, &QThread::finished, this, [this, run] { finish(run); });
    m_thread->start();
}

void MailPost::finish(const std::shared_ptr<Run>& run)
{
    m_thread->deleteLater();
    m_thread = nullptr;
    m_hasFault = run->hasFault && !m_lookAgain;
    if (run->isDelayed) {
        m_pause = m_pause == 0 ? m_firstPause : std::min(2 * m_pause, kLongestPause);
        m_retry.start(m_pause);
    } else {
        m_pause = 0;
    }
    if (std::exchange(m_lookAgain, false))
        look();
}

void MailPost::sendAgain(const QString& name)
{
    if (m_folders.sending.moveTo(name, m_folders.waiting))
        lookAtOutbox();
}

void MailPost::giveUp(const QString& name)
{
    m_folders.keepReason(name, tr("It is not known whether the mail server took it."));
    m_folders.sending.moveTo(name, m_folders.failed);
}

void MailPost::tellOnce(MailNews::Kind kind, const QString& words)
{
    if (m_told.contains(kind))
        return;
    m_told << kind;
    Q_EMIT news({kind, {}, words, {}});
}

void MailPost::accountChanged()
{
    m_told.removeAll(MailNews::Kind::PasswordMissing);
    m_pause = 0;
    lookAtOutbox();
}

} // namespace platform
