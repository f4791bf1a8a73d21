#pragma once

#include "formats/rich_text.h"

#include <QTextEdit>
#include <QWidget>

#include <functional>

namespace editor {

/// A text with its tool bar: bold, lists, fonts, spelling and words that are offered while one types.
class TextEditor : public QWidget {
    Q_OBJECT

public:
    /// Stored words that begin with what was typed, in their order.
    using WordSource = std::function<QStringList(const QString& prefix)>;

    explicit TextEditor(QWidget* parent = nullptr);

    /// In place of the text there is; nothing is left to undo, and it counts as unchanged.
    void setText(const formats::RichText& text);
    formats::RichText text() const;
    QString plainText() const;
    /// Puts a text in at the caret, as one step to undo.
    void insertText(const QString& text);
    /// Words that are offered for the one being typed, and taken by ".".
    void setWordSource(WordSource words);
    /// Whether a person has changed the text since it was set, or since setModified(false).
    bool isModified() const;
    void setModified(bool modified);
    void setReadOnly(bool readOnly);
    /// The field itself, for its name, its place in the order of tabs and its menu.
    QTextEdit& field() const { return *m_field; }

Q_SIGNALS:
    void textChanged();

private:
    QTextEdit* m_field;
};

} // namespace editor
