#include "platform/desktop_shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>

#include "platform/drive.h"
#include "platform/shell_rules.h"

using namespace Qt::StringLiterals;

namespace platform {

DesktopShell::DesktopShell(const Drive& drive)
    : m_drive(drive)
{
}

bool DesktopShell::openFile(QStringView path)
{
    const QString file
        = path.startsWith(u'/') && !path.contains(u'\\') ? path.toString() : m_drive.local(path);
    const QStringList folders{QDir::homePath(), m_drive.local(u"C:"), m_drive.programFolder()};
    return !file.isEmpty() && isOpenableFile(file, folders)
        && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool DesktopShell::openAddress(QStringView address)
{
    const std::optional<QUrl> url = openableAddress(address);
    if (!url)
        return false;
    return url->isLocalFile() ? openFile(url->toLocalFile()) : QDesktopServices::openUrl(*url);
}

bool DesktopShell::siblingExists(QStringView name) const
{
    return !siblingProgram(m_drive, name).isEmpty();
}

bool DesktopShell::startSibling(QStringView name, const QString& document)
{
    const QString program = siblingProgram(m_drive, name);
    const QStringList arguments = document.isEmpty() ? QStringList() : QStringList{document};
    return !program.isEmpty() && QProcess::startDetached(program, arguments, m_drive.programFolder());
}

void DesktopShell::endProgram()
{
    // Queued: the program may be asked to end before its event loop runs, where exit() would be lost.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

} // namespace platform
