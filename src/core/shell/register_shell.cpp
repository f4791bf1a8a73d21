#include "core/shell/register_shell.h"

#include "core/screens.h"
#include "core/shell/frmAbout.h"
#include "core/shell/FrmLaunchDisk.h"
#include "core/shell/FrmPrgView.h"
#include "core/shell/FrmProjectMsg.h"

using namespace Qt::StringLiterals;

namespace shell {

void registerShell(core::Screens& screens)
{
    screens.add<frmAbout>(u"frmAbout"_s);
    screens.add<FrmLaunchDisk>(u"FrmLaunchDisk"_s);
    screens.add<FrmPrgView>(u"FrmPrgView"_s);
    screens.add<FrmProjectMsg>(u"FrmProjectMsg"_s);
}

} // namespace shell
