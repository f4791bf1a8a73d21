#include "platform/storage.h"

#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace platform {

qint64 freeBytes(const QString& folder)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return -1;
    const QStorageInfo storage(folder);
    return storage.isValid() ? storage.bytesAvailable() : -1;
}

bool isWritable(const QString& folder)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return false;
    QTemporaryFile file(folder + u"/.orvane-XXXXXX"_s);
    return file.open() && file.write("x") == 1 && file.flush();
}

} // namespace platform
