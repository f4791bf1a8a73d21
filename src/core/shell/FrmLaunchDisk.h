#pragma once

#include "core/handover/page_screen.h"
#include "core/screen.h"

class QLabel;

namespace shell {

class LaunchGrid;

/// The launch pad: one page of commands as large labels with a word on each. Which page, the shared launch
/// mode says.
class FrmLaunchDisk : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit FrmLaunchDisk(core::Context& context, QWidget* parent = nullptr);
    void load() override;
    void openPage(const QString& mode) override;

private:
    void showPage();
    void start(const QString& label);

    QLabel* LblFrmDesc;
    QLabel* LblTitle;
    LaunchGrid* Grid1;
};

} // namespace shell
