#include "editor/text_looks.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextList>

#include <algorithm>

namespace editor {

namespace {

constexpr int kDeepestIndent = 20;

void toggle(QTextCharFormat& format, TextCommand command, bool on)
{
    switch (command) {
    case TextCommand::Bold: format.setFontWeight(on ? QFont::Bold : QFont::Normal); return;
    case TextCommand::Italic: format.setFontItalic(on); return;
    case TextCommand::Underline: format.setFontUnderline(on); return;
    case TextCommand::StrikeOut: format.setFontStrikeOut(on); return;
    default: return;
    }
}

bool isOn(const QTextCharFormat& format, TextCommand command)
{
    switch (command) {
    case TextCommand::Bold: return format.fontWeight() >= QFont::DemiBold;
    case TextCommand::Italic: return format.fontItalic();
    case TextCommand::Underline: return format.fontUnderline();
    case TextCommand::StrikeOut: return format.fontStrikeOut();
    default: return false;
    }
}

Qt::Alignment alignOf(TextCommand command)
{
    switch (command) {
    case TextCommand::AlignCenter: return Qt::AlignHCenter;
    case TextCommand::AlignRight: return Qt::AlignRight | Qt::AlignAbsolute;
    case TextCommand::Justify: return Qt::AlignJustify;
    default: return Qt::AlignLeft | Qt::AlignAbsolute;
    }
}

bool isNumbered(const QTextList* list)
{
    return list->format().style() == QTextListFormat::ListDecimal;
}

/// Every paragraph that is at least touched by the selection.
template <class Change> void forEachParagraph(QTextEdit& field, Change change)
{
    QTextCursor caret = field.textCursor();
    caret.beginEditBlock();
    const int end = caret.selectionEnd();
    const QTextDocument* document = field.document();
    for (QTextBlock block = document->findBlock(caret.selectionStart());
         block.isValid() && block.position() <= end; block = block.next())
        change(block);
    caret.endEditBlock();
}

void setIndent(const QTextBlock& block, int indent)
{
    QTextCursor cursor(block);
    QTextBlockFormat format = block.blockFormat();
    format.setIndent(std::clamp(indent, 0, kDeepestIndent));
    cursor.setBlockFormat(format);
}

void leaveList(const QTextBlock& block)
{
    QTextList* list = block.textList();
    const int indent = list->format().indent() - 1;
    list->remove(block);
    setIndent(block, indent);
}

void toggleList(QTextEdit& field, TextCommand command)
{
    const bool isIn = hasLook(field, command);
    const auto style
        = command == TextCommand::Numbers ? QTextListFormat::ListDecimal : QTextListFormat::ListDisc;
    QTextList* list = nullptr;
    forEachParagraph(field, [&](const QTextBlock& block) {
        QTextList* before = block.textList();
        if (isIn) {
            if (before)
                leaveList(block);
            return;
        }
        const int indent = before ? before->format().indent() : block.blockFormat().indent() + 1;
        if (before)
            before->remove(block);
        setIndent(block, 0);
        if (list) {
            list->add(block);
            return;
        }
        QTextListFormat format;
        format.setStyle(style);
        format.setIndent(indent);
        list = QTextCursor(block).createList(format);
    });
}

/// The items that lie as deep next to a place belong to one list.
void moveItem(const QTextBlock& block, int by)
{
    QTextList* list = block.textList();
    const int indent = list->format().indent() + by;
    if (indent < 1)
        return leaveList(block);
    if (indent > kDeepestIndent)
        return;
    QTextListFormat format = list->format();
    format.setIndent(indent);
    for (QTextBlock before = block.previous(); before.isValid(); before = before.previous()) {
        QTextList* other = before.textList();
        if (!other || other->format().indent() < indent)
            break;
        if (other->format().indent() == indent && other->format().style() == format.style()) {
            other->add(block);
            return;
        }
    }
    QTextCursor(block).createList(format);
}

void move(QTextEdit& field, int by)
{
    forEachParagraph(field, [by](const QTextBlock& block) {
        if (block.textList())
            moveItem(block, by);
        else
            setIndent(block, block.blockFormat().indent() + by);
    });
}

void clearLooks(QTextEdit& field)
{
    changeLooks(field, [](QTextCharFormat& format) { format = QTextCharFormat(); });
}

} // namespace

void changeLooks(QTextEdit& field, const std::function<void(QTextCharFormat&)>& change)
{
    QTextCursor caret = field.textCursor();
    QTextCharFormat typed = field.currentCharFormat();
    change(typed);
    if (!caret.hasSelection()) {
        field.setCurrentCharFormat(typed);
        return;
    }
    struct Piece {
        int begin;
        int end;
        QTextCharFormat format;
    };
    QList<Piece> pieces;
    const int begin = caret.selectionStart();
    const int end = caret.selectionEnd();
    for (QTextBlock block = field.document()->findBlock(begin); block.isValid() && block.position() < end;
         block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const int from = it.fragment().position();
            const Piece piece{std::max(begin, from), std::min(end, from + it.fragment().length()),
                it.fragment().charFormat()};
            if (piece.begin < piece.end)
                pieces << piece;
        }
    }
    caret.beginEditBlock();
    QTextCursor cursor(field.document());
    for (Piece& piece : pieces) {
        change(piece.format);
        cursor.setPosition(piece.begin);
        cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
    caret.endEditBlock();
}

void applyLook(QTextEdit& field, TextCommand command)
{
    switch (command) {
    case TextCommand::Bold:
    case TextCommand::Italic:
    case TextCommand::Underline:
    case TextCommand::StrikeOut: {
        const bool on = !hasLook(field, command);
        return changeLooks(field, [&](QTextCharFormat& format) { toggle(format, command, on); });
    }
    case TextCommand::Bullets:
    case TextCommand::Numbers: return toggleList(field, command);
    case TextCommand::Indent: return move(field, 1);
    case TextCommand::Outdent: return move(field, -1);
    case TextCommand::AlignLeft:
    case TextCommand::AlignCenter:
    case TextCommand::AlignRight:
    case TextCommand::Justify: return field.setAlignment(alignOf(command));
    case TextCommand::ClearLooks: return clearLooks(field);
    default: return;
    }
}

bool hasLook(const QTextEdit& field, TextCommand command)
{
    const QTextCursor caret = field.textCursor();
    const QTextList* list = caret.currentList();
    const Qt::Alignment align = field.alignment();
    switch (command) {
    case TextCommand::Bold:
    case TextCommand::Italic:
    case TextCommand::Underline:
    case TextCommand::StrikeOut: return isOn(field.currentCharFormat(), command);
    case TextCommand::Bullets: return list && !isNumbered(list);
    case TextCommand::Numbers: return list && isNumbered(list);
    case TextCommand::AlignCenter: return align & Qt::AlignHCenter;
    case TextCommand::AlignRight: return align & Qt::AlignRight;
    case TextCommand::Justify: return align & Qt::AlignJustify;
    case TextCommand::AlignLeft: return !(align & (Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify));
    default: return false;
    }
}

} // namespace editor
