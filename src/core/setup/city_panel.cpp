#include "core/setup/city_panel.h"

#include "core/vocabularies.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/mnemonics.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::child;

namespace setup {

namespace {

constexpr QStringView kHeadings = u"City                  |Priority|Default";

} // namespace

CityPanel::CityPanel(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , DataGrid(new widgets::HeadingGrid)
    , m_available(new widgets::RecordList(nullptr, u"city"_s))
    , LblAdd(new QPushButton(tr("Add")))
    , CmdCityDel(new QPushButton(tr("Remove")))
    , m_hint(core::makeHint(u"lblCityHint"_s))
{
    layOut();
    const bool national = context.shared.NationalMode;
    Option1->setChecked(national);
    Option2->setChecked(!national);
    Check3->setChecked(true);
    connectControls();
}

void CityPanel::layOut()
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addWidget(layOutFrequent(), 1);
    layout->addWidget(layOutMiddle());
    layout->addWidget(layOutAvailable(), 1);
}

QWidget* CityPanel::layOutFrequent()
{
    DataGrid->setHeadings(kHeadings, {u"city"_s, u"priority"_s, u"default"_s});
    DataGrid->showAs(
        u"default"_s, [](const QVariant& value) { return value.toBool() ? tr("Yes") : QString(); });
    DataGrid->setEmptyText(tr("No city has been chosen yet."));
    auto* page = new QWidget;
    widgets::FormKit form(page);
    form.group(tr("Frequent cities"))
        .radio(u"Option1"_s, tr("&National"))
        .radio(u"Option2"_s, tr("&International"))
        .wide(u"DataGrid"_s, tr("Selected cities"), DataGrid)
        .group(tr("Default city"))
        .fixedCombo(u"DBCombo1"_s, tr("Cit&y"))
        .hint(tr("A choice makes the city the default of new contacts"))
        .beside()
        .button(u"Cmddefault"_s, tr("Default City"), u"home", tr("Show which city is the default"));
    page->layout()->setContentsMargins(0, 0, 0, 0);
    Option1 = child<QRadioButton>(page, u"Option1"_s);
    Option2 = child<QRadioButton>(page, u"Option2"_s);
    DBCombo1 = child<widgets::FilledCombo>(page, u"DBCombo1"_s);
    return page;
}

QWidget* CityPanel::layOutMiddle()
{
    LblAdd->setObjectName(u"LblAdd"_s);
    LblAdd->setToolTip(tr("Take the chosen city into the frequent ones (Enter, double click)"));
    widgets::setIcon(LblAdd, u"previous");
    CmdCityDel->setObjectName(u"CmdCityDel"_s);
    CmdCityDel->setToolTip(tr("Take the city out of the frequent ones (Del)"));
    widgets::setIcon(CmdCityDel, u"next");
    m_hint->setFixedWidth(120);
    m_hint->setMinimumHeight(6 * m_hint->fontMetrics().lineSpacing());
    auto* middle = new QWidget;
    auto* layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addStretch(1);
    for (QPushButton* button : {LblAdd, CmdCityDel}) {
        button->setAutoDefault(false);
        layout->addWidget(button);
    }
    layout->addWidget(m_hint);
    layout->addStretch(1);
    return middle;
}

QWidget* CityPanel::layOutAvailable()
{
    m_available->setEmptyText(tr("There is no city here."));
    auto* page = new QWidget;
    widgets::FormKit form(page);
    form.group(tr("Available cities"))
        .fixedCombo(u"cboPlace"_s, tr("&State"))
        .check(u"Check3"_s, tr("&Main cities only"))
        .wide(u"lstCities"_s, tr("Available cities"), m_available);
    page->layout()->setContentsMargins(0, 0, 0, 0);
    m_place = child<widgets::FilledCombo>(page, u"cboPlace"_s);
    Check3 = child<QCheckBox>(page, u"Check3"_s);
    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (label->buddy() == m_place)
            m_placeLabel = label;
    }
    return page;
}

void CityPanel::connectControls()
{
    DBCombo1->setSource([this] { return core::firstColumn(data(), citiesForDefaultSql()); });
    // The empty row in front stands for all of them.
    m_place->setSource(
        [this] { return QStringList{QString()} + core::firstColumn(context().info, placesSql(scope())); });
    for (QRadioButton* option : {Option1, Option2})
        connect(option, &QRadioButton::clicked, this, &CityPanel::scopeChanged);
    connect(Check3, &QCheckBox::clicked, this, &CityPanel::readAvailable);
    connect(m_place, &QComboBox::currentTextChanged, this, &CityPanel::readAvailable);
    connect(m_available, &widgets::RecordList::chosen, this, &CityPanel::add);
    connect(LblAdd, &QPushButton::clicked, this, &CityPanel::add);
    connect(CmdCityDel, &QPushButton::clicked, this, &CityPanel::remove);
    connect(child<QPushButton>(this, u"Cmddefault"_s), &QPushButton::clicked, this, &CityPanel::showDefault);
    connect(DBCombo1, &QComboBox::textActivated, this, &CityPanel::changeDefault);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, DataGrid);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &CityPanel::remove);
}

CityTable CityPanel::scope() const
{
    return Option1->isChecked() ? CityTable::National : CityTable::International;
}

void CityPanel::refresh()
{
    scopeChanged();
    showDefault();
}

void CityPanel::scopeChanged()
{
    const bool national = scope() == CityTable::National;
    DataGrid->setAccessibleName(
        national ? tr("Selected Top National Cities") : tr("Selected Top International Cities"));
    if (auto* group = qobject_cast<QGroupBox*>(DataGrid->parentWidget()))
        group->setTitle(DataGrid->accessibleName());
    widgets::setCaption(m_placeLabel, national ? tr("&State") : tr("Co&untry"));
    m_place->setAccessibleName(national ? tr("State") : tr("Country"));
    {
        const QSignalBlocker quiet(m_place);
        m_place->refill();
        m_place->setText({});
    }
    readFrequent(DataGrid->currentText(u"city"_s));
    readAvailable();
}

void CityPanel::readFrequent(const QString& current)
{
    DataGrid->fill(data().openRecordset(frequentCitiesSql(scope())));
    int found = -1;
    for (int row = 0; found < 0 && !current.isEmpty() && row < DataGrid->rowCount(); ++row) {
        if (DataGrid->textAt(row, u"city"_s) == current)
            found = row;
    }
    DataGrid->setCurrentRow(found);
    DBCombo1->refill();
}

void CityPanel::readAvailable()
{
    m_hint->clear();
    m_available->fill(context().info.openRecordset(
        availableCitiesSql(scope(), m_place->currentText(), Check3->isChecked())));
    m_available->setCurrentRow(m_available->rowCount() > 0 ? 0 : -1);
}

void CityPanel::add()
{
    const QString city = m_available->currentText(u"city"_s);
    if (city.isEmpty())
        return;
    const jet::Step step(data(), tr("adding the city %1").arg(city));
    switch (addFrequentCity(data(), scope(), city)) {
    case CityAdded::Known: return m_hint->setText(tr("%1 is there already.").arg(city));
    case CityAdded::Failed: return m_hint->setText(tr("%1 could not be stored.").arg(city));
    case CityAdded::Yes: break;
    }
    playSound(u"save");
    readFrequent(city);
    m_hint->setText(tr("%1 was added.").arg(city));
    Q_EMIT vocabulariesChanged();
}

void CityPanel::remove()
{
    const int row = DataGrid->currentRow();
    const QString city = DataGrid->currentText(u"city"_s);
    if (row < 0)
        return;
    const jet::Step step(data(), tr("removing the city %1").arg(city));
    switch (removeFrequentCity(data(), scope(), row, city)) {
    case CityRemoved::IsDefault:
        return m_hint->setText(tr("%1 is the default city. Choose another default first.").arg(city));
    case CityRemoved::Failed: return m_hint->setText(tr("%1 could not be removed.").arg(city));
    case CityRemoved::Yes: break;
    }
    playSound(u"Del");
    readFrequent({});
    DataGrid->setCurrentRow(std::min(row, DataGrid->rowCount() - 1));
    m_hint->setText(tr("%1 was removed.").arg(city));
    Q_EMIT vocabulariesChanged();
}

void CityPanel::showDefault()
{
    DBCombo1->setText(data().openRecordset(defaultCitySql()).textOrEmpty(u"city"));
}

void CityPanel::changeDefault()
{
    const QString city = DBCombo1->currentText();
    const jet::Step step(data(), tr("a change of the default city"));
    if (!setDefaultCity(data(), city)) {
        m_hint->setText(notStored(tr("The default city could not be changed.")));
        return showDefault();
    }
    playSound(u"save");
    readFrequent(DataGrid->currentText(u"city"_s));
    m_hint->setText(tr("%1 is the default city.").arg(city));
    Q_EMIT vocabulariesChanged();
}

} // namespace setup
