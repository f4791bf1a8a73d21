#include "entry/assist_panel.h"

#include "core/vocabularies.h"
#include "widgets/key_pad.h"
#include "widgets/record_list.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

template <class T> T* named(T* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace

AssistPanel::AssistPanel(jet::Database& info, const core::SharedState& shared, QWidget* parent)
    : QWidget(parent)
    , m_info(info)
    , m_shared(shared)
    , SSActiveTabs1(named(new QTabBar(this), u"SSActiveTabs1"_s))
    , m_cityChoice(new QWidget(this))
    , Option1(named(new QRadioButton(tr("A&ll")), u"Option1"_s))
    , Option2(named(new QRadioButton(tr("U&SA")), u"Option2"_s))
    , Option3(named(new QRadioButton(tr("In&dia")), u"Option3"_s))
    , chkType(named(new QCheckBox(tr("&Main cities only")), u"chkType"_s))
    , cboCountry(named(new QComboBox, u"cboCountry"_s))
    , cboState(named(new QComboBox, u"cboState"_s))
    , CboFilter(named(new widgets::RecordList(this), u"CboFilter"_s))
    , m_keys(new widgets::KeyPad(u"Command9"_s))
{
    setObjectName(u"assistPanel"_s);
    for (const QString& title : {tr("City"), tr("First"), tr("Last"), tr("Company")})
        SSActiveTabs1->addTab(title);
    SSActiveTabs1->setExpanding(true);
    layOut();
    Option1->setChecked(true);

    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &AssistPanel::fillValues);
    const auto choose = [this](CityScope scope) {
        selectScope(scope);
        Q_EMIT scopeChosen(scope == CityScope::All ? QString() : cboCountry->currentText());
    };
    connect(Option1, &QRadioButton::clicked, this, [choose] { choose(CityScope::All); });
    connect(Option2, &QRadioButton::clicked, this, [choose] { choose(CityScope::Usa); });
    connect(Option3, &QRadioButton::clicked, this, [choose] { choose(CityScope::India); });
    connect(chkType, &QCheckBox::toggled, this, [this] { fillScope(); });
    connect(cboCountry, &QComboBox::currentTextChanged, this, &AssistPanel::fillValues);
    connect(cboState, &QComboBox::currentTextChanged, this, &AssistPanel::fillValues);
    const auto pick = [this](int row) {
        Q_EMIT picked(Tab(SSActiveTabs1->currentIndex()), CboFilter->textAt(row, u"Name"_s));
    };
    connect(CboFilter, &widgets::HeadingGrid::chosen, this, pick);
    connect(CboFilter, &QAbstractItemView::clicked, this,
        [pick](const QModelIndex& index) { pick(index.row()); });
    connect(m_keys, &widgets::KeyPad::keyPressed, this, &AssistPanel::keyPressed);
}

void AssistPanel::layOut()
{
    CboFilter->setAccessibleName(tr("Known values"));
    CboFilter->setToolTip(tr("Type to find a value; a click takes it over into the form"));
    auto* scope = new QHBoxLayout;
    for (QRadioButton* option : {Option1, Option2, Option3})
        scope->addWidget(option);
    scope->addStretch();
    auto* choice = new QFormLayout(m_cityChoice);
    choice->setContentsMargins(0, 0, 0, 0);
    choice->addRow(scope);
    choice->addRow(tr("Coun&try"), cboCountry);
    choice->addRow(tr("St&ate"), cboState);
    choice->addRow(chkType);
    for (QComboBox* combo : {cboCountry, cboState}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(12);
        combo->setMaxVisibleItems(16);
    }
    auto* pad = new QGroupBox(tr("Key pad"), this);
    pad->setObjectName(u"Framekeypad"_s);
    auto* padLayout = new QVBoxLayout(pad);
    padLayout->addWidget(m_keys);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(6, 0, 0, 0);
    whole->addWidget(SSActiveTabs1);
    whole->addWidget(m_cityChoice);
    whole->addWidget(CboFilter, 1);
    whole->addWidget(pad);
    setFixedWidth(262);
}

void AssistPanel::selectScope(CityScope scope)
{
    m_scope = scope;
    QRadioButton* const options[] = {Option1, Option2, Option3};
    options[int(scope)]->setChecked(true);
    m_filled = false;
    // A country is needed at once, for the address sets of the form.
    if (isVisible() || scope != CityScope::All)
        fillScope();
}

QString AssistPanel::country() const
{
    return cboCountry->currentText();
}

void AssistPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_filled)
        fillScope();
}

void AssistPanel::fillScope()
{
    m_filled = true;
    const CityScopeLists lists = cityScopeLists(m_info, m_scope, chkType->isChecked());
    const QString country = cboCountry->currentText();
    {
        const QSignalBlocker quietCountry(cboCountry);
        const QSignalBlocker quietState(cboState);
        cboCountry->clear();
        cboCountry->addItems(lists.countries);
        cboCountry->setCurrentIndex(qMax(0, cboCountry->findText(country)));
        cboState->clear();
        cboState->addItems(lists.states);
        cboState->setEnabled(!lists.states.isEmpty());
    }
    fillValues();
}

void AssistPanel::fillValues()
{
    const auto tab = Tab(SSActiveTabs1->currentIndex());
    m_cityChoice->setVisible(tab == Tab::City);
    if (!isVisible())
        return;
    const bool national = m_shared.NationalMode;
    QString sql;
    switch (tab) {
    case Tab::City:
        sql = cityListSql(
            {cboCountry->currentText(), cboState->currentText(), chkType->isChecked(), national});
        break;
    case Tab::First: sql = firstNamesSql(national); break;
    case Tab::Last: sql = lastNamesSql(national); break;
    case Tab::Company: sql = companiesSql(national); break;
    }
    QList<QStringList> rows;
    for (const QString& value : core::firstColumn(m_info, sql))
        rows.append({value});
    CboFilter->setRows(rows, {u"Name"_s});
}

} // namespace entry
