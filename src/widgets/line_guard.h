#pragma once

class QLineEdit;

namespace widgets {

/// Makes a field of one line careful with what comes into it: a text of several lines that is pasted or
/// dropped becomes one, with blanks; and what does not fit into the field is refused with a word beside it.
void guardLine(QLineEdit* line);
/// A text of several lines that comes into the first of the two goes on in the second, if that one is blank;
/// it may be continued in its turn.
void continueIn(QLineEdit* line, QLineEdit* next);

} // namespace widgets
