#pragma once

#include "core/screen.h"

class QListWidget;
class QTextBrowser;

namespace shell {

/// Which version of the program this is, who made it, and the licences of what is in it.
class frmAbout : public core::Screen {
    Q_OBJECT

public:
    explicit frmAbout(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    QSize sizeHint() const override;

private:
    void showText();

    QListWidget* lstLicences;
    QTextBrowser* txtLicence;
};

/// The versions of the program and of what it stands on, a line each.
QString versionText();

} // namespace shell
