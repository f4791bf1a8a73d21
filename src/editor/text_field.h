#pragma once

#include "editor/text_commands.h"

#include <QTextEdit>

namespace editor {

/// The field in which a text is written. Its keys are its own while it has the focus, whatever the screen
/// around it uses them for; what is pasted keeps the looks that our texts know and nothing else.
class TextField : public QTextEdit {
    Q_OBJECT

public:
    explicit TextField(QWidget* parent = nullptr);

    void insertFromMimeData(const QMimeData* source) override;
    /// The same, without any looks.
    void pastePlain();

Q_SIGNALS:
    void commanded(editor::TextCommand command);
    /// A person has typed or deleted something.
    void typed();
    void menuWanted(QContextMenuEvent* event);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    QMimeData* createMimeDataFromSelection() const override;
    QVariant loadResource(int type, const QUrl& name) override;

private:
    bool moveInList(const QKeyEvent* event);
};

} // namespace editor
