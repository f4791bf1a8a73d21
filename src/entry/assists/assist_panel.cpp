#include "entry/assists/assist_panel.h"

#include "core/vocabularies.h"
#include "widgets/key_pad.h"
#include "widgets/record_list.h"

#include <QGroupBox>
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
    , m_cities(new CityScopePanel(info, tr("In&dia"), CityScopePanel::MainCities::Offered, this))
    , CboFilter(named(new widgets::RecordList(this), u"CboFilter"_s))
    , m_keys(new widgets::KeyPad(u"Command9"_s))
{
    setObjectName(u"assistPanel"_s);
    for (const QString& title : {tr("City"), tr("First"), tr("Last"), tr("Company")})
        SSActiveTabs1->addTab(title);
    SSActiveTabs1->setExpanding(true);
    layOut();
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &AssistPanel::fillValues);
    connect(m_cities, &CityScopePanel::scopeChosen, this, &AssistPanel::scopeChosen);
    connect(m_cities, &CityScopePanel::changed, this, &AssistPanel::fillValues);
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
    auto* pad = new QGroupBox(tr("Key pad"), this);
    pad->setObjectName(u"Framekeypad"_s);
    auto* padLayout = new QVBoxLayout(pad);
    padLayout->addWidget(m_keys);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(6, 0, 0, 0);
    whole->addWidget(SSActiveTabs1);
    whole->addWidget(m_cities);
    whole->addWidget(CboFilter, 1);
    whole->addWidget(pad);
    setFixedWidth(262);
}

void AssistPanel::selectScope(CityScope scope)
{
    m_cities->select(scope);
    // A country is needed at once, for the address sets of the form.
    if (isVisible() || scope != CityScope::All)
        m_cities->fill();
}

QString AssistPanel::country() const
{
    return m_cities->country();
}

void AssistPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_cities->isFilled())
        m_cities->fill();
}

void AssistPanel::fillValues()
{
    const auto tab = Tab(SSActiveTabs1->currentIndex());
    m_cities->setVisible(tab == Tab::City);
    if (!isVisible())
        return;
    const bool national = m_shared.NationalMode;
    QString sql;
    switch (tab) {
    case Tab::City: sql = cityListSql(m_cities->choice(national)); break;
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
