#include "core/report_request.h"

#include "core/handover/report_screen.h"
#include "core/screens.h"
#include "core/sibling_start.h"

namespace core {

bool requestReport(Context& context, const QString& name, const QStringList& statements)
{
    return startSibling(
        context, {.program = kLinkAndSync, .statements = statements, .instead = [&context, name] {
                      auto* screen = context.screens.load<ReportScreen>(kAddressReports);
                      return screen && screen->showReport(name) && context.screens.show(kAddressReports);
                  }});
}

} // namespace core
