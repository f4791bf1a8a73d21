#include "letters/lists/update_mail.h"

#include "core/contact_lookups.h"
#include "core/progress.h"
#include "letters/lists/update_form.h"
#include "platform/drive.h"
#include "platform/mail_account.h"
#include "platform/mail_client.h"
#include "platform/storage.h"

#include <QCoreApplication>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kPage = u"\\John.html";
constexpr int kFewMessages = 10;

QString say(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

QString addressOf(const jet::Recordset& contact)
{
    for (const QStringView column : {u"H_email1", u"h_email2", u"b_email1", u"b_email2"}) {
        if (const QString address = contact.textOrEmpty(column).trimmed(); !address.isEmpty())
            return address;
    }
    return {};
}

QString ownAddress(core::Context& context)
{
    if (const auto account = context.services.mailAccounts.account())
        return account->address;
    const jet::Recordset user = context.data.openRecordset(u"select * from cnt_user"_s);
    return user.hasRow() ? addressOf(user) : QString();
}

/// A piece of a sentence, why the message did not leave; empty when it lies in the outbox.
QString send(core::Context& context, const jet::Recordset& contact, const QString& own)
{
    const QString to = addressOf(contact);
    if (to.isEmpty())
        return say("no e-mail address");
    const QString path = context.services.drive.local(kPage);
    QSaveFile file(path);
    const QByteArray page = updateForm(contact, own);
    if (!file.open(QIODevice::WriteOnly) || file.write(page) != page.size() || !platform::commitWhole(file))
        return platform::whyNotReplaced(path);
    platform::MailAnswer<platform::MailItem> created = context.services.mail.CreateItem();
    if (!created)
        return created.cause;
    platform::MailItem item = created.value;
    item.To = to;
    item.Subject = updateMailSubject();
    item.Body = updateMailBody(contact.textOrEmpty(u"name"));
    item.Attachments = {path};
    const platform::MailResult known = context.services.mail.ResolveAll(item);
    return known ? context.services.mail.Send(item).cause : known.cause;
}

} // namespace

UpdateMails sendUpdateMails(core::Context& context, const QList<qint64>& ids, QWidget* over)
{
    UpdateMails result;
    const QString own = ownAddress(context);
    core::Progress progress(u"updateMailProgress"_s, say("Update Your Address"), say("Writing the messages"),
        int(ids.size()), over, kFewMessages);
    int done = 0;
    for (const qint64 id : ids) {
        if (!progress.advance(done++)) {
            result.isStopped = true;
            break;
        }
        const jet::Recordset contact = context.data.openRecordset(core::contactByIdSql(id));
        if (!contact.hasRow())
            continue;
        const QString why = send(context, contact, own);
        if (why.isEmpty())
            ++result.sent;
        else
            result.failed << u"%1 (%2)"_s.arg(contact.textOrEmpty(u"name").simplified(), why);
    }
    return result;
}

} // namespace letters
