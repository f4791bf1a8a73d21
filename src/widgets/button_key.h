#pragma once

class QAbstractButton;
class QKeySequence;

namespace widgets {

/// A key for a button, beside the letter in its text: a shortcut of the button itself would take the letter's
/// place. Each press counts, however quick.
void setKey(QAbstractButton* button, const QKeySequence& key);

} // namespace widgets
