#include "telephone/dialer/memory_panel.h"

#include "core/vocabularies.h"
#include "telephone/dialer/dialer_statements.h"
#include "telephone/dialer/number_button.h"
#include "widgets/filled_combo.h"
#include "widgets/key_filter.h"
#include "widgets/theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace telephone {

MemoryPanel::MemoryPanel(jet::Database& book, QWidget* parent)
    : QWidget(parent)
    , m_data(book)
    , cmbphone(new widgets::FilledCombo)
    , LBLSAVE(new QLabel)
{
    cmbphone->setObjectName(u"cmbphone"_s);
    cmbphone->setAccessibleName(tr("Memory list"));
    cmbphone->setToolTip(tr("The list whose ten places are shown; a new name begins a new list"));
    cmbphone->setSource([this] { return core::firstColumn(m_data, memoryListsSql()); });
    widgets::setKeyFilter(cmbphone, widgets::KeyFilter::NoApostrophe);
    auto* title = new QLabel(tr("Memor&y"));
    title->setBuddy(cmbphone);
    LBLSAVE->setObjectName(u"LBLSAVE"_s);
    LBLSAVE->setForegroundRole(QPalette::PlaceholderText);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(3);
    grid->addWidget(title, 0, 0);
    grid->addWidget(cmbphone, 0, 1);
    grid->setColumnStretch(1, 1);
    for (int slot = 0; slot < kMemorySlots; ++slot)
        addSlot(slot, grid);
    grid->addWidget(LBLSAVE, kMemorySlots + 1, 0, 1, 2);
    grid->setRowStretch(kMemorySlots + 2, 1);
    connect(cmbphone, &QComboBox::currentTextChanged, this, [this] {
        LBLSAVE->clear();
        readSlots();
    });
}

void MemoryPanel::addSlot(int slot, QGridLayout* grid)
{
    auto* assign = new QToolButton;
    assign->setObjectName(u"CmdFilter_%1"_s.arg(slot));
    assign->setText(QString::number(slot + 1));
    assign->setToolTip(tr("Choose a number for place %1").arg(slot + 1));
    assign->setAccessibleName(assign->toolTip());
    widgets::setIcon(assign, u"person-add");
    assign->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    assign->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    assign->setFocusPolicy(Qt::TabFocus);
    auto* place = new NumberButton(u"Label1_%1"_s.arg(slot), u"Empty"_s);
    place->setValue(u"Empty"_s);
    place->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(assign, &QToolButton::clicked, this, [this, slot] { Q_EMIT assignWanted(slot); });
    connect(place, &QPushButton::clicked, this, [this, slot] { Q_EMIT slotClicked(slot); });
    connect(place, &QWidget::customContextMenuRequested, this,
        [this, slot](const QPoint& at) { offerMenu(slot, at); });
    grid->addWidget(assign, slot + 1, 0);
    grid->addWidget(place, slot + 1, 1);
    m_slots << place;
}

void MemoryPanel::offerMenu(int slot, const QPoint& at)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(widgets::icon(u"person-add"), tr("Choose a number..."), this,
        [this, slot] { Q_EMIT assignWanted(slot); });
    menu->addAction(widgets::icon(u"delete"), tr("Empty this place"), this,
            [this, slot] { Q_EMIT clearWanted(slot); })
        ->setEnabled(!isEmpty(slot));
    menu->popup(m_slots[slot]->mapToGlobal(at));
}

void MemoryPanel::readLists()
{
    cmbphone->refill();
    if (cmbphone->currentText().isEmpty())
        cmbphone->setText(cmbphone->values().value(0));
    readSlots();
}

void MemoryPanel::readSlots()
{
    jet::Recordset rows = m_data.openRecordset(memorySlotsSql(list()));
    for (int slot = 0; slot < kMemorySlots; ++slot) {
        const bool isNamed = rows.findFirst(u"cmbnum=%1"_s.arg(slot)) && rows.value(u"Name").isValid();
        m_slots[slot]->setValue(isNamed ? rows.textOrEmpty(u"Name") : u"Empty"_s);
    }
}

QString MemoryPanel::list() const
{
    const QString text = cmbphone->currentText();
    return cmbphone->values().contains(text) ? text : text.trimmed();
}

void MemoryPanel::showList(const QString& list)
{
    cmbphone->setText(list);
}

QString MemoryPanel::caption(int slot) const
{
    return m_slots[slot]->value();
}

bool MemoryPanel::isEmpty(int slot) const
{
    return caption(slot) == u"Empty";
}

void MemoryPanel::showSaved(const QString& text)
{
    LBLSAVE->setText(text);
}

void MemoryPanel::focusList(bool droppedDown)
{
    cmbphone->setFocus();
    if (droppedDown)
        cmbphone->showPopup();
}

} // namespace telephone
