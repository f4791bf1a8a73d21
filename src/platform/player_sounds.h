#pragma once

#include <QElapsedTimer>
#include <QString>

#include "platform/sounds.h"

namespace platform {

class Drive;

/// Sounds by the first player program that this computer has. A file in the program's folder is taken before
/// the built-in sound of the same name. Clicks that follow one another at once give one sound.
class PlayerSounds final : public Sounds {
public:
    /// The cache folder receives the built-in sounds, since a player needs a file. An empty player is
    /// silence.
    PlayerSounds(const Drive& drive, const QString& cacheFolder, const QString& player = installedPlayer());

    void play(QStringView path) override;

    static QString installedPlayer();
    static QString userCacheFolder();

private:
    QString soundFile(QStringView path) const;

    const Drive& m_drive;
    QString m_cacheFolder;
    QString m_player;
    QElapsedTimer m_sinceLast;
};

} // namespace platform
