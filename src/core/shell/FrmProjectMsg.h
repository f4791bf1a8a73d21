#pragma once

#include "core/screen.h"

class QTextBrowser;

namespace shell {

/// The pages about the other programs of the suite, shown in the place of one that is not installed.
class FrmProjectMsg : public core::Screen {
    Q_OBJECT

public:
    explicit FrmProjectMsg(core::Context& context, QWidget* parent = nullptr);
    void load() override;

private:
    QTextBrowser* Web1;
};

} // namespace shell
