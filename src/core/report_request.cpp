#include "core/report_request.h"

#include "core/handover/report_screen.h"
#include "core/screens.h"
#include "core/sibling_start.h"

using namespace Qt::StringLiterals;

namespace core {

QStringList reportNote(const QString& name)
{
    return {
        u"update ov_setup set key='report'"_s,
        u"update ov_setup set key='report'"_s,
        // Kept: the misspelt word is written and overwritten at once.
        u"update ov_setup set rptMod='Contacs'"_s,
        u"update ov_setup set rptMod='Contacts'"_s,
        u"update ov_setup set rptSubMod='"_s + name + u'\'',
    };
}

bool requestReport(Context& context, const QString& name, const QStringList& statements)
{
    return startSibling(
        context, {.program = kLinkAndSync, .statements = statements, .instead = [&context, name] {
                      auto* screen = context.screens.load<ReportScreen>(kAddressReports);
                      return screen && screen->showReport(name) && context.screens.show(kAddressReports);
                  }});
}

} // namespace core
