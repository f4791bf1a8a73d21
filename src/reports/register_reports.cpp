#include "reports/register_reports.h"

#include "core/screens.h"
#include "reports/FrmAddExp.h"
#include "reports/FrmAddFullRptView.h"

using namespace Qt::StringLiterals;

namespace reports {

void registerReports(core::Screens& screens)
{
    screens.add<FrmAddExp>(u"FrmAddExp"_s);
    screens.add<FrmAddFullRptView>(u"FrmAddFullRptView"_s);
}

} // namespace reports
