#pragma once

#include "core/screen.h"
#include "output/report/report.h"

namespace output {

class ReportPane;

/// Shows a report that another screen has made.
class FrmReportViewer : public core::Screen {
    Q_OBJECT

public:
    explicit FrmReportViewer(core::Context& context, QWidget* parent = nullptr);

    void load() override { }
    void showReport(const Report& report, const QString& caption);

private:
    ReportPane* m_pane;
};

/// Shows the report in the viewer, under a caption; says so when it has no rows.
/// @return whether there was something to show
bool ShowReportViewer(core::Context& context, const Report& report, const QString& caption);

} // namespace output
