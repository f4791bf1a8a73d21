#pragma once

#include <QString>

namespace platform {

/// The drives as the program knows them. Paths are written with backslashes: `C:\OVUserFiles\Letters` lies on
/// the root drive, `\UserFiles\Misc` below the program's folder. A path that no such drive would take (a
/// wrong character, "..", another drive letter) is refused, so a name from the data can never climb out of
/// its folder.
class Drive {
public:
    Drive() = default;
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;
    virtual ~Drive() = default;

    /// The path on this computer, found without regard to case as far as it exists; empty when it is refused.
    virtual QString local(QStringView path) const = 0;
    /// The way back: how the program writes a path of this computer; empty for one that lies on no drive.
    virtual QString named(const QString& localPath) const = 0;
    /// The folder that holds the program's databases, as a path of this computer.
    virtual QString programFolder() const = 0;

    bool exists(QStringView path) const;
    /// Makes the folder and those above it. True when it is there afterwards.
    bool ensureFolder(QStringView path) const;

    /// Whether such a drive would take the text as the name of one file or folder.
    static bool isLegalName(QStringView name);
    /// Turns any text, such as a contact's name, into a legal file name of at most 120 characters; never
    /// empty.
    static QString safeFileName(QStringView name);
};

} // namespace platform
