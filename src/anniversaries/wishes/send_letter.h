#pragma once

#include "core/context.h"

namespace anniversaries {

/// The screen that writes letters.
inline constexpr QStringView kLetterScreen = u"FrmLetter";

/// Opens the letter creator on a kind of letter to a contact, who becomes the one last chosen. Says so when
/// the selection has no row.
void writeWishLetter(core::Context& context, const jet::Recordset& contact, const QString& kind);

} // namespace anniversaries
