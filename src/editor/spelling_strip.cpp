#include "editor/spelling_strip.h"

#include "editor/spelling_words.h"
#include "editor/text_marks.h"
#include "platform/speller.h"
#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int kMostSuggestions = 12;

} // namespace

SpellingStrip::SpellingStrip(QTextEdit* field, TextMarks* marks)
    : m_field(field)
    , m_marks(marks)
    , m_told(new QLabel)
    , m_other(new QComboBox)
{
    layOut();
    setVisible(false);
}

void SpellingStrip::layOut()
{
    m_told->setObjectName(u"lblSpelling"_s);
    m_told->setTextFormat(Qt::PlainText);
    m_other->setObjectName(u"cmbSuggestions"_s);
    m_other->setAccessibleName(tr("What may have been meant"));
    m_other->setEditable(true);
    m_other->setInsertPolicy(QComboBox::NoInsert);
    m_other->setCompleter(nullptr);
    auto* rows = new widgets::WrappingRow(this);
    rows->setContentsMargins(0, 2, 0, 2);
    rows->setSpacing(4);
    auto* word = new QHBoxLayout;
    word->addWidget(m_told, 2);
    word->addWidget(m_other, 3);
    auto* layout = new QHBoxLayout;
    rows->add(word, 2);
    rows->add(layout, 3);
    const auto add = [&](const char* name, const QString& text, const QString& toolTip, auto action) {
        auto* button = new QPushButton(text);
        button->setObjectName(QString::fromLatin1(name));
        button->setToolTip(toolTip);
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
        m_buttons << button;
    };
    add("cmdChange", tr("Change"), tr("Replace the word by the one in the box (Enter)"),
        [this] { change(false); });
    add("cmdChangeAll", tr("Change all"), tr("Replace the word wherever it stands in this text"),
        [this] { change(true); });
    add("cmdIgnore", tr("Ignore"), tr("Leave this word as it is"), [this] { ignore(false); });
    add("cmdIgnoreAll", tr("Ignore all"), tr("Leave the word as it is wherever it stands in this text"),
        [this] { ignore(true); });
    add("cmdAddWord", tr("Add"), tr("Add the word to your dictionary"), [this] {
        if (addWord(m_word))
            next();
    });
    auto* shut = new QPushButton;
    shut->setObjectName(u"cmdCloseSpelling"_s);
    shut->setAccessibleName(tr("Close"));
    shut->setToolTip(tr("Close (Esc)"));
    shut->setAutoDefault(false);
    shut->setFocusPolicy(Qt::TabFocus);
    widgets::setIcon(shut, u"close");
    shut->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(shut);
    connect(shut, &QPushButton::clicked, this, &SpellingStrip::close);
}

void SpellingStrip::open()
{
    setVisible(true);
    QTextCursor caret = m_field->textCursor();
    caret.setPosition(caret.selectionStart());
    // A word in which the caret stands is looked at, too.
    caret.movePosition(QTextCursor::StartOfWord);
    m_begun = caret;
    m_at = caret;
    m_isRound = false;
    next();
}

// Half of the text stands before the place where it began; it ends there and not at the end of the text.
void SpellingStrip::next()
{
    if (!m_marks->speller() || m_marks->speller()->dictionary().isEmpty())
        return end(tr("No dictionary is installed."));
    if (!m_isRound) {
        if (findFrom(m_at.position(), std::numeric_limits<int>::max()))
            return;
        m_isRound = true;
        m_at.setPosition(0);
    }
    if (!findFrom(m_at.position(), m_begun.position()))
        end(tr("The whole text is checked."));
}

bool SpellingStrip::findFrom(int position, int end)
{
    for (QTextBlock block = m_field->document()->findBlock(position); block.isValid(); block = block.next()) {
        const QString text = block.text();
        for (const WordPlace& place : wordsToCheck(text)) {
            const int begin = block.position() + int(place.begin);
            if (begin < position)
                continue;
            if (begin >= end)
                return false;
            m_word = text.sliced(place.begin, place.length);
            if (!m_marks->isUnknown(m_word))
                continue;
            m_at.setPosition(begin + int(place.length));
            QTextCursor found = m_at;
            found.setPosition(begin, QTextCursor::KeepAnchor);
            m_field->setTextCursor(found);
            m_told->setText(tr("Unknown word: %1").arg(m_word));
            m_other->clear();
            m_other->addItems(m_marks->speller()->suggestions(m_word).mid(0, kMostSuggestions));
            m_other->setCurrentText(m_other->count() > 0 ? m_other->itemText(0) : m_word);
            for (QPushButton* button : std::as_const(m_buttons))
                button->setEnabled(true);
            m_other->setEnabled(true);
            m_other->setFocus();
            m_other->lineEdit()->selectAll();
            return true;
        }
        if (block.position() >= end)
            break;
    }
    return false;
}

void SpellingStrip::change(bool everywhere)
{
    const QString other = m_other->currentText();
    QTextCursor found = m_field->textCursor();
    // The person may have gone on writing meanwhile; then only the walk goes on.
    if (m_field->isReadOnly() || found.selectedText() != m_word)
        return next();
    QTextCursor step(m_field->document());
    step.beginEditBlock();
    found.insertText(other);
    m_at.setPosition(found.position());
    if (everywhere) {
        constexpr auto kFlags = QTextDocument::FindCaseSensitively | QTextDocument::FindWholeWords;
        QTextCursor at(m_field->document());
        for (at = m_field->document()->find(m_word, at, kFlags); !at.isNull();
             at = m_field->document()->find(m_word, at, kFlags))
            at.insertText(other);
    }
    step.endEditBlock();
    next();
}

void SpellingStrip::ignore(bool everywhere)
{
    if (everywhere)
        m_marks->ignore(m_word);
    next();
}

bool SpellingStrip::addWord(const QString& word)
{
    if (m_marks->speller()->addWord(word)) {
        m_marks->refresh();
        Q_EMIT wordsChanged();
        return true;
    }
    setVisible(true);
    m_told->setText(tr("\"%1\" could not be added: your list of words could not be stored.").arg(word));
    return false;
}

void SpellingStrip::end(const QString& told)
{
    m_told->setText(told);
    m_other->clear();
    m_other->setEnabled(false);
    for (QPushButton* button : std::as_const(m_buttons))
        button->setEnabled(false);
    QTextCursor caret = m_field->textCursor();
    caret.clearSelection();
    m_field->setTextCursor(caret);
    m_field->setFocus();
}

void SpellingStrip::close()
{
    setVisible(false);
    m_field->setFocus();
}

bool SpellingStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QWidget::event(event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const bool isEscape = key->key() == Qt::Key_Escape;
    if (key->modifiers() & ~Qt::KeypadModifier || (!isEscape && !(isEnter && m_other->hasFocus())))
        return QWidget::event(event);
    if (event->type() == QEvent::KeyPress && isEscape)
        close();
    else if (event->type() == QEvent::KeyPress)
        change(false);
    event->accept();
    return true;
}

} // namespace editor
