#pragma once

#include "jet/types.h"

#include <QString>

namespace platform {
class Drive;
}

namespace entry {

/// A chosen picture as the settings want it kept: "Copy" and "Move" put it into the user's folder of photos
/// under a name that is free there, anything else leaves it where it is. Done when a contact is saved, and
/// taken back at the end of its life unless the save says keep().
class StoredPhoto {
public:
    /// @param chosen a path of this computer
    StoredPhoto(const platform::Drive& drive, const QString& chosen, const QString& mode);
    /// One that is stored already and stays as it is.
    explicit StoredPhoto(const QString& stored)
        : m_path(stored)
    {
    }
    ~StoredPhoto();
    StoredPhoto(const StoredPhoto&) = delete;
    StoredPhoto& operator=(const StoredPhoto&) = delete;

    /// The path that the contact stores; where a copy or move failed, that of the file itself.
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

} // namespace entry
