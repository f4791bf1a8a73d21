#pragma once

#include "platform/shell.h"

namespace platform {

class Drive;

/// The shell of this desktop: documents and addresses go to the user's chosen programs.
class DesktopShell final : public Shell {
public:
    explicit DesktopShell(const Drive& drive);

    bool openFile(QStringView path) override;
    bool openAddress(QStringView address) override;
    bool siblingExists(QStringView name) const override;
    bool startSibling(QStringView name, const QString& document = {}) override;
    void endProgram() override;

private:
    const Drive& m_drive;
};

} // namespace platform
