#include "entry/assists/city_scope.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

template <class T> T* named(T* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace

CityScopePanel::CityScopePanel(
    jet::Database& info, const QString& indiaCaption, MainCities mainCities, QWidget* parent)
    : QWidget(parent)
    , m_info(info)
    , Option1(named(new QRadioButton(tr("A&ll")), u"Option1"_s))
    , Option2(named(new QRadioButton(tr("U&SA")), u"Option2"_s))
    , Option3(named(new QRadioButton(indiaCaption), u"Option3"_s))
    , chkType(named(new QCheckBox(tr("&Main cities only"), this), u"chkType"_s))
    , cboCountry(named(new QComboBox, u"cboCountry"_s))
    , cboState(named(new QComboBox, u"cboState"_s))
{
    layOut(mainCities);
    Option1->setChecked(true);
    const auto choose = [this](CityScope scope) {
        select(scope);
        fill();
        Q_EMIT scopeChosen(scope == CityScope::All ? QString() : cboCountry->currentText());
    };
    connect(Option1, &QRadioButton::clicked, this, [choose] { choose(CityScope::All); });
    connect(Option2, &QRadioButton::clicked, this, [choose] { choose(CityScope::Usa); });
    connect(Option3, &QRadioButton::clicked, this, [choose] { choose(CityScope::India); });
    connect(chkType, &QCheckBox::toggled, this, &CityScopePanel::fill);
    connect(cboCountry, &QComboBox::currentTextChanged, this, &CityScopePanel::changed);
    connect(cboState, &QComboBox::currentTextChanged, this, &CityScopePanel::changed);
}

void CityScopePanel::layOut(MainCities mainCities)
{
    auto* scope = new QHBoxLayout;
    for (QRadioButton* option : {Option1, Option2, Option3})
        scope->addWidget(option);
    scope->addStretch();
    auto* choice = new QFormLayout(this);
    choice->setContentsMargins(0, 0, 0, 0);
    choice->addRow(scope);
    choice->addRow(tr("Coun&try"), cboCountry);
    choice->addRow(tr("St&ate"), cboState);
    if (mainCities == MainCities::Offered)
        choice->addRow(chkType);
    else
        chkType->hide();
    for (QComboBox* combo : {cboCountry, cboState}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(8);
        combo->setMaxVisibleItems(16);
    }
}

void CityScopePanel::select(CityScope scope)
{
    m_scope = scope;
    QRadioButton* const options[] = {Option1, Option2, Option3};
    options[int(scope)]->setChecked(true);
    m_filled = false;
    const QSignalBlocker quiet(cboCountry);
    cboCountry->clear();
}

void CityScopePanel::fill()
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
    Q_EMIT changed();
}

QString CityScopePanel::country() const
{
    return cboCountry->currentText();
}

CityChoice CityScopePanel::choice(bool nationalMode) const
{
    return {cboCountry->currentText(), cboState->currentText(), chkType->isChecked(), nationalMode};
}

} // namespace entry
