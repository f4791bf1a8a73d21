#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace widgets {

// A contact may hold texts without measure, and laying one out holds up the window. So what can only be read
// shows the beginning of a text, says that there is more, and knows the whole.

/// The beginning of a stored text, short enough for a tool tip.
QString tipOf(const QString& stored);
/// What a label or a button shows of a text that it is to hold.
QString beginning(QWidget* control, const QString& text);
/// The text that a control holds while it shows this.
QString wholeText(const QWidget* control, const QString& shown);
/// A box that can be written into shows all.
void showInBox(QPlainTextEdit* box, const QString& text);
void showInLine(QLineEdit* line, const QString& text);

} // namespace widgets
