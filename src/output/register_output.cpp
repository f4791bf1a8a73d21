#include "output/register_output.h"

#include "core/screens.h"
#include "output/preview/FrmReportViewer.h"

using namespace Qt::StringLiterals;

namespace output {

void registerOutput(core::Screens& screens)
{
    screens.add<FrmReportViewer>(u"FrmReportViewer"_s);
}

} // namespace output
