#pragma once

#include "formats/card_contact.h"
#include "formats/foreign_card.h"

/// Which column of a contact holds which value of a card.
namespace formats {

/// All values of a card: each in its column, and what has none, or comes when the columns of its kind are
/// full, as a line "Label: value" of the note.
CardContact contactOf(const ForeignCard& card, const CardColumns& columns);

} // namespace formats
