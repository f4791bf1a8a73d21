#pragma once

#include "core/context.h"
#include "core/scheduler_rows.h"
#include "entry/form/form_values.h"
#include "entry/form/form_variant.h"
#include "platform/contact_sync.h"

namespace entry {

/// A web address of a contact, and the end of its favourite's name.
struct WebFavourite {
    QString address;
    QString suffix;
};

/// What a new contact may bring with it, as its form holds it. The number of the contact is put in when it is
/// known.
struct NewContact {
    QString name;
    platform::MailContact mail;
    core::ScheduledDates dates;
    core::FamilyRows family = core::FamilyRows::SpouseAndKids;
    QList<WebFavourite> favourites;
};

/// What a stored contact brings with it where the set-up asks for it: the mail client's contact, the rows of
/// the scheduler, the favourites for its web addresses.
void applyAddEffects(core::Context& context, NewContact contact);
void applyAddEffects(
    core::Context& context, const FormVariant& variant, const FormValues& values, const QString& name);
/// A change makes no scheduler rows.
void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id);

} // namespace entry
