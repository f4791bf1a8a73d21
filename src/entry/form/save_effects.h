#pragma once

#include "core/contact_record.h"
#include "core/context.h"
#include "core/scheduler_rows.h"
#include "entry/form/form_values.h"
#include "entry/form/form_variant.h"
#include "entry/form/save_checks.h"
#include "platform/contact_sync.h"

#include <functional>

namespace entry {

/// A web address of a contact, and the end of its favourite's name.
struct WebFavourite {
    QString address;
    QString suffix;
};

/// What a new contact may bring with it where the set-up asks for it, as its form holds it: the mail client's
/// contact, the rows of the scheduler, the favourites for its web addresses. The number of the contact is put
/// in when it is known.
struct NewContact {
    QString name;
    platform::MailContact mail;
    core::ScheduledDates dates;
    core::FamilyRows family = core::FamilyRows::SpouseAndKids;
    QList<WebFavourite> favourites;
};
NewContact newContactOf(const FormVariant& variant, const FormValues& values, const QString& name);

/// Stores a new contact and its rows of the scheduler, all or nothing, then what it brings outside the book.
/// A failure is told by the caller, when its own step is closed.
/// @param assign fills the columns of the new row
/// @return the number of the contact, 0 when it was not stored
qint64 addContact(
    core::Context& context, NewContact contact, const std::function<void(jet::Recordset&)>& assign);

/// Says why a form is not saved.
void tellRefusal(core::Context& context, Refusal refusal);

/// Brings a change to the mail client's item, where the set-up asks for it.
void changeMailItem(core::Context& context, qint64 id, const core::ContactRecord& contact);

/// What a changed contact brings outside the book. A change makes no scheduler rows.
void applyEditEffects(core::Context& context, const FormVariant& variant, const FormValues& values,
    const QString& name, qint64 id);

} // namespace entry
