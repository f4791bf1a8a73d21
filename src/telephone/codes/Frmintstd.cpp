#include "telephone/codes/Frmintstd.h"

#include "core/sql_text.h"
#include "core/vocabularies.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr QStringView kPlaceHeadings = u"|City                      |State        |Country                 ";
const QStringList kPlaceColumns{u"city"_s, u"state"_s, u"country"_s};

enum Tab { kCountries, kStates, kCities };
struct TabRow {
    const char* caption;
    QString (*sql)();
    const char16_t* column;
};
constexpr TabRow kTabs[] = {
    {QT_TRANSLATE_NOOP("telephone::Frmintstd", "Country"), world::countriesSql, u"country"},
    {QT_TRANSLATE_NOOP("telephone::Frmintstd", "State"), world::statesSql, u"state"},
    {QT_TRANSLATE_NOOP("telephone::Frmintstd", "City"), world::citiesSql, u"city"},
};

} // namespace

Frmintstd::Frmintstd(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , SSActiveTabs1(new QTabBar)
    , list1(new widgets::RecordList)
    , m_places(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Search International Tel & Zip Code"));
    layOut();
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &Frmintstd::showTab);
    connect(list1, &widgets::HeadingGrid::currentRowChanged, this, &Frmintstd::takeListed);
    connect(m_country, &QComboBox::currentTextChanged, this, &Frmintstd::chooseCountry);
    connect(m_state, &QComboBox::currentTextChanged, this, &Frmintstd::chooseState);
    connect(DBCombo2, &QComboBox::currentTextChanged, this, &Frmintstd::showCity);
    for (widgets::FilledCombo* combo : {DBCombo1, DBCombo3})
        connect(combo, &QComboBox::currentTextChanged, this, &Frmintstd::showPlaces);
    connect(Option1, &QRadioButton::toggled, this, &Frmintstd::followKind);
    connect(m_places, &widgets::HeadingGrid::chosen, this, &Frmintstd::takePlace);
    setFocusProxy(m_country);
}

void Frmintstd::layOut()
{
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    for (const TabRow& tab : kTabs)
        SSActiveTabs1->addTab(tr(tab.caption));
    list1->setEmptyText(tr("No places here"));
    m_places->setHeadings(kPlaceHeadings, QStringList{QString()} + kPlaceColumns);
    widgets::FormKit form(this);
    form.group(tr("Places"))
        .wide(u"SSActiveTabs1"_s, tr("Kind of places"), SSActiveTabs1)
        .wide(u"list1"_s, tr("Places"), list1);
    form.nextColumn(2);
    form.group(tr("Codes of a place"))
        .combo(u"dcmbcountry"_s, tr("&Country"))
        .combo(u"dcmbstate"_s, tr("&State"))
        .combo(u"DBCombo2"_s, tr("Cit&y"))
        .readOnly(u"txtisd"_s, tr("Country code"))
        .beside()
        .readOnly(u"txtstd"_s, tr("Tel code"))
        .beside()
        .readOnly(u"txtPin"_s, tr("Form of the zip code"));
    form.group(tr("Places of a code"))
        .radio(u"Option1"_s, tr("PIN CODE"))
        .radio(u"Option2"_s, tr("Tel CODE"))
        .combo(u"DBCombo3"_s, tr("&Form of the zip code"))
        .combo(u"DBCombo1"_s, tr("&Tel code"))
        .caption(u"lblFound"_s, tr("City Coressponding to above Telcode is"))
        .wide(u"FGPlaces"_s, tr("Places with this code"), m_places);
    m_country = child<widgets::FilledCombo>(this, u"dcmbcountry"_s);
    m_state = child<widgets::FilledCombo>(this, u"dcmbstate"_s);
    DBCombo1 = child<widgets::FilledCombo>(this, u"DBCombo1"_s);
    DBCombo2 = child<widgets::FilledCombo>(this, u"DBCombo2"_s);
    DBCombo3 = child<widgets::FilledCombo>(this, u"DBCombo3"_s);
    txtisd = child<QLineEdit>(this, u"txtisd"_s);
    txtstd = child<QLineEdit>(this, u"txtstd"_s);
    txtPin = child<QLineEdit>(this, u"txtPin"_s);
    Option1 = child<QRadioButton>(this, u"Option1"_s);
    Option2 = child<QRadioButton>(this, u"Option2"_s);
    m_found = child<QLabel>(this, u"lblFound"_s);
}

void Frmintstd::load()
{
    setFrameTitle(windowTitle());
    offerValues();
    setQuietly(m_country, u"All"_s);
    setQuietly(m_state, u"All"_s);
    Option2->setChecked(true);
    followKind();
    showTab();
}

void Frmintstd::offerValues()
{
    const auto offer = [this](widgets::FilledCombo* combo, bool hasAll, auto sql) {
        combo->setSource([this, hasAll, sql] {
            QStringList values = core::firstColumn(context().info, sql());
            values.removeIf([](const QString& value) { return value.isEmpty(); });
            return hasAll ? QStringList{u"All"_s} + values : values;
        });
    };
    offer(m_country, true, world::countriesSql);
    offer(m_state, true, [this] { return world::statesOfSql(m_country->currentText()); });
    offer(DBCombo2, false, [this] {
        return core::isAll(m_state->currentText()) ? world::citiesOfCountrySql(m_country->currentText())
                                                   : world::citiesOfStateSql(m_state->currentText());
    });
    offer(DBCombo1, false, [] { return world::codesSql(CodeKind::Telephone); });
    offer(DBCombo3, false, [] { return world::codesSql(CodeKind::Pin); });
}

CodeKind Frmintstd::kind() const
{
    return Option2->isChecked() ? CodeKind::Telephone : CodeKind::Pin;
}

QString Frmintstd::firstText(const QString& sql) const
{
    const jet::Recordset rows = context().info.openRecordset(sql);
    return rows.hasRow() ? rows.textAt(0) : QString();
}

void Frmintstd::setQuietly(widgets::FilledCombo* combo, const QString& text)
{
    const QSignalBlocker quiet(combo);
    combo->setText(text);
}

void Frmintstd::showTab()
{
    const TabRow& tab = kTabs[SSActiveTabs1->currentIndex()];
    list1->fill(u"Places"_s, context().info.openRecordset(tab.sql()), {QString::fromUtf16(tab.column)});
    list1->setCurrentRow(-1);
}

void Frmintstd::takeListed(int row)
{
    const int tab = SSActiveTabs1->currentIndex();
    const QString place = row < 0 ? QString() : list1->textAt(row, QString::fromUtf16(kTabs[tab].column));
    if (place.isEmpty())
        return;
    (tab == kCountries ? m_country : tab == kStates ? m_state : DBCombo2)->setText(place);
}

void Frmintstd::chooseCountry()
{
    setQuietly(m_state, u"All"_s);
    setQuietly(DBCombo2, {});
    m_state->refill();
    DBCombo2->refill();
    txtstd->clear();
    showCountryCode(m_country->currentText());
}

void Frmintstd::showCountryCode(const QString& country)
{
    txtisd->setText(firstText(world::countryCodeSql(country)));
    const auto facts = context().info.openRecordset(
        u"Select zip from wia_globalmas where country ='"_s + core::inQuotes(country) + u'\'');
    txtPin->setText(facts.textOrEmpty(u"zip"));
}

void Frmintstd::chooseState()
{
    setQuietly(DBCombo2, {});
    DBCombo2->refill();
    txtstd->clear();
    if (core::isAll(m_state->currentText()))
        return;
    const QString country = firstText(world::countryOfStateSql(m_state->currentText()));
    if (country.isEmpty())
        return;
    setQuietly(m_country, country);
    m_state->refill();
    showCountryCode(country);
}

// Of several cities with one name it is the one in the state that is chosen, or the first.
void Frmintstd::showCity()
{
    const QString city = DBCombo2->currentText().trimmed();
    jet::Recordset facts = context().info.openRecordset(world::cityFactsSql(city));
    int found = 0;
    while (
        found < facts.count() && facts.textAt(found, facts.columnIndex(u"state")) != m_state->currentText())
        ++found;
    found = found < facts.count() ? found : 0;
    facts.moveTo(found);
    txtstd->setText(facts.textOrEmpty(u"cityisd"));
    if (!facts.hasRow())
        return;
    const QString country = firstText(
        found > 0 ? world::countryOfIdSql(facts.textOrEmpty(u"country id")) : world::countryOfCitySql(city));
    setQuietly(m_country, country);
    setQuietly(m_state, facts.textOrEmpty(u"state"));
    m_state->refill();
    showCountryCode(country);
}

void Frmintstd::showPlaces()
{
    const bool isCode = kind() == CodeKind::Telephone;
    const QString code = (isCode ? DBCombo1 : DBCombo3)->currentText().trimmed();
    QList<QStringList> places;
    if (!code.isEmpty() && !isCode) {
        for (const QString& country : core::firstColumn(context().info, world::countriesOfPinSql(code)))
            places << QStringList{QString(), QString(), country};
    } else if (!code.isEmpty()) {
        const jet::Recordset cities = context().info.openRecordset(world::placesOfCodeSql(code));
        QHash<QString, QString> countries;
        for (int row = 0; row < cities.count(); ++row) {
            const auto text
                = [&](QStringView column) { return cities.textAt(row, cities.columnIndex(column)); };
            const QString id = text(u"country id");
            if (!id.isEmpty() && !countries.contains(id))
                countries.insert(id, firstText(world::countryOfIdSql(id)));
            places << QStringList{text(u"city"), text(u"state"), countries.value(id)};
        }
    }
    m_places->setEmptyText(code.isEmpty() ? tr("Enter a code") : tr("No place has this code"));
    m_places->setRows(places, kPlaceColumns);
}

void Frmintstd::followKind()
{
    const bool isCode = kind() == CodeKind::Telephone;
    DBCombo1->setEnabled(isCode);
    DBCombo3->setEnabled(!isCode);
    m_found->setText(
        isCode ? tr("City Coressponding to above Telcode is") : tr("Countries with such a zip code are"));
    showPlaces();
}

void Frmintstd::takePlace(int row)
{
    const QString city = m_places->textAt(row, u"city"_s);
    if (city.isEmpty())
        return m_country->setText(m_places->textAt(row, u"country"_s));
    setQuietly(m_state, m_places->textAt(row, u"state"_s));
    setQuietly(DBCombo2, city);
    showCity();
}

} // namespace telephone
