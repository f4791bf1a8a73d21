#pragma once

#include "platform/special_folders.h"

namespace platform {

class Drive;

/// The folders that the desktop has set for this user. One that lies outside the root drive, which a screen
/// could not name, is replaced by a folder of the usual name on that drive.
class UserFolders final : public SpecialFolders {
public:
    explicit UserFolders(const Drive& drive);

    QString SpecialFolderPath(int csidl) const override;

private:
    const Drive& m_drive;
};

} // namespace platform
