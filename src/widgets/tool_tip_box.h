#pragma once

class QString;
class QWidget;

namespace widgets {

/// Shows a help text in a balloon beside a control until it is clicked, Esc is pressed or it has been up for
/// a while. There is at most one for a window; an empty text shows none.
void showHelpBeside(QWidget* control, const QString& text);

} // namespace widgets
