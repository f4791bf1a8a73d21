#include "editor/word_offers.h"

#include "editor/spelling_words.h"
#include "editor/text_field.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr int kVisibleRows = 8;
constexpr qsizetype kMostWords = 200;
constexpr int kFewestLetters = 2;
constexpr int kWidest = 360;

WordPlace wordAtCaret(const QTextCursor& caret)
{
    return wordBefore(caret.block().text(), caret.positionInBlock());
}

} // namespace

WordOffers::WordOffers(TextField* field)
    : QFrame(field)
    , m_field(field)
    , m_list(new QListWidget)
    , m_hint(new QLabel)
{
    // No popup: one would take the keys of the whole program.
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameShape(QFrame::StyledPanel);
    m_list->setObjectName(u"lstAutotext"_s);
    m_list->setAccessibleName(tr("Words that are offered"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_hint->setObjectName(u"lblAutotext"_s);
    m_hint->setMargin(3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_list);
    layout->addWidget(m_hint);
    connect(field, &TextField::typed, this, &WordOffers::offer);
    connect(m_list, &QListWidget::itemClicked, this, [this] { take(); });
}

bool WordOffers::isForList(const QKeyEvent* key) const
{
    if (!isVisible() || (key->modifiers() & ~(Qt::KeypadModifier)))
        return false;
    const bool isChosen = m_list->currentRow() >= 0;
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Escape: return true;
    case Qt::Key_Period: return isChosen;
    case Qt::Key_Return:
    case Qt::Key_Enter: return isChosen && m_hasMoved;
    default: return false;
    }
}

void WordOffers::takeKey(const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Up: m_hasMoved = true; return choose(std::max(0, m_list->currentRow() - 1));
    case Qt::Key_Down:
        m_hasMoved = true;
        return choose(std::min(m_list->count() - 1, m_list->currentRow() + 1));
    case Qt::Key_Escape: {
        const QTextCursor caret = m_field->textCursor();
        m_declined = caret.block().position() + int(wordAtCaret(caret).begin);
        return hide();
    }
    default: return take();
    }
}

void WordOffers::offer()
{
    m_hasMoved = false;
    const QTextCursor caret = m_field->textCursor();
    const WordPlace word = wordAtCaret(caret);
    const int begin = caret.block().position() + int(word.begin);
    if (begin != m_declined)
        m_declined = -1;
    if (!m_source || caret.hasSelection() || word.length < kFewestLetters || m_declined >= 0)
        return hide();
    const QString typed = caret.block().text().mid(word.begin, word.length);
    QStringList words = m_source(typed).mid(0, kMostWords);
    words.removeIf([&](const QString& each) { return each.compare(typed, Qt::CaseInsensitive) == 0; });
    show(words, !m_isWord || !m_isWord(typed));
}

void WordOffers::offerAll()
{
    if (!m_source)
        return;
    const QTextCursor caret = m_field->textCursor();
    const WordPlace word = wordAtCaret(caret);
    m_declined = -1;
    m_hasMoved = true;
    show(m_source(caret.block().text().mid(word.begin, word.length)).mid(0, kMostWords), true);
}

void WordOffers::show(const QStringList& words, bool isChosen)
{
    if (words.isEmpty() || !m_field->hasFocus())
        return hide();
    m_list->clear();
    m_list->addItems(words);
    choose(isChosen ? 0 : -1);
    place();
    setVisible(true);
}

void WordOffers::choose(int row)
{
    m_list->setCurrentRow(row);
    m_hint->setText(row >= 0 ? tr("Press (.) for Autotext") : tr("Choose with the arrow keys"));
}

// A word that was begun with a capital stays so.
void WordOffers::take()
{
    QString word = m_list->currentItem() ? m_list->currentItem()->text() : QString();
    hide();
    QTextCursor caret = m_field->textCursor();
    const WordPlace typed = wordAtCaret(caret);
    if (word.isEmpty() || m_field->isReadOnly())
        return;
    if (typed.length > 0 && caret.block().text().at(typed.begin).isUpper())
        word[0] = word[0].toUpper();
    caret.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, int(typed.length));
    caret.insertText(word);
    m_field->ensureCursorVisible();
}

void WordOffers::place()
{
    m_list->setFont(m_field->window()->font());
    const int rows = std::min(kVisibleRows, m_list->count());
    const int height = rows * std::max(1, m_list->sizeHintForRow(0)) + 2;
    m_list->setFixedHeight(height);
    const int wanted = std::max(m_list->sizeHintForColumn(0) + 30, m_hint->sizeHint().width() + 4);
    resize(std::min(kWidest, wanted), height + m_hint->sizeHint().height() + 2);
    const QRect caret = m_field->cursorRect();
    const QRect room = m_field->screen()->availableGeometry();
    QPoint corner = m_field->viewport()->mapToGlobal(caret.bottomLeft() + QPoint(0, 2));
    if (corner.y() + this->height() > room.bottom())
        corner.setY(m_field->viewport()->mapToGlobal(caret.topLeft()).y() - this->height());
    corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
    move(corner);
}

void WordOffers::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    qApp->installEventFilter(this);
}

void WordOffers::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    qApp->removeEventFilter(this);
}

// The field is asked first whether a key is for the list; what closes the list still gets to where it
// belongs.
bool WordOffers::eventFilter(QObject* watched, QEvent* event)
{
    if (!isVisible())
        return QFrame::eventFilter(watched, event);
    const auto type = event->type();
    if (watched == m_field && (type == QEvent::ShortcutOverride || type == QEvent::KeyPress)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (isForList(key)) {
            if (type == QEvent::KeyPress)
                takeKey(key);
            event->accept();
            return true;
        }
        const bool moves = key->key() == Qt::Key_Left || key->key() == Qt::Key_Right
            || key->key() == Qt::Key_Home || key->key() == Qt::Key_End || key->key() == Qt::Key_Return;
        if (type == QEvent::KeyPress && moves)
            hide();
        return QFrame::eventFilter(watched, event);
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool isMine = widget && (widget == this || isAncestorOf(widget));
    const bool leaves = (type == QEvent::MouseButtonPress && widget && !isMine)
        || (watched == m_field && type == QEvent::FocusOut)
        || (widget == m_field->window()
            && (type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowDeactivate))
        || (type == QEvent::Wheel && widget && !isMine) || (type == QEvent::Shortcut);
    if (leaves)
        hide();
    return QFrame::eventFilter(watched, event);
}

} // namespace editor
