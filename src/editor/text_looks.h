#pragma once

#include "editor/text_commands.h"

#include <QTextCharFormat>

#include <functional>

class QTextCursor;
class QTextEdit;

namespace editor {

/// Changes the looks of what is selected; without a selection, of what is typed next.
void changeLooks(QTextEdit& field, const std::function<void(QTextCharFormat&)>& change);

/// The commands about looks and paragraphs, on what is selected or where the caret is. A command that a place
/// has already is taken back there: bold, lists.
void applyLook(QTextEdit& field, TextCommand command);
/// Whether the place of the caret has it.
bool hasLook(const QTextEdit& field, TextCommand command);

} // namespace editor
