#include "widgets/suggestion_list.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

#include <algorithm>

namespace widgets {

namespace {

constexpr int VisibleRows = 12;
constexpr int WidestList = 480;

} // namespace

SuggestionList::SuggestionList(QLineEdit* line, QAbstractItemModel* values)
    : QListView(line)
    , m_line(line)
{
    // No popup: one would take the mouse and the keys of the whole program.
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_matches.setModel(values);
    m_matches.setCompletionMode(QCompleter::PopupCompletion);
    m_matches.setCaseSensitivity(Qt::CaseInsensitive);
    setModel(m_matches.completionModel());
    connect(this, &QListView::clicked, this, &SuggestionList::pick);
}

void SuggestionList::setSorted(bool sorted)
{
    m_matches.setModelSorting(sorted ? QCompleter::CaseInsensitivelySortedModel : QCompleter::UnsortedModel);
}

void SuggestionList::suggestFor(const QString& typed)
{
    m_typed = typed;
    m_matches.setCompletionPrefix(typed);
    const int count = typed.isEmpty() ? 0 : m_matches.completionCount();
    const auto* values = m_matches.model();
    const bool isValue = count > 0
        && !values->match(values->index(0, 0), Qt::DisplayRole, typed, 1, Qt::MatchFixedString).isEmpty();
    if (count == 0 || isValue || !m_line->hasFocus())
        return hide();
    setCurrentIndex({});
    place();
    show();
    scrollToTop();
}

QStringList SuggestionList::suggestions() const
{
    QStringList texts;
    for (int row = 0; row < model()->rowCount(); ++row)
        texts += model()->index(row, 0).data().toString();
    return texts;
}

bool SuggestionList::isForList(const QKeyEvent* key) const
{
    if (!isVisible() || (key->modifiers() & ~Qt::KeypadModifier))
        return false;
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Escape: return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: return currentIndex().isValid();
    default: return false;
    }
}

void SuggestionList::take(const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Up: return step(-1);
    case Qt::Key_Down: return step(1);
    case Qt::Key_PageUp: return step(-VisibleRows);
    case Qt::Key_PageDown: return step(VisibleRows);
    case Qt::Key_Escape:
        if (currentIndex().isValid())
            m_line->setText(m_typed);
        return hide();
    default: pick(currentIndex());
    }
}

// One row beyond either end stands for the text as it was typed.
void SuggestionList::step(int rows)
{
    const int count = model()->rowCount();
    int row = currentIndex().isValid() ? currentIndex().row() : rows < 0 ? count : -1;
    row = std::abs(rows) == 1 ? row + rows : std::clamp(row + rows, 0, count - 1);
    const QModelIndex next = row < count ? model()->index(row, 0) : QModelIndex();
    setCurrentIndex(next);
    m_line->setText(next.isValid() ? next.data().toString() : m_typed);
}

void SuggestionList::pick(const QModelIndex& index)
{
    const auto* matches = qobject_cast<const QAbstractProxyModel*>(model());
    const int row = matches->mapToSource(index).row();
    hide();
    Q_EMIT picked(row);
}

void SuggestionList::place()
{
    const QWidget* field = m_line->parentWidget() ? m_line->parentWidget() : m_line;
    setFont(field->font());
    const int count = m_matches.completionCount();
    const int shown = std::min(count, VisibleRows);
    const int wanted = sizeHintForColumn(0) + 2 * frameWidth() + (count > shown ? 24 : 4);
    resize(std::clamp(wanted, field->width(), std::max(field->width(), WidestList)),
        shown * std::max(1, sizeHintForRow(0)) + 2 * frameWidth());
    const QRect room = field->screen()->availableGeometry();
    QPoint corner = field->mapToGlobal(QPoint(0, field->height()));
    if (corner.y() + height() > room.bottom())
        corner.setY(field->mapToGlobal(QPoint(0, 0)).y() - height());
    corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width())));
    move(corner);
}

void SuggestionList::showEvent(QShowEvent* event)
{
    QListView::showEvent(event);
    qApp->installEventFilter(this);
}

void SuggestionList::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    qApp->removeEventFilter(this);
}

// Looks on only: whatever closes the list still gets to where it belongs.
bool SuggestionList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Shortcut && isVisible()) {
        hide();
        Q_EMIT passedOver();
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget == this || isAncestorOf(widget) || !isVisible())
        return QListView::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (widget != m_line) {
            hide();
            Q_EMIT passedOver();
        }
        break;
    case QEvent::Wheel: hide(); break;
    case QEvent::FocusOut:
        if (widget == m_line || widget == m_line->parentWidget())
            hide();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        if (widget == m_line->window())
            hide();
        break;
    default: break;
    }
    return QListView::eventFilter(watched, event);
}

} // namespace widgets
