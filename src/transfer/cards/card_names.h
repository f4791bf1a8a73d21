#pragma once

#include "formats/card_slots.h"

namespace transfer {

/// Gives a contact that came on a card the name that a contact of the book has to have: first and last name
/// where the card has them in one, the view by which they make the full name, and a name for a card without
/// one, so that it can be found.
void completeName(formats::CardContact& contact);

} // namespace transfer
