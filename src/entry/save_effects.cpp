#include "entry/save_effects.h"

#include "core/scheduler_rows.h"
#include "entry/mail_contact.h"
#include "platform/clock.h"
#include "platform/favourites.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

void addFavourites(platform::Favourites& favourites, const FormValues& values, const QString& name,
    QStringView home, QStringView work)
{
    favourites.AddFavourite(values.text(u"txtweb"), name, home);
    favourites.AddFavourite(values.text(u"txtbweb"), name, work);
}

} // namespace

void applyAddEffects(
    core::Context& context, const FormVariant& variant, const FormValues& values, const QString& name)
{
    const auto setup = context.data.openRecordset(u"select * from CNTB_SETUP"_s);
    if (setup.flag(u"UpdOutllook")) {
        const auto newest = context.data.openRecordset(u"Select * from cnt_main order by ID desc"_s);
        const qint64 id = newest.hasRow() ? newest.number(u"id") : 1;
        context.services.mailContacts.add(mailContactOf(values, name, id));
        core::ScheduledDates dates{id, values.trimmed(u"dtcmbfname"), values.trimmed(u"dtcmblname"),
            values.trimmed(u"dtcspouse"),
            {values.trimmed(u"dtckid1"), values.trimmed(u"dtckid2"), values.trimmed(u"dtckid3")},
            values.date(u"DateBday"), values.date(u"DateSpouse"),
            {values.date(u"Datekid1"), values.date(u"datekid2"), values.date(u"datekid3")},
            values.date(u"DateAnn")};
        core::addSchedulerRows(
            context.data, core::schedulerRows(dates, context.services.clock.today().year()));
    }
    if (setup.flag(u"AddFav"))
        addFavourites(
            context.services.favourites, values, name, variant.homeSuffixOnAdd, variant.workSuffixOnAdd);
}

void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id)
{
    const auto setup = context.data.openRecordset(u"select * from CNTB_SETUP"_s);
    if (variant.updatesMailOnEdit && setup.flag(u"UpdOutllook"))
        context.services.mailContacts.update(mailContactOf(values, name, id));
    if (setup.flag(u"AddFav"))
        addFavourites(
            context.services.favourites, values, name, variant.homeSuffixOnEdit, variant.workSuffixOnEdit);
}

} // namespace entry
