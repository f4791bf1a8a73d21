#include "reports/register_reports.h"

#include "core/screens.h"

namespace reports {

void registerReports(core::Screens&) { }

} // namespace reports
