#include "platform/storage.h"

#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace platform {

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

} // namespace platform
