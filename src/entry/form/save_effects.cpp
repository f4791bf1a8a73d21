#include "entry/form/save_effects.h"

#include "core/mail_key.h"
#include "core/settings.h"
#include "entry/form/entered_contact.h"
#include "platform/clock.h"
#include "platform/favourites.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

QList<WebFavourite> favouritesOf(const FormValues& values, QStringView home, QStringView work)
{
    return {{values.text(u"txtweb"), home.toString()}, {values.text(u"txtbweb"), work.toString()}};
}

void addFavourites(
    platform::Favourites& favourites, const QString& name, const QList<WebFavourite>& addresses)
{
    for (const WebFavourite& web : addresses) {
        if (!web.address.isEmpty())
            favourites.AddFavourite(web.address, name, web.suffix);
    }
}

} // namespace

NewContact newContactOf(const FormVariant& variant, const FormValues& values, const QString& name)
{
    NewContact contact;
    contact.name = name;
    core::fillMailItem(contact.mail, enteredContact(enteredColumns(), values, name));
    contact.dates
        = {0, values.trimmed(u"dtcmbfname"), values.trimmed(u"dtcmblname"), values.trimmed(u"dtcspouse"),
            {values.trimmed(u"dtckid1"), values.trimmed(u"dtckid2"), values.trimmed(u"dtckid3")},
            values.date(u"DateBday"), values.date(u"DateSpouse"),
            {values.date(u"Datekid1"), values.date(u"datekid2"), values.date(u"datekid3")},
            values.date(u"DateAnn")};
    contact.favourites = favouritesOf(values, variant.homeSuffixOnAdd, variant.workSuffixOnAdd);
    return contact;
}

qint64 addContact(
    core::Context& context, NewContact contact, const std::function<void(jet::Recordset&)>& assign)
{
    const auto setup = core::readSettings(context.data);
    const bool reachesOthers = setup.flag(u"UpdOutllook");
    jet::Step step(context.data, {});
    jet::Batch batch(context.data);
    jet::Recordset rows = context.data.openRecordset(u"Select * from cnt_main where 1>2"_s);
    rows.addNew();
    assign(rows);
    const qint64 id = rows.update() ? rows.lastAddedKey() : 0;
    if (id != 0 && reachesOthers) {
        contact.dates.id = id;
        core::addSchedulerRows(context.data,
            core::schedulerRows(contact.dates, context.services.clock.today().year(), contact.family));
    }
    if (!batch.commit() || id == 0)
        return 0;
    if (reachesOthers) {
        contact.mail.key = core::mailKeyOf(id);
        platform::MailContacts& client = context.services.mailContacts;
        client.add(contact.mail);
        step.follow([&client, mail = contact.mail](jet::StepDirection direction) {
            if (direction == jet::StepDirection::Back)
                client.remove(mail.key);
            else
                client.add(mail);
        });
    }
    if (setup.flag(u"AddFav"))
        addFavourites(context.services.favourites, contact.name, contact.favourites);
    return id;
}

void tellRefusal(core::Context& context, Refusal refusal)
{
    const QString text = QCoreApplication::translate("entry", refusalText(refusal));
    platform::MessageBoxes& boxes = context.services.boxes;
    if (refusal == Refusal::AllBlank)
        boxes.information(text, context.shared.AppTitle);
    else
        boxes.warning(text, context.shared.AppTitle);
}

void changeMailItem(core::Context& context, qint64 id, const core::ContactRecord& contact)
{
    if (core::readSettings(context.data).flag(u"UpdOutllook"))
        context.services.mailContacts.update(
            core::mailKeyOf(id), [&](platform::MailContact& item) { core::fillMailItem(item, contact); });
}

void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id)
{
    if (variant.updatesMailOnEdit)
        changeMailItem(context, id, enteredContact(enteredColumns(), values, name));
    if (core::readSettings(context.data).flag(u"AddFav"))
        addFavourites(context.services.favourites, name,
            favouritesOf(values, variant.homeSuffixOnEdit, variant.workSuffixOnEdit));
}

} // namespace entry
