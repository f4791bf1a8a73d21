#include "letters/record/letter_drag.h"

#include "widgets/heading_grid.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

QString mimeType()
{
    return u"application/x-orvane-letters"_s;
}

} // namespace

LetterDrag::LetterDrag(widgets::HeadingGrid* from, widgets::HeadingGrid* onto, QObject* parent)
    : QObject(parent)
    , m_from(from)
    , m_onto(onto)
{
    m_onto->viewport()->setAcceptDrops(true);
    m_from->viewport()->installEventFilter(this);
    m_onto->viewport()->installEventFilter(this);
}

bool LetterDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_from->viewport())
        return watchSource(event);
    return watched == m_onto->viewport() && watchTarget(event);
}

// The list itself goes on with every event, so a click still chooses and a drag over rows selects none.
bool LetterDrag::watchSource(QEvent* event)
{
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (!mouse || !m_isEnabled)
        return false;
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        m_pressed = mouse->position().toPoint();
        // What is selected already may be about to be dragged as a whole.
        const QModelIndex index = m_from->indexAt(*m_pressed);
        return mouse->modifiers() == Qt::NoModifier && m_from->selectedKeys().size() > 1
            && m_from->selectionModel()->isRowSelected(index.row(), {});
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        m_pressed.reset();
        return false;
    }
    if (event->type() != QEvent::MouseMove || !m_pressed || !(mouse->buttons() & Qt::LeftButton))
        return false;
    if ((mouse->position().toPoint() - *m_pressed).manhattanLength() < QApplication::startDragDistance())
        return true;
    m_pressed.reset();
    QByteArray ids;
    for (const qint64 id : m_from->selectedKeys())
        ids += QByteArray::number(id) + ' ';
    if (ids.isEmpty())
        return false;
    auto* data = new QMimeData;
    data->setData(mimeType(), ids);
    auto* drag = new QDrag(m_from);
    drag->setMimeData(data);
    drag->exec(Qt::MoveAction);
    return true;
}

bool LetterDrag::watchTarget(QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return false;
    auto* drop = static_cast<QDropEvent*>(event);
    const QModelIndex index = m_onto->indexAt(drop->position().toPoint());
    const bool isOurs = m_isEnabled && drop->source() == m_from && drop->mimeData()->hasFormat(mimeType());
    if (!isOurs || (event->type() != QEvent::DragEnter && !index.isValid())) {
        drop->ignore();
        return true;
    }
    drop->acceptProposedAction();
    if (!isDrop)
        return true;
    QList<qint64> letters;
    for (const QByteArray& id : drop->mimeData()->data(mimeType()).split(' ')) {
        if (!id.isEmpty())
            letters << id.toLongLong();
    }
    Q_EMIT dropped(letters, index.row());
    return true;
}

} // namespace letters
