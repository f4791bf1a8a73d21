#include "output/labels/print_address_report.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/clock.h"

#include <utility>

namespace output {

namespace {

bool show(core::Context& context, AddressLayout layout, jet::Recordset rows)
{
    const QString today
        = jet::formatDate(context.services.clock.today(), core::datePattern(context.shared.NationalMode));
    const Report report = addressLabels(layout, std::move(rows), today);
    return ShowReportViewer(context, report, report.title);
}

} // namespace

bool PrintAddressReport(core::Context& context, AddressLayout layout, const QString& name)
{
    return show(context, layout, addressRows(context.data, name));
}

bool PrintAddressReportOf(core::Context& context, const QString& ids)
{
    return show(context, AddressLayout::rptHomeaddress, addressRowsOf(context.data, ids));
}

} // namespace output
