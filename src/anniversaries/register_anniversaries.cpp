#include "anniversaries/register_anniversaries.h"

#include "core/screens.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

void registerAnniversaries(core::Screens&) { }

} // namespace anniversaries
