#include "platform/player_sounds.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include "platform/drive.h"
#include "platform/storage.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int pauseMs = 120;

/// The built-in sound of that name, without regard to case.
QString builtInSound(QStringView fileName)
{
    const QStringList names = QDir(u":/sounds"_s).entryList(QDir::Files);
    for (const QString& name : names) {
        if (name.compare(fileName, Qt::CaseInsensitive) == 0)
            return name;
    }
    return {};
}

} // namespace

PlayerSounds::PlayerSounds(const Drive& drive, const QString& cacheFolder, const QString& player)
    : m_drive(drive)
    , m_cacheFolder(cacheFolder)
    , m_player(player)
{
}

void PlayerSounds::play(QStringView path)
{
    if (m_player.isEmpty() || (m_sinceLast.isValid() && m_sinceLast.elapsed() < pauseMs))
        return;
    const QString file = soundFile(path);
    if (file.isEmpty())
        return;
    m_sinceLast.start();
    QProcess player;
    player.setProgram(m_player);
    player.setArguments({file});
    player.setStandardInputFile(QProcess::nullDevice());
    player.setStandardOutputFile(QProcess::nullDevice());
    player.setStandardErrorFile(QProcess::nullDevice());
    player.startDetached();
}

QString PlayerSounds::installedPlayer()
{
    for (const QString& name : {u"pw-play"_s, u"paplay"_s, u"aplay"_s}) {
        const QString found = QStandardPaths::findExecutable(name);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QString PlayerSounds::userCacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/sounds"_s;
}

QString PlayerSounds::soundFile(QStringView path) const
{
    const QString own = m_drive.local(path);
    if (own.isEmpty())
        return {};
    if (QFileInfo(own).isFile())
        return own;
    const QString folder = u"\\UserFiles\\Misc\\sound\\"_s;
    const qsizetype at = path.lastIndexOf(u'\\') + 1;
    if (path.left(at).compare(folder, Qt::CaseInsensitive) != 0
        && path.left(at).compare(m_drive.programFolder() + folder, Qt::CaseInsensitive) != 0)
        return {};
    const QString name = builtInSound(path.mid(at));
    if (name.isEmpty())
        return {};

    QFile builtIn(u":/sounds/"_s + name);
    const QString cached = m_cacheFolder + u'/' + name;
    if (QFileInfo(cached).isFile() && QFileInfo(cached).size() == builtIn.size())
        return cached;
    QSaveFile copy(cached);
    if (!QDir().mkpath(m_cacheFolder) || !builtIn.open(QIODevice::ReadOnly)
        || !copy.open(QIODevice::WriteOnly))
        return {};
    copy.write(builtIn.readAll());
    return commitWhole(copy) ? cached : QString();
}

} // namespace platform
