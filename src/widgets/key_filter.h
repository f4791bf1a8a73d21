#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

class QComboBox;
class QLineEdit;

namespace widgets {

enum class KeyFilter {
    None,
    NoLetters, ///< area codes: no a-z, no A-Z
    Digits, ///< numbers: digits and one "."
    NoApostrophe, ///< texts that become part of a statement
};

/// True for a key that is not in a-z or A-Z.
bool IsNotLetter(QChar key);

/// True for a key that a number field takes: backspace, a digit, or "." when the text holds none yet.
bool DigitsOnly(QChar key, QStringView text);

/// What is left of a typed or pasted piece that comes between `before` and `after`.
QString filtered(KeyFilter filter, QStringView piece, QStringView before, QStringView after = {});

/// Keeps what a person types, pastes or drops within the filter. A text that the program sets is shown as it
/// is, also where it breaks the filter, and stays until the person deletes it.
void setKeyFilter(QLineEdit* edit, KeyFilter filter);
void setKeyFilter(QComboBox* combo, KeyFilter filter);

} // namespace widgets
