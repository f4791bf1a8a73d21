#pragma once

#include "jet/database.h"
#include "transfer/cards/card_files.h"

namespace transfer {

/// Says at each card whether a contact of the book, or a card before it, has the same name and with it one
/// telephone, mail address or birthday. Such cards are no longer ticked; what to do with them is for the
/// person. Needs one walk through the book and one through the cards.
void markLikelyDuplicates(jet::Database& book, IncomingCards& incoming);

} // namespace transfer
