#pragma once

#include "platform/drive.h"

namespace platform {

/// The drives of this computer: `C:` is one folder of the user, rooted paths lie in the program's folder. A
/// path may also begin with the program's folder as programFolder() gives it.
class FolderDrive final : public Drive {
public:
    FolderDrive(const QString& rootFolder, const QString& programFolder);

    QString local(QStringView path) const override;
    QString named(const QString& localPath) const override;
    QString programFolder() const override;

private:
    QString m_root;
    QString m_program;
};

} // namespace platform
