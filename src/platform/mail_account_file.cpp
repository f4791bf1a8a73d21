#include "platform/mail_account_file.h"

#include <array>

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>
#include <QThread>

#include "formats/mail_message.h"
#include "platform/clock.h"
#include "platform/secret_store.h"
#include "platform/storage.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct SecurityWord {
    MailSecurity security;
    QLatin1StringView word;
};
constexpr std::array kWords{SecurityWord{MailSecurity::Tls, "tls"_L1},
    SecurityWord{MailSecurity::StartTls, "starttls"_L1}, SecurityWord{MailSecurity::None, "none"_L1}};

QString keyOf(const MailAccount& account)
{
    return u"mail "_s + account.user + u'@' + account.server;
}

} // namespace

MailAccountFile::MailAccountFile(QString file, SecretStore& secrets, const Clock& clock)
    : m_file(std::move(file))
    , m_secrets(secrets)
    , m_clock(clock)
    , m_stop(std::make_shared<std::atomic_bool>(false))
{
}

MailAccountFile::~MailAccountFile()
{
    *m_stop = true;
    if (m_test)
        m_test->wait();
}

std::optional<MailAccount> MailAccountFile::account() const
{
    const QSettings file(m_file, QSettings::IniFormat);
    MailAccount account;
    account.name = file.value(u"name"_s).toString();
    account.address = file.value(u"address"_s).toString();
    account.server = file.value(u"server"_s).toString();
    account.port = file.value(u"port"_s).toInt();
    account.user = file.value(u"user"_s).toString();
    const QString word = file.value(u"security"_s).toString();
    for (const SecurityWord& each : kWords) {
        if (each.word == word)
            account.security = each.security;
    }
    return faultOf(account).isEmpty() ? std::optional(account) : std::nullopt;
}

MailResult MailAccountFile::store(const std::optional<MailAccount>& account)
{
    if (account && !faultOf(*account).isEmpty())
        return {faultOf(*account)};
    const std::optional<MailAccount> before = this->account();
    QSettings file(m_file, QSettings::IniFormat);
    file.clear();
    if (account) {
        file.setValue(u"name"_s, account->name);
        file.setValue(u"address"_s, account->address);
        file.setValue(u"server"_s, account->server);
        file.setValue(u"port"_s, account->port);
        file.setValue(u"user"_s, account->user);
        for (const SecurityWord& each : kWords) {
            if (each.security == account->security)
                file.setValue(u"security"_s, QString(each.word));
        }
    }
    file.sync();
    if (file.status() != QSettings::NoError)
        return {QCoreApplication::translate("platform", "The account could not be stored: %1.")
                    .arg(whyNotWritable(QFileInfo(m_file).absolutePath()))};
    // The password of an account that is gone is of no use to anybody else.
    if (before && (!account || keyOf(*before) != keyOf(*account)))
        m_secrets.write(keyOf(*before), {}, [](PasswordPlace) {});
    // Its password may follow at once.
    QMetaObject::invokeMethod(this, &MailAccountFile::changed, Qt::QueuedConnection);
    return {};
}

void MailAccountFile::readPassword(const MailAccount& account, Found then)
{
    m_secrets.read(keyOf(account), std::move(then));
}

void MailAccountFile::findPassword(Placed then)
{
    const std::optional<MailAccount> current = account();
    if (!current)
        return then(PasswordPlace::Nowhere);
    readPassword(*current, [then = std::move(then)](const QString&, PasswordPlace place) { then(place); });
}

void MailAccountFile::keepPassword(const QString& password, Placed then)
{
    const std::optional<MailAccount> current = account();
    if (!current)
        return then(PasswordPlace::Nowhere);
    m_secrets.write(
        keyOf(*current), password, [self = QPointer(this), then = std::move(then)](PasswordPlace place) {
            then(place);
            if (self)
                Q_EMIT self->changed();
        });
}

SmtpServer MailAccountFile::serverOf(const MailAccount& account, const QString& password) const
{
    return {account, password, m_authorities, m_limits};
}

void MailAccountFile::sendTest(
    const MailAccount& account, const std::optional<QString>& password, Tested then)
{
    const QString fault = faultOf(account);
    if (m_test || !fault.isEmpty())
        return then(
            false, m_test ? QCoreApplication::translate("platform", "A test is on its way already.") : fault);
    if (password || account.user.isEmpty())
        return runTest(account, password.value_or(QString()), then);
    readPassword(account, [self = QPointer(this), account, then](const QString& kept, PasswordPlace place) {
        if (self && place != PasswordPlace::Nowhere)
            self->runTest(account, kept, then);
        else if (self)
            then(false, QCoreApplication::translate("platform", "The password is not known."));
    });
}

void MailAccountFile::runTest(const MailAccount& account, const QString& password, const Tested& then)
{
    formats::MailDraft draft;
    draft.from = formats::Mailbox{account.name, account.address};
    draft.to = {*draft.from};
    draft.subject = QCoreApplication::translate("platform", "Test of the mail account");
    draft.body
        = QCoreApplication::translate("platform", "This message was sent to try the mail account out.");
    draft.date = m_clock.now();
    const formats::SendableMail mail = formats::sendable(formats::mailBytes(draft), *draft.from);

    auto reply = std::make_shared<SmtpReply>();
    const auto stop = m_stop;
    m_test = QThread::create([server = serverOf(account, password), mail, reply, stop] {
        *reply = sendBySmtp(server, {server.account.address.toUtf8(), mail.recipients, mail.bytes},
            {.mayEnd = {}, .accepted = {}, .isStopped = [stop] { return stop->load(); }});
    });
    m_test->setParent(this);
    connect(m_test, &QThread::finished, this, [this, reply, then] {
        m_test->deleteLater();
        m_test = nullptr;
        then(reply->end == SmtpEnd::Accepted, reply->words);
    });
    m_test->start();
}

} // namespace platform
