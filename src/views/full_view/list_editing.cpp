#include "views/full_view/list_editing.h"

#include "widgets/line_guard.h"
#include "widgets/record_list.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace views {

ListEditing::ListEditing(widgets::RecordList* list)
    : QObject(list)
    , m_list(list)
    , m_editor(new QLineEdit(list->viewport()))
{
    m_editor->hide();
    m_editor->setObjectName(u"DBList1Editor"_s);
    m_editor->setAccessibleName(tr("Name"));
    m_editor->installEventFilter(this);
    widgets::guardLine(m_editor);
    m_list->installEventFilter(this);
    connect(m_list, &QAbstractItemView::doubleClicked, this, &ListEditing::begin);
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { finish(true); });
    connect(m_list, &widgets::RecordList::currentRowChanged, this, [this] { finish(true); });
}

void ListEditing::setEditable(bool editable)
{
    finish(true);
    m_editable = editable;
}

void ListEditing::begin()
{
    m_id = m_editable ? m_list->currentKey() : 0;
    if (m_id == 0)
        return;
    m_before = m_list->currentText(u"Name"_s);
    m_editor->setText(m_before);
    m_editor->setGeometry(m_list->visualRect(m_list->currentIndex()));
    m_editor->selectAll();
    m_editor->show();
    m_editor->setFocus();
}

void ListEditing::finish(bool keep)
{
    if (m_editor->isHidden())
        return;
    m_editor->hide();
    if (keep && m_editor->text() != m_before)
        Q_EMIT nameEdited(m_id, m_editor->text());
}

bool ListEditing::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_editor && event->type() == QEvent::FocusOut) {
        finish(true);
    } else if (event->type() == QEvent::ShortcutOverride && watched == m_list && m_editable
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2) {
        // The frame has a command on this key too.
        event->accept();
        return true;
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (watched == m_list && key == Qt::Key_F2) {
            begin();
            return true;
        }
        const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (watched == m_editor && (isReturn || key == Qt::Key_Escape)) {
            finish(isReturn);
            m_list->setFocus();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace views
