#pragma once

#include <QHash>
#include <QString>

namespace platform {
class Drive;
}

namespace views {

/// Finds the picture files of contacts. Each folder is looked up once, however many pictures lie in it.
class PictureFolders {
public:
    explicit PictureFolders(const platform::Drive& drive)
        : m_drive(drive)
    {
    }

    /// The file behind a stored picture path; empty when it can not be read, or is none of "*.JPG".
    QString pictureFile(const QString& stored);
    /// The folders are looked up anew.
    void forget() { m_folders.clear(); }

private:
    struct Folder {
        QString path;
        QHash<QString, QString> files; ///< readable ones, by their name in small letters
    };

    const Folder& folder(const QString& stored);

    const platform::Drive& m_drive;
    QHash<QString, Folder> m_folders; ///< by their stored path
};

} // namespace views
