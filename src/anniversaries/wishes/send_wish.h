#pragma once

#include "anniversaries/wishes/wish_text.h"
#include "core/context.h"

namespace core {
class Screen;
}

namespace anniversaries {

enum class WishWay {
    Show, ///< the person looks at the message and sends it
    Outbox, ///< it leaves by itself
};

/// Writes the wish to the first e-mail address of the contact. Says so when there is no contact or no
/// address, or why it could not be handed on.
/// @return whether it was handed on
bool sendWish(core::Context& context, const Wish& wish, WishWay way);

/// Keeps the wish for a day, when the program offers to send what is due.
/// @param asks whether it may be offered at the start of the program
/// @param by the screen that shows the panel
/// @return whether it was kept; what went wrong has been told
bool timeWish(core::Context& context, const Wish& wish, QDate day, bool asks, core::Screen* by);

} // namespace anniversaries
