#include "editor/text_editor.h"

#include "editor/text_document.h"

#include <QVBoxLayout>

#include <utility>

namespace editor {

TextEditor::TextEditor(QWidget* parent)
    : QWidget(parent)
    , m_field(new QTextEdit(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_field);
    setFocusProxy(m_field);
    connect(m_field, &QTextEdit::textChanged, this, &TextEditor::textChanged);
}

void TextEditor::setText(const formats::RichText& text)
{
    fillDocument(*m_field->document(), text);
    setModified(false);
}

formats::RichText TextEditor::text() const
{
    return textOf(*m_field->document());
}

QString TextEditor::plainText() const
{
    return m_field->toPlainText();
}

void TextEditor::insertText(const QString& text)
{
    m_field->textCursor().insertText(text);
}

void TextEditor::setWordSource(WordSource /*words*/) { }

bool TextEditor::isModified() const
{
    return m_field->document()->isModified();
}

void TextEditor::setModified(bool modified)
{
    m_field->document()->setModified(modified);
}

void TextEditor::setReadOnly(bool readOnly)
{
    m_field->setReadOnly(readOnly);
}

} // namespace editor
