#include "core/photo_file.h"

#include "platform/drive.h"

#include <QDir>

namespace core {

QString photoFile(const platform::Drive& drive, const QString& stored)
{
    if (stored.isEmpty())
        return {};
    const QString local = drive.local(stored);
    return local.isEmpty() && QDir::isAbsolutePath(stored) ? stored : local;
}

} // namespace core
