#pragma once

#include <QStringView>

#include <span>

namespace telephone {

/// One of the places for a telephone number in a contact.
struct NumberSlot {
    QStringView column;
    QStringView tag; ///< by which lists name the number, "H1"
    QStringView city; ///< the column of the city that the number belongs to
};

/// In their fixed order: home, w_ and b_ numbers, mobile numbers, and last the fax number.
std::span<const NumberSlot> numberSlots();

} // namespace telephone
