#pragma once

#include "core/command_table.h"

#include <QString>

#include <functional>

namespace core {

class Screen;

/// What screens may ask of the window that holds them. Title and status panes follow the screen in front by
/// themselves.
class Frame {
public:
    virtual ~Frame() = default;

    virtual void place(Screen* screen, Shown shown) = 0; ///< shows a loaded screen as a tab or as a dialog
    virtual void bringForward(Screen* screen) = 0; ///< an open one, where it is
    /// Says for a few seconds what was done, such as "Saved Asha Oberoi", perhaps with a way to take it back.
    virtual void showNotice(
        const QString& text, const QString& actionText = {}, std::function<void()> action = {})
        = 0;
    virtual bool perform(const Action& action)
        = 0; ///< false when nothing came of it, as with an absent screen
    virtual bool canPerform(
        const Action& action) const = 0; ///< whether the screen or file behind it is there
};

} // namespace core
