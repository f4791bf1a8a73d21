#include "platform/durable_files.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

bool syncOne(const QString& path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool done = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return done;
}

} // namespace

bool syncToDisk(const QString& path)
{
    const bool done = syncOne(path, O_RDONLY);
    syncFolder(QFileInfo(path).absolutePath());
    return done;
}

void syncFolder(const QString& folder)
{
    syncOne(folder, O_RDONLY | O_DIRECTORY);
}

bool putInPlace(const QString& finished, const QString& name)
{
    if (!syncToDisk(finished))
        return false;
    // Not QFile::rename(): where it can not rename it copies, and a copy can end half way.
    if (std::rename(QFile::encodeName(finished).constData(), QFile::encodeName(name).constData()) != 0)
        return false;
    syncFolder(QFileInfo(name).absolutePath());
    return true;
}

bool keepUnderSecondName(const QString& path, const QString& secondName)
{
    if (QFileInfo::exists(secondName))
        return false;
    if (::link(QFile::encodeName(path).constData(), QFile::encodeName(secondName).constData()) == 0)
        return true;
    if (QFile::copy(path, secondName) && syncToDisk(secondName))
        return true;
    QFile::remove(secondName);
    return false;
}

} // namespace platform
