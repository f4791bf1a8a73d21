#include "views/selector/picture_folders.h"

#include "platform/drive.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace views {

// Kept: the folder is searched for "*.JPG", so a picture of another kind has no thumbnail.
QString PictureFolders::pictureFile(const QString& stored)
{
    if (!stored.endsWith(u".jpg"_s, Qt::CaseInsensitive))
        return {};
    // As the program writes paths, or one of this computer when the picture was linked from outside.
    const qsizetype cut = stored.lastIndexOf(stored.contains(u'\\') ? u'\\' : u'/');
    if (cut < 0)
        return {};
    const Folder& found = folder(stored.left(cut));
    const QString name = found.files.value(stored.mid(cut + 1).toLower());
    return name.isEmpty() ? QString() : found.path + u'/' + name;
}

const PictureFolders::Folder& PictureFolders::folder(const QString& stored)
{
    const auto known = m_folders.constFind(stored);
    if (known != m_folders.constEnd())
        return *known;
    Folder read;
    read.path = m_drive.local(stored.isEmpty() ? u"\\"_s : stored);
    if (read.path.isEmpty() && QDir::isAbsolutePath(stored))
        read.path = stored;
    if (!read.path.isEmpty()) {
        QDirIterator entries(read.path, {u"*.JPG"_s}, QDir::Files | QDir::Readable | QDir::Hidden);
        while (entries.hasNext()) {
            entries.next();
            read.files.insert(entries.fileName().toLower(), entries.fileName());
        }
    }
    return *m_folders.insert(stored, read);
}

} // namespace views
