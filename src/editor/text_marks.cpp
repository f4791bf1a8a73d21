#include "editor/text_marks.h"

#include "editor/readable_color.h"
#include "editor/spelling_words.h"
#include "platform/speller.h"
#include "widgets/theme.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>

#include <utility>

namespace editor {

namespace {

constexpr int kPatienceMs = 12; ///< at a stretch, before keys are looked at again
constexpr int kSmallChange = 400; ///< letters that are marked before they are drawn
constexpr int kLongestParagraph = 30'000; ///< one that is longer is no text that a person checks

/// For which state of a paragraph and of the speller its marks hold.
class MarkedFor final : public QTextBlockUserData {
public:
    MarkedFor(int revisionThen, int generationThen)
        : revision(revisionThen)
        , generation(generationThen)
    {
    }

    int revision;
    int generation;
};

bool isMarkedFor(const QTextBlock& block, int generation)
{
    const auto* marked = static_cast<const MarkedFor*>(block.userData());
    return marked && marked->revision == block.revision() && marked->generation == generation;
}

} // namespace

TextMarks::TextMarks(QTextEdit* field)
    : QObject(field)
    , m_field(field)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &TextMarks::markVisible);
    connect(field->document(), &QTextDocument::contentsChange, this, &TextMarks::follow);
    connect(field, &QTextEdit::cursorPositionChanged, this, &TextMarks::caretMoved);
    connect(field->verticalScrollBar(), &QScrollBar::valueChanged, &m_soon, qOverload<>(&QTimer::start));
    field->viewport()->installEventFilter(this);
}

void TextMarks::setSpeller(platform::Speller* speller)
{
    m_speller = speller;
    refresh();
}

void TextMarks::setOn(bool on)
{
    m_isOn = on;
    refresh();
}

bool TextMarks::isUnknown(const QString& word) const
{
    return m_speller && !m_ignored.contains(word) && !m_speller->isKnown(word);
}

void TextMarks::ignore(const QString& word)
{
    m_ignored.insert(word);
    refresh();
}

void TextMarks::refresh()
{
    ++m_generation;
    m_soon.start();
}

bool TextMarks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        m_soon.start();
    return QObject::eventFilter(watched, event);
}

// What a person types is marked before it is laid out, or marks would be seen to move.
void TextMarks::follow(int from, int removed, int added)
{
    m_hasChanged = true;
    m_isTyping = added + removed <= 2 && m_field->hasFocus();
    m_typedAt = from;
    m_soon.start();
    if (added + removed > kSmallChange)
        return;
    const QTextBlock last = m_field->document()->findBlock(from + added);
    for (QTextBlock block = m_field->document()->findBlock(from); block.isValid(); block = block.next()) {
        mark(block);
        if (block == last)
            break;
    }
}

void TextMarks::caretMoved()
{
    if (std::exchange(m_hasChanged, false) || !std::exchange(m_isTyping, false))
        return;
    QTextBlock block = m_field->document()->findBlock(m_typedAt);
    if (block.isValid())
        block.setUserData(nullptr);
    m_soon.start();
}

void TextMarks::markVisible()
{
    if (!m_field->isVisible())
        return;
    QElapsedTimer clock;
    clock.start();
    const QRect seen = m_field->viewport()->rect();
    const QTextBlock last = m_field->cursorForPosition(seen.bottomRight()).block();
    int from = -1;
    int to = 0;
    for (QTextBlock block = m_field->cursorForPosition(seen.topLeft()).block(); block.isValid();
         block = block.next()) {
        if (!isMarkedFor(block, m_generation) && mark(block)) {
            from = from < 0 ? block.position() : from;
            to = block.position() + block.length();
        }
        if (block == last)
            break;
        if (clock.elapsed() > kPatienceMs) {
            m_soon.start();
            break;
        }
    }
    if (from >= 0)
        m_field->document()->markContentsDirty(from, to - from);
}

bool TextMarks::mark(const QTextBlock& block)
{
    QTextBlock(block).setUserData(new MarkedFor(block.revision(), m_generation));
    const auto ranges = rangesFor(block);
    if (block.layout()->formats() == ranges)
        return false;
    block.layout()->setFormats(ranges);
    return true;
}

QList<QTextLayout::FormatRange> TextMarks::rangesFor(const QTextBlock& block) const
{
    QList<QTextLayout::FormatRange> ranges;
    if (block.length() > kLongestParagraph)
        return ranges;
    const QColor background = m_field->palette().color(QPalette::Base);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        if (!format.hasProperty(QTextFormat::ForegroundBrush))
            continue;
        const QColor color = format.foreground().color();
        const QColor shown = readableOn(color, background);
        if (shown == color)
            continue;
        QTextLayout::FormatRange range{
            it.fragment().position() - block.position(), it.fragment().length(), {}};
        range.format.setForeground(shown);
        ranges << range;
    }
    if (m_isOn && m_speller)
        addWaves(block, &ranges);
    return ranges;
}

void TextMarks::addWaves(const QTextBlock& block, QList<QTextLayout::FormatRange>* ranges) const
{
    const QTextCursor caret = m_field->textCursor();
    const int typedAt = m_isTyping && caret.block() == block ? caret.positionInBlock() : -1;
    const QString text = block.text();
    for (const WordPlace& word : wordsToCheck(text)) {
        const bool isBeingTyped = typedAt >= word.begin && typedAt <= word.end();
        if (isBeingTyped || !isUnknown(text.sliced(word.begin, word.length)))
            continue;
        QTextLayout::FormatRange range{int(word.begin), int(word.length), {}};
        range.format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
        range.format.setUnderlineColor(widgets::warningColor());
        *ranges << range;
    }
}

} // namespace editor
