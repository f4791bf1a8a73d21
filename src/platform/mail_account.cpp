#include "platform/mail_account.h"

#include <algorithm>

#include <QCoreApplication>
#include <QUrl>

#include "formats/mail_address.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kMaxText = 200;

QString tr(const char* text)
{
    return QCoreApplication::translate("platform", text);
}

bool isOfThisComputer(const QString& server)
{
    return server == u"localhost" || server == u"127.0.0.1" || server == u"::1";
}

bool isServerName(const QString& server)
{
    const QString name = QString::fromLatin1(QUrl::toAce(server));
    return server == u"::1"
        || (!name.isEmpty() && name.size() <= kMaxText && std::all_of(name.begin(), name.end(), [](QChar c) {
               return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'.' || c == u'-');
           }));
}

bool isOneLine(const QString& text)
{
    return text.size() <= kMaxText && std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control;
    });
}

} // namespace

int usualPort(MailSecurity security)
{
    switch (security) {
    case MailSecurity::Tls: return 465;
    case MailSecurity::StartTls: return 587;
    case MailSecurity::None: return 25;
    }
    return 465;
}

QString faultOf(const MailAccount& account)
{
    const std::optional<formats::Mailbox> mailbox = formats::readMailbox(account.address);
    if (!mailbox || mailbox->address != account.address)
        return tr("The e-mail address can not be used.");
    if (!isServerName(account.server))
        return tr("The name of the mail server can not be used.");
    if (account.port < 1 || account.port > 65535)
        return tr("The port is a number from 1 to 65535.");
    if (account.security == MailSecurity::None && !isOfThisComputer(account.server))
        return tr("Only a server on this computer can be used without encryption.");
    if (!isOneLine(account.name) || !isOneLine(account.user))
        return tr("The name and the user are a line of at most 200 letters.");
    return {};
}

} // namespace platform
