#include "output/preview/FrmReportViewer.h"

#include "core/screens.h"
#include "output/preview/page_view.h"
#include "output/preview/report_pane.h"
#include "platform/message_boxes.h"

#include <QVBoxLayout>

namespace output {

namespace {

constexpr QStringView kViewer = u"FrmReportViewer";

} // namespace

FrmReportViewer::FrmReportViewer(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_pane(new ReportPane(context))
{
    setWindowTitle(tr("Report"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pane);
    setFocusProxy(m_pane);
    connect(m_pane, &ReportPane::exitRequested, this, &Screen::closeRequested);
}

void FrmReportViewer::showReport(const Report& report, const QString& caption)
{
    setWindowTitle(caption);
    setFrameTitle(caption);
    m_pane->show(report);
}

bool ShowReportViewer(core::Context& context, const Report& report, const QString& caption)
{
    if (report.isEmpty()) {
        context.services.boxes.information(
            FrmReportViewer::tr("No records are available for the selection"), context.shared.AppTitle);
        return false;
    }
    auto* viewer = dynamic_cast<FrmReportViewer*>(context.screens.load(kViewer));
    if (!viewer)
        return false;
    viewer->showReport(report, caption);
    return context.screens.show(kViewer);
}

} // namespace output
