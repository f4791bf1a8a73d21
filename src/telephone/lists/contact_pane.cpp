#include "telephone/lists/contact_pane.h"

#include "core/vocabularies.h"
#include "telephone/lists/chosen_pattern.h"
#include "telephone/lists/slot_ticks.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

using widgets::child;

ContactPane::ContactPane(jet::Database& book, QWidget* parent)
    : QWidget(parent)
    , m_book(book)
    , FG(new widgets::HeadingGrid)
    , m_slots(new SlotTicks)
{
    FG->setEmptyText(tr("No contacts here"));
    FG->setHeadings(u"  |Name                       ", {QString(), u"name"_s});
    widgets::FormKit form(this);
    form.group(tr("Contacts"))
        .combo(u"dcmbcat"_s, tr("Cate&gory"))
        .combo(u"Dcmbsubcat"_s, tr("S&ub category"))
        .combo(u"dcmbcity"_s, tr("C&ity"))
        .beside()
        .button(u"SSCommand3"_s, tr("Refresh"), u"restore", tr("List all contacts"))
        .wide(u"FG"_s, tr("Contacts"), FG)
        .wide(u"Numbers"_s, tr("Numbers of the contact"), m_slots)
        .button(u"CmdList"_s, tr("Add   >>"), u"add", tr("Put the numbers with a tick into the list"));
    layout()->setContentsMargins(0, 0, 0, 0);
    dcmbcat = child<widgets::FilledCombo>(this, u"dcmbcat"_s);
    Dcmbsubcat = child<widgets::FilledCombo>(this, u"Dcmbsubcat"_s);
    dcmbcity = child<widgets::FilledCombo>(this, u"dcmbcity"_s);
    CmdList = child<QPushButton>(this, u"CmdList"_s);
    connect(dcmbcat, &QComboBox::currentTextChanged, this, [this] {
        Dcmbsubcat->refill();
        const QSignalBlocker quiet(Dcmbsubcat);
        Dcmbsubcat->setText(u"All"_s);
    });
    for (widgets::FilledCombo* combo : {dcmbcat, Dcmbsubcat, dcmbcity})
        connect(combo, &QComboBox::currentTextChanged, this, [this] { read(filteredContactsSql(filter())); });
    connect(
        child<QPushButton>(this, u"SSCommand3"_s), &QPushButton::clicked, this, &ContactPane::clearFilter);
    connect(FG, &widgets::HeadingGrid::currentRowChanged, this, &ContactPane::showNumbers);
    connect(FG, &widgets::HeadingGrid::chosen, CmdList, &QPushButton::click);
    connect(CmdList, &QPushButton::clicked, this, &ContactPane::addWanted);
    setFocusProxy(FG);
}

void ContactPane::load()
{
    const auto withAll
        = [this](const QString& sql) { return QStringList{u"All"_s} + core::firstColumn(m_book, sql); };
    dcmbcat->setSource([withAll] { return withAll(contactCategoriesSql()); });
    Dcmbsubcat->setSource(
        [this, withAll] { return withAll(contactSubcategoriesSql(dcmbcat->currentText())); });
    dcmbcity->setSource([withAll] { return withAll(contactCitiesSql()); });
    clearFilter();
}

void ContactPane::readAgain()
{
    for (widgets::FilledCombo* combo : {dcmbcat, Dcmbsubcat, dcmbcity})
        combo->refill();
    read(m_sql);
}

ContactFilter ContactPane::filter() const
{
    return {chosenPattern(dcmbcat), chosenPattern(Dcmbsubcat), chosenPattern(dcmbcity)};
}

// Read in the other way of the engine: % and _ stand for letters in what a person types here.
void ContactPane::read(const QString& sql)
{
    jet::Recordset rows = jet::Connection(m_book).openRecordset(sql);
    if (!rows.isValid())
        return;
    m_sql = sql;
    const qint64 current = FG->currentKey();
    FG->fill(std::move(rows));
    if (current == 0 || !FG->selectKey(current))
        FG->setCurrentRow(-1);
    showNumbers();
}

void ContactPane::clearFilter()
{
    for (widgets::FilledCombo* combo : {dcmbcat, Dcmbsubcat, dcmbcity}) {
        const QSignalBlocker quiet(combo);
        combo->setText(u"All"_s);
    }
    Dcmbsubcat->refill();
    read(allContactsSql());
}

void ContactPane::showNumbers()
{
    const int row = FG->currentRow();
    if (row < 0)
        m_slots->show(nullptr);
    else
        m_slots->show([this, row](const QString& column) { return FG->textAt(row, column); });
    Q_EMIT rowChanged();
}

NewMember ContactPane::member() const
{
    if (FG->currentRow() < 0)
        return {};
    return {FG->currentKey(), FG->currentText(u"name"_s), FG->currentText(u"category1"_s),
        FG->currentText(u"h_city"_s), FG->currentText(u"priority"_s), m_slots->ticked()};
}

void ContactPane::noteAdded()
{
    CmdList->setText(tr("Add >"));
}

} // namespace telephone
