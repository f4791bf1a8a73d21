#include "anniversaries/wishes/send_wish.h"

#include "core/contact_lookups.h"
#include "core/frame.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "platform/mail_client.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("anniversaries", text);
}

/// The contact of a wish; without one the person has been told.
jet::Recordset contactOf(core::Context& context, const Wish& wish)
{
    jet::Recordset contact
        = wish.id == 0 ? jet::Recordset() : context.data.openRecordset(core::contactByIdSql(wish.id));
    if (!contact.hasRow())
        context.services.boxes.information(translated("Record not selected"), context.shared.AppTitle);
    return contact;
}

/// The first address of a contact; without one the person has been told.
QString addressOf(core::Context& context, const jet::Recordset& contact)
{
    for (const QStringView column : {u"H_email1", u"h_email2", u"b_email1", u"b_email2"}) {
        if (const QString address = contact.textOrEmpty(column).trimmed(); !address.isEmpty())
            return address;
    }
    context.services.boxes.information(
        translated("No E-Mail ID for selected person"), context.shared.AppTitle);
    return {};
}

platform::MailResult handOn(platform::MailClient& mail, const platform::MailItem& wanted, WishWay way)
{
    const platform::MailAnswer<platform::MailItem> created = mail.CreateItem();
    if (!created)
        return {created.cause};
    platform::MailItem item = created.value;
    item.To = wanted.To;
    item.Subject = wanted.Subject;
    item.Body = wanted.Body;
    return way == WishWay::Show ? mail.Display(item) : mail.Send(item);
}

} // namespace

bool sendWish(core::Context& context, const Wish& wish, WishWay way)
{
    const jet::Recordset contact = contactOf(context, wish);
    const QString address = contact.hasRow() ? addressOf(context, contact) : QString();
    if (address.isEmpty())
        return false;
    const QString user = context.data.openRecordset(u"select name from cnt_user"_s).textOrEmpty(u"name");
    const platform::MailResult result = handOn(context.services.mail,
        {.To = address,
            .Subject = wishSubject(wish.occasion),
            .Body = wishBody(wish, contact.textOrEmpty(u"First"), user)},
        way);
    if (!result) {
        context.services.boxes.warning(
            translated("The message was not written: %1").arg(result.cause), context.shared.AppTitle);
        return false;
    }
    if (way == WishWay::Outbox)
        context.frame.showNotice(translated("The wishes for %1 are in the outbox").arg(wish.person), {}, {});
    return true;
}

bool timeWish(core::Context& context, const Wish& wish, QDate day, bool asks, core::Screen* by)
{
    const jet::Recordset contact = contactOf(context, wish);
    const QString address = contact.hasRow() ? addressOf(context, contact) : QString();
    if (address.isEmpty())
        return false;
    constexpr int kLongest = 255;
    const jet::Step step(context.data, translated("timing the wishes for %1").arg(wish.person));
    jet::Recordset timed = context.data.openRecordset(u"Select * from time_email"_s);
    timed.addNew();
    timed.set(u"Date", day);
    timed.set(u"confirm", asks);
    timed.set(u"Subject", wishSubject(wish.occasion));
    timed.set(u"PerId", contact.number(u"id"));
    timed.set(u"person", wish.person.left(kLongest));
    timed.set(u"category1", contact.value(u"category1"));
    timed.set(u"category2", contact.value(u"category2"));
    timed.set(u"mailcategory", wishCategory(wish.occasion));
    timed.set(u"emailadd", address.left(kLongest));
    timed.set(u"Message", timedWishBody(wish));
    if (!timed.update()) {
        core::tellFailedSave(context);
        return false;
    }
    context.screens.tellBookChanged(by);
    return true;
}

} // namespace anniversaries
