#pragma once

#include "core/command_table.h"

#include <QString>

namespace core {

class Screen;

/// What screens may ask of the window that holds them.
class Frame {
public:
    virtual ~Frame() = default;

    virtual void place(Screen* screen, Shown shown) = 0; ///< shows a loaded screen as a tab or as a dialog
    virtual void setTitle(const QString& title)
        = 0; ///< the caption above the screens, such as "Contacts Full View"
    virtual void showPosition(const QString& text) = 0; ///< status pane: "3 of 120"
    virtual void showDate(const QString& text) = 0; ///< status pane: today
    virtual void clearStatus() = 0;
    virtual bool perform(const Action& action)
        = 0; ///< false when nothing came of it, as with an absent screen
    virtual bool canPerform(
        const Action& action) const = 0; ///< whether the screen or file behind it is there
};

} // namespace core
