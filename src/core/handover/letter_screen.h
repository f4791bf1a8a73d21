#pragma once

#include <QtGlobal>

namespace core {

/// A letter creator: writes anew from a letter that was kept.
class LetterScreen {
public:
    virtual ~LetterScreen() = default;
    /// Shows a letter of the record, to be read, printed or sent once more.
    /// @return false when there is no such letter, or the person would rather keep what the screen holds
    virtual bool showLetter(qint64 letterId) = 0;
};

} // namespace core
