#pragma once

#include "formats/rich_text.h"

class QTextDocument;

namespace editor {

/// Between the text as a value and the document that is edited.
void fillDocument(QTextDocument& document, const formats::RichText& text);
formats::RichText textOf(const QTextDocument& document);

} // namespace editor
