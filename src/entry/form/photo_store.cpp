#include "entry/form/photo_store.h"

#include "platform/drive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserFiles\\Photos";

QString freeName(const QString& folder, const QFileInfo& file)
{
    const QString stem = platform::Drive::safeFileName(file.completeBaseName());
    const QString ending = file.suffix().isEmpty() ? QString() : u'.' + file.suffix().toLower();
    for (int number = 1; number < 10000; ++number) {
        const QString name = number == 1 ? stem + ending : u"%1 (%2)%3"_s.arg(stem).arg(number).arg(ending);
        if (!QFileInfo::exists(QDir(folder).filePath(name)))
            return name;
    }
    return {};
}

} // namespace

QString storePhoto(const platform::Drive& drive, const QString& chosen, const QString& mode)
{
    const QString own = drive.named(chosen);
    const QString linked = own.isEmpty() ? chosen : own;
    if (mode != u"Copy" && mode != u"Move")
        return linked;
    if (!drive.ensureFolder(kFolder))
        return linked;
    const QString folder = drive.local(kFolder);
    // A picture that lies there already needs no second copy.
    if (QFileInfo(chosen).canonicalPath() == QFileInfo(folder).canonicalFilePath())
        return linked;
    const QString name = freeName(folder, QFileInfo(chosen));
    const QString target = QDir(folder).filePath(name);
    const bool done
        = !name.isEmpty() && (mode == u"Move" ? QFile::rename(chosen, target) : QFile::copy(chosen, target));
    return done ? kFolder.toString() + u'\\' + name : linked;
}

} // namespace entry
