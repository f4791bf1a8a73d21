#pragma once

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include "platform/help_viewer.h"

class QTextBrowser;

namespace platform {

class Drive;
class Shell;

/// The window with the help pages, which are built into the program. Links to other places go through the
/// shell.
class HelpWindow final : public QWidget {
    Q_OBJECT

public:
    explicit HelpWindow(Shell& shell);

    void showPage(const QUrl& page);

private:
    void follow(const QUrl& link);

    Shell& m_shell;
    QTextBrowser* m_pages;
};

/// Opens the help window, one for the whole program. A page of the program's folder is shown as it is; any
/// other path, such as that of the help file, means the start page.
class WindowHelpViewer final : public HelpViewer {
public:
    WindowHelpViewer(const Drive& drive, Shell& shell);
    ~WindowHelpViewer() override;

    void openHelp(QStringView path) override;

private:
    const Drive& m_drive;
    Shell& m_shell;
    QPointer<HelpWindow> m_window;
};

} // namespace platform
