#pragma once

#include <functional>

class QKeyEvent;
class QWidget;

namespace widgets {

/// The keys of a dialog: Esc cancels; Enter presses the button that has the focus, or else accepts. False for
/// any other key.
bool answerDialogKey(const QKeyEvent* event, const QWidget* dialog, const std::function<void()>& accept,
    const std::function<void()>& cancel);

} // namespace widgets
