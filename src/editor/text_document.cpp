#include "editor/text_document.h"

#include <QTextDocument>

namespace editor {

void fillDocument(QTextDocument& document, const formats::RichText& text)
{
    document.setPlainText(text.plain());
}

formats::RichText textOf(const QTextDocument& document)
{
    return formats::RichText::fromPlain(document.toPlainText());
}

} // namespace editor
