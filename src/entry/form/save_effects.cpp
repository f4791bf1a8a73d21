#include "entry/form/save_effects.h"

#include "core/mail_key.h"
#include "entry/form/mail_contact.h"
#include "platform/clock.h"
#include "platform/favourites.h"

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

void applyAddEffects(core::Context& context, NewContact contact)
{
    const auto setup = context.data.openRecordset(u"select * from CNTB_SETUP"_s);
    if (setup.flag(u"UpdOutllook")) {
        const auto newest = context.data.openRecordset(u"Select * from cnt_main order by ID desc"_s);
        const qint64 id = newest.hasRow() ? newest.number(u"id") : 1;
        contact.mail.key = core::mailKeyOf(id);
        context.services.mailContacts.add(contact.mail);
        contact.dates.id = id;
        core::addSchedulerRows(context.data,
            core::schedulerRows(contact.dates, context.services.clock.today().year(), contact.family));
    }
    if (setup.flag(u"AddFav"))
        addFavourites(context.services.favourites, contact.name, contact.favourites);
}

void applyAddEffects(
    core::Context& context, const FormVariant& variant, const FormValues& values, const QString& name)
{
    NewContact contact;
    contact.name = name;
    fillMailContact(contact.mail, values, name);
    contact.dates
        = {0, values.trimmed(u"dtcmbfname"), values.trimmed(u"dtcmblname"), values.trimmed(u"dtcspouse"),
            {values.trimmed(u"dtckid1"), values.trimmed(u"dtckid2"), values.trimmed(u"dtckid3")},
            values.date(u"DateBday"), values.date(u"DateSpouse"),
            {values.date(u"Datekid1"), values.date(u"datekid2"), values.date(u"datekid3")},
            values.date(u"DateAnn")};
    contact.favourites = favouritesOf(values, variant.homeSuffixOnAdd, variant.workSuffixOnAdd);
    applyAddEffects(context, std::move(contact));
}

void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id)
{
    const auto setup = context.data.openRecordset(u"select * from CNTB_SETUP"_s);
    if (variant.updatesMailOnEdit && setup.flag(u"UpdOutllook"))
        context.services.mailContacts.update(
            core::mailKeyOf(id), [&](platform::MailContact& item) { fillMailContact(item, values, name); });
    if (setup.flag(u"AddFav"))
        addFavourites(context.services.favourites, name,
            favouritesOf(values, variant.homeSuffixOnEdit, variant.workSuffixOnEdit));
}

} // namespace entry
