#pragma once

#include "editor/text_commands.h"

#include <QHash>
#include <QWidget>

class QComboBox;
class QTextEdit;
class QToolButton;

namespace widgets {
class FilledCombo;
}

namespace editor {

/// The tools of a text, in as many rows as the place asks for.
class TextTools : public QWidget {
    Q_OBJECT

public:
    explicit TextTools(QTextEdit* field);

    /// Tools and boxes as the place of the caret is, and as far as the text can be changed.
    void follow();
    QAction* tool(TextCommand command) const { return m_tools.value(command); }

Q_SIGNALS:
    void commanded(editor::TextCommand command);

private:
    QToolButton* addButton(QAction* action);
    void addBoxes();
    void addTools();
    QAction* colorTool();
    void setFamily(const QString& family);
    void setSize();
    void setColor(const QColor& color);

    QTextEdit* m_field;
    widgets::FilledCombo* m_family;
    QComboBox* m_size;
    QAction* m_color = nullptr;
    QHash<TextCommand, QAction*> m_tools;
};

} // namespace editor
