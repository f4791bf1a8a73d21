#include "letters/ltr_setup/list_choice.h"

#include "letters/ltr_setup/entry_panel.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QSignalBlocker>

#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

ListChoice::ListChoice(core::Context& context, const QList<const StoredList*>& lists, QWidget* parent)
    : SetupPanel(context, parent)
    , m_lists(lists)
    , m_names(new QListWidget)
{
    m_names->setObjectName(u"lstEmailLists"_s);
    m_names->setAccessibleName(tr("Lists"));
    m_names->setFixedWidth(170);
    for (const StoredList* list : m_lists)
        m_names->addItem(QCoreApplication::translate("letters", list->caption));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 28, 6, 16);
    layout->addWidget(m_names);
    take(0);
    connect(m_names, &QListWidget::currentRowChanged, this, &ListChoice::choose);
}

void ListChoice::refresh()
{
    m_panel->refresh();
}

bool ListChoice::isTouched() const
{
    return m_panel->isTouched();
}

// Typed and not saved: the person says whether it may go.
void ListChoice::choose(int row)
{
    if (row < 0 || row == m_row)
        return;
    if (m_panel->isTouched() && !mayDiscard()) {
        const QSignalBlocker silent(m_names);
        m_names->setCurrentRow(m_row);
        return;
    }
    take(row);
    m_panel->refresh();
}

// The lists share their buttons, so there is one panel at a time.
void ListChoice::take(int row)
{
    m_row = row;
    const QSignalBlocker silent(m_names);
    m_names->setCurrentRow(row);
    delete std::exchange(m_panel, new EntryPanel(context(), *m_lists[row]));
    layout()->addWidget(m_panel);
    connect(m_panel, &SetupPanel::vocabulariesChanged, this, &SetupPanel::vocabulariesChanged);
}

} // namespace letters
