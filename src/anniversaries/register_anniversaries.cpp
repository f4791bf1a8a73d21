#include "anniversaries/register_anniversaries.h"

#include "anniversaries/list/frmbday.h"
#include "core/screens.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

void registerAnniversaries(core::Screens& screens)
{
    screens.add<frmbday>(u"frmbday"_s);
}

} // namespace anniversaries
