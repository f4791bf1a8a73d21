#pragma once

#include <QStringView>

namespace platform {

/// Plays a sound file of the program, as `\UserFiles\Misc\sound\save.wav`. Returns at once; a sound that
/// can't be played is silence.
class Sounds {
public:
    Sounds() = default;
    Sounds(const Sounds&) = delete;
    Sounds& operator=(const Sounds&) = delete;
    virtual ~Sounds() = default;

    virtual void play(QStringView path) = 0;
};

} // namespace platform
