#pragma once

#include "formats/rich_text.h"

class QMimeData;
class QTextCursor;
class QTextDocument;

namespace editor {

/// Between the text as a value and the document that is edited. A text comes out of the document as it went
/// in.
void fillDocument(QTextDocument& document, const formats::RichText& text);
formats::RichText textOf(const QTextDocument& document);
formats::RichText selectedText(const QTextCursor& selection);

/// Puts a text in place of the selection, as one step to undo. One paragraph becomes part of the one around
/// it.
void insertRichText(QTextCursor cursor, const formats::RichText& text);

/// What another program or a document gives, with the looks that our texts know. Nothing that it names is
/// fetched, and what is too large comes without its looks.
formats::RichText textOf(const QMimeData& data);

} // namespace editor
