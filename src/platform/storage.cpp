#include "platform/storage.h"

#include <filesystem>
#include <system_error>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace platform {

bool commitWhole(QSaveFile& file)
{
    return file.isOpen() && file.flush() && file.error() == QFileDevice::NoError && file.commit();
}

qint64 freeBytes(const QString& folder)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return -1;
    // The folder itself is asked, not the list of mounted disks, which need not name the one it lies on.
    std::error_code failure;
    const auto room = std::filesystem::space(QFile::encodeName(folder).constData(), failure);
    return failure ? -1 : qint64(room.available);
}

bool isWritable(const QString& folder)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return false;
    QTemporaryFile file(folder + u"/.orvane-XXXXXX"_s);
    return file.open() && file.write("x") == 1 && file.flush();
}

QString whyNotWritable(const QString& folder)
{
    constexpr qint64 kNoRoom = 1024 * 1024;
    const auto tr = [](const char* text) { return QCoreApplication::translate("platform", text); };
    if (!QFileInfo(folder).isDir())
        return tr("the folder could not be made");
    const qint64 room = freeBytes(folder);
    if (room >= 0 && room < kNoRoom)
        return tr("the disk is full");
    return isWritable(folder) ? tr("there is not enough room on the disk")
                              : tr("nothing may be written in this folder");
}

QString whyNotReplaced(const QString& localPath)
{
    const QFileInfo file(localPath);
    const auto tr = [](const char* text) { return QCoreApplication::translate("platform", text); };
    // What common file systems allow for one name, less what the draft beside it has behind it.
    constexpr qsizetype kLongestName = 248;
    if (QFile::encodeName(file.fileName()).size() > kLongestName)
        return tr("the name is too long");
    if (file.isDir())
        return tr("a folder has this name");
    if (file.exists() && !file.isWritable())
        return tr("the file may not be changed");
    return whyNotWritable(file.absolutePath());
}

} // namespace platform
