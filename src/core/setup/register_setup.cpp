#include "core/setup/register_setup.h"

#include "core/screens.h"
#include "core/setup/FrmOthers.h"

using namespace Qt::StringLiterals;

namespace setup {

void registerSetup(core::Screens& screens)
{
    screens.add<FrmOthers>(u"FrmOthers"_s);
}

} // namespace setup
