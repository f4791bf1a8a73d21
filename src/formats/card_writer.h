#pragma once

#include "formats/card_contact.h"

namespace formats {

enum class CardVersion { Three, Four };

/// A whole contact as a vCard for other programs, UTF-8, folded. Columns that no property of the version
/// stands for have one of this program's own, so that contactOf() of the card is the contact again.
QByteArray cardOf(const CardContact& contact, CardVersion version);

} // namespace formats
