#pragma once

#include "jet/types.h"

#include <QString>

namespace platform {
class Drive;
}

namespace core {

inline constexpr QStringView kPhotoFolder = u"C:\\OVUserFiles\\Photos";

/// A chosen file, such as a picture, as the settings want it kept: "Copy" and "Move" put it into a folder of
/// the program under a name that is free there, anything else leaves it where it is. Done when the record it
/// belongs to is saved, and taken back at the end of its life unless the save says keep().
class StoredFile {
public:
    /// @param chosen a path of this computer
    StoredFile(const platform::Drive& drive, QStringView folder, const QString& chosen, const QString& mode);
    /// One that is stored already and stays as it is.
    explicit StoredFile(const QString& stored)
        : m_path(stored)
    {
    }
    ~StoredFile();
    StoredFile(const StoredFile&) = delete;
    StoredFile& operator=(const StoredFile&) = delete;

    /// The path that the record stores; where a copy or move failed, that of the file itself.
    const QString& path() const { return m_path; }
    void keep() { m_copy.clear(); }
    /// Follows a save that is taken back, or done again: the file goes with it. Nothing where none was made.
    jet::StepFollower follower() const;

private:
    QString m_path;
    QString m_chosen;
    QString m_copy; ///< what was made and would be taken back
    bool m_isMoved = false;
};

} // namespace core
