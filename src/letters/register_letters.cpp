#include "letters/register_letters.h"

#include "core/screens.h"

using namespace Qt::StringLiterals;

namespace letters {

void registerLetters(core::Screens& /*screens*/) { }

} // namespace letters
