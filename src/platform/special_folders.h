#pragma once

#include <QString>

namespace platform {

inline constexpr int csidlDesktop = 0x10;
inline constexpr int csidlApplicationData = 0x1a;

/// The user's own folders by their well-known numbers: 5 documents, 6 favourites, 0x10 desktop and so on.
class SpecialFolders {
public:
    SpecialFolders() = default;
    SpecialFolders(const SpecialFolders&) = delete;
    SpecialFolders& operator=(const SpecialFolders&) = delete;
    virtual ~SpecialFolders() = default;

    /// The folder as the program writes paths, without a backslash at the end; empty for an unknown number.
    virtual QString SpecialFolderPath(int csidl) const = 0;
};

} // namespace platform
