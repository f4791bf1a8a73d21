#pragma once

#include <QStringView>

#include <span>

namespace core {

/// One person of a contact whose birthday the address book knows: the columns of name and date, and of the
/// flag that says whether the date was copied to the scheduler.
struct DatedPerson {
    QStringView name;
    QStringView date;
    QStringView copied;
};

/// The contact, the spouse and the three children, in the order in which the lists and look-ups go.
std::span<const DatedPerson> datedPersons();

} // namespace core
