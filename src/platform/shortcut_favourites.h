#pragma once

#include "platform/favourites.h"

namespace platform {

class Drive;
class SpecialFolders;

/// Favourites as shortcut files (.url) in the user's folder of favourites.
class ShortcutFavourites final : public Favourites {
public:
    ShortcutFavourites(const Drive& drive, const SpecialFolders& folders);

    bool AddFavourite(QStringView url, QStringView name, QStringView suffix) override;

private:
    const Drive& m_drive;
    const SpecialFolders& m_folders;
};

} // namespace platform
