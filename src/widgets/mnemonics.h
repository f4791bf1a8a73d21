#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace widgets {

/// Gives every label, button and tab of a form that asks for a letter of its own (Alt and that letter) one
/// that nothing else has that is seen with it, and none of those that are `taken`. Where the letter asked for
/// is taken, another one of the text is; where none is left, there is none. Buttons choose first, then what
/// is always seen, then each page of tabs by itself.
void settleMnemonics(QWidget* form, const QString& taken);

/// Another text for a label of a form that is settled, which then fits in with the others.
void setCaption(QLabel* label, const QString& text);

/// The letter behind the & of a text, in small; a null character when there is none.
QChar mnemonicOf(const QString& text);

} // namespace widgets
