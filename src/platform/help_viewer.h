#pragma once

#include <QStringView>

namespace platform {

/// Shows the help pages in a window of their own.
class HelpViewer {
public:
    HelpViewer() = default;
    HelpViewer(const HelpViewer&) = delete;
    HelpViewer& operator=(const HelpViewer&) = delete;
    virtual ~HelpViewer() = default;

    /// The path names the help file or one page, as the program knows it.
    virtual void openHelp(QStringView path) = 0;
};

} // namespace platform
