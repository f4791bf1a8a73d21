#include "editor/text_field.h"

#include "editor/text_document.h"
#include "formats/rtf_writer.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

struct CommandKey {
    QKeyCombination key;
    TextCommand command;
};
constexpr CommandKey kKeys[] = {
    {Qt::CTRL | Qt::Key_B, TextCommand::Bold},
    {Qt::CTRL | Qt::Key_I, TextCommand::Italic},
    {Qt::CTRL | Qt::Key_U, TextCommand::Underline},
    {Qt::CTRL | Qt::Key_F, TextCommand::Find},
    {Qt::CTRL | Qt::Key_H, TextCommand::Find},
    {Qt::CTRL | Qt::Key_Y, TextCommand::Redo},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_V, TextCommand::PastePlain},
    {Qt::CTRL | Qt::Key_Space, TextCommand::OfferWords},
    {QKeyCombination(Qt::Key_F7), TextCommand::CheckSpelling},
};

std::optional<TextCommand> commandOf(const QKeyEvent* event)
{
    const auto* found = std::ranges::find(kKeys, event->keyCombination(), &CommandKey::key);
    return found == std::end(kKeys) ? std::nullopt : std::optional(found->command);
}

} // namespace

TextField::TextField(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(true);
    setAutoFormatting(QTextEdit::AutoNone);
}

void TextField::insertFromMimeData(const QMimeData* source)
{
    insertRichText(textCursor(), textOf(*source));
    ensureCursorVisible();
}

void TextField::pastePlain()
{
    if (isReadOnly())
        return;
    insertRichText(
        textCursor(), formats::RichText::fromPlain(QApplication::clipboard()->text().remove(u'\r')));
    ensureCursorVisible();
}

bool TextField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && commandOf(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QTextEdit::event(event);
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    if (const auto command = commandOf(event)) {
        Q_EMIT commanded(*command);
        return;
    }
    if (!isReadOnly() && moveInList(event))
        return;
    const int before = document()->revision();
    QTextEdit::keyPressEvent(event);
    if (document()->revision() != before)
        Q_EMIT typed();
}

// At the beginning of an item Tab makes it lie deeper, and Backspace lets it go from the list.
bool TextField::moveInList(const QKeyEvent* event)
{
    const QTextCursor caret = textCursor();
    if (caret.hasSelection() || !caret.atBlockStart() || !caret.currentList())
        return false;
    switch (event->key()) {
    case Qt::Key_Tab: Q_EMIT commanded(TextCommand::Indent); return true;
    case Qt::Key_Backtab: Q_EMIT commanded(TextCommand::Outdent); return true;
    case Qt::Key_Backspace: Q_EMIT commanded(TextCommand::Outdent); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (caret.block().length() > 1)
            return false;
        Q_EMIT commanded(TextCommand::Outdent);
        return true;
    default: return false;
    }
}

void TextField::inputMethodEvent(QInputMethodEvent* event)
{
    QTextEdit::inputMethodEvent(event);
    if (!event->commitString().isEmpty())
        Q_EMIT typed();
}

void TextField::contextMenuEvent(QContextMenuEvent* event)
{
    Q_EMIT menuWanted(event);
}

bool TextField::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText() || source->hasHtml() || source->hasFormat(u"text/rtf"_s)
        || source->hasFormat(u"application/rtf"_s);
}

QMimeData* TextField::createMimeDataFromSelection() const
{
    QMimeData* mime = QTextEdit::createMimeDataFromSelection();
    const QByteArray rtf = formats::writeRtf(selectedText(textCursor()));
    mime->setData(u"text/rtf"_s, rtf);
    mime->setData(u"application/rtf"_s, rtf);
    return mime;
}

// Nothing that a text names is fetched, from this computer or another one.
QVariant TextField::loadResource(int, const QUrl&)
{
    return {};
}

} // namespace editor
