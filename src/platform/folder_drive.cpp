#include "platform/folder_drive.h"

#include <algorithm>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// The spelling under which a name stands in the folder; the name itself when there is none.
QString spellingIn(const QString& folder, const QString& name)
{
    if (QFileInfo::exists(folder + u'/' + name))
        return name;
    // The smallest of several spellings, so that the answer doesn't depend on the order of the folder.
    QString best;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (best.isEmpty() || entry < best))
            best = entry;
    }
    return best.isEmpty() ? name : best;
}

QString resolve(const QString& base, QStringView rest)
{
    QString found = base;
    bool there = true;
    for (const QStringView component : rest.split(u'\\', Qt::SkipEmptyParts)) {
        if (!Drive::isLegalName(component))
            return {};
        QString name = component.toString();
        if (there) {
            name = spellingIn(found, name);
            there = QFileInfo::exists(found + u'/' + name);
        }
        if (!found.endsWith(u'/'))
            found += u'/';
        found += name;
    }
    return found;
}

bool isBelow(const QString& path, const QString& folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

QString cleanFolder(const QString& folder)
{
    return QDir::cleanPath(QDir(folder).absolutePath());
}

} // namespace

FolderDrive::FolderDrive(const QString& rootFolder, const QString& programFolder)
    : m_root(cleanFolder(rootFolder))
    , m_program(cleanFolder(programFolder))
{
}

QString FolderDrive::local(QStringView path) const
{
    if (path.startsWith(m_program)) {
        const QStringView rest = path.mid(m_program.size());
        if (rest.isEmpty() || rest.startsWith(u'\\'))
            return resolve(m_program, rest);
    }
    if (path.startsWith(u"\\\\"))
        return {};
    if (path.startsWith(u'\\'))
        return resolve(m_program, path);
    // Kept: the root drive is fixed, no other letter is known.
    if (!path.startsWith(u"C:", Qt::CaseInsensitive))
        return {};
    const QStringView rest = path.mid(2);
    return rest.isEmpty() || rest.startsWith(u'\\') ? resolve(m_root, rest) : QString();
}

QString FolderDrive::named(const QString& localPath) const
{
    if (localPath.isEmpty() || !QDir::isAbsolutePath(localPath))
        return {};
    const QString path = QDir::cleanPath(localPath);
    const auto spelled = [&path](const QString& base, const QString& start) {
        const QStringList components = path.mid(base.size()).split(u'/', Qt::SkipEmptyParts);
        if (!std::all_of(components.begin(), components.end(), Drive::isLegalName))
            return QString();
        return components.isEmpty() ? start + u'\\' : start + u'\\' + components.join(u'\\');
    };
    // The program's folder may lie on the root drive, and then its own spelling is the shorter one.
    if (isBelow(path, m_program) && path != m_program)
        return spelled(m_program, {});
    if (isBelow(path, m_root))
        return spelled(m_root, u"C:"_s);
    return {};
}

QString FolderDrive::programFolder() const
{
    return m_program;
}

} // namespace platform
