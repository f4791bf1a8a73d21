#include "views/search/search_filter.h"

#include "core/vocabularies.h"
#include "views/filters/all_combo.h"
#include "views/filters/chosen_value.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QGroupBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QMargins kFrameMargins{10, 6, 10, 8}; // all three frames fit above one another

struct FindCombo {
    QStringView name;
    QStringView list; ///< the combo of the filter with the same values
};

constexpr FindCombo kFindCombos[]
    = {{u"cmbffirst", u"cmbgfirst"}, {u"cmbflast", u"cmbglast"}, {u"CmbFCmpny", u"CmbGCmpny"}};

QStringList withAll(const QStringList& values)
{
    return QStringList{kAll.toString()} + values;
}

} // namespace

SearchFilter::SearchFilter(jet::Database& book, QWidget* parent)
    : QWidget(parent)
{
    Frame2 = layOutFind();
    QGroupBox* filter = layOutFilter();
    Frame1 = layOutAdvanced();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (QGroupBox* frame : {Frame2, filter, Frame1}) {
        frame->layout()->setContentsMargins(kFrameMargins);
        layout->addWidget(frame);
    }
    layout->addStretch(1);
    Frame1->hide();
    Frame2->hide();

    for (auto* combo : findChildren<widgets::FilledCombo*>())
        m_combos.insert(combo->objectName(), combo);
    for (const QString& name : searchLists())
        m_combos[name]->setSource(
            [&book, name] { return withAll(core::firstColumn(book, searchListSql(name))); });
    for (const FindCombo& find : kFindCombos)
        m_combos[find.name.toString()]->setSource(
            [&book, list = find.list] { return withAll(core::firstColumn(book, searchListSql(list))); });
    m_combos[u"cmbgsub"_s]->setSource(
        [this, &book] { return withAll(core::firstColumn(book, subcategoryListSql(text(u"cmbgcat"_s)))); });
    m_combos[u"CmbPrio"_s]->setValues(withAll({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
    reset();
    connectCombos();
}

QGroupBox* SearchFilter::layOutFind()
{
    auto* frame = new QGroupBox(tr("Find"));
    frame->setObjectName(u"Frame2"_s);
    widgets::FormKit form(frame);
    form.combo(u"cmbffirst"_s, tr("First name")).combo(u"cmbflast"_s, tr("Last name"));
    form.combo(u"CmbFCmpny"_s, tr("Company"));
    return frame;
}

QGroupBox* SearchFilter::layOutFilter()
{
    auto* frame = new QGroupBox(tr("Filter"));
    widgets::FormKit form(frame);
    form.combo(u"cmbgcat"_s, tr("&Category"))
        .combo(u"cmbgsub"_s, tr("S&ub category"))
        .combo(u"CmbPrio"_s, tr("&Priority"))
        .combo(u"cmbgcity"_s, tr("C&ity"))
        .combo(u"CmbGCmpny"_s, tr("Compan&y"));
    form.buttonRow()
        .button(
            u"SSCommand1"_s, tr("Advanced Filter"), u"filter", tr("Filter by names and area code as well"))
        .button(u"SSCommand6"_s, tr("Refresh"), u"restore", tr("Set all to \"All\" and show every contact"));
    SSCommand6 = widgets::child<QPushButton>(frame, u"SSCommand6"_s);
    connect(widgets::child<QPushButton>(frame, u"SSCommand1"_s), &QPushButton::clicked, this, [this] {
        Frame1->show();
        m_combos[u"cmbgfirst"_s]->setFocus();
    });
    return frame;
}

QGroupBox* SearchFilter::layOutAdvanced()
{
    auto* frame = new QGroupBox(tr("Advanced Filter"));
    frame->setObjectName(u"Frame1"_s);
    widgets::FormKit form(frame);
    form.combo(u"cmbgfirst"_s, tr("&First name"))
        .combo(u"cmbfl"_s, tr("First, fa&mily"))
        .hint(tr("First name of the contact, the spouse or a child"))
        .combo(u"cmbglast"_s, tr("&Last name"))
        .combo(u"DBCMaiden"_s, tr("Mai&den name"))
        .combo(u"CmbGStd"_s, tr("A&rea code"));
    form.buttonRow().button(u"SSCommand2"_s, tr("Hide"), u"cancel", tr("Hide this part of the filter"));
    connect(
        widgets::child<QPushButton>(frame, u"SSCommand2"_s), &QPushButton::clicked, frame, &QWidget::hide);
    return frame;
}

// Each change counts, also a typed letter: a "*" is looked for as it is typed. Filter and quick search do not
// add up, so what does not count any more shows "All".
void SearchFilter::connectCombos()
{
    for (auto* combo : std::as_const(m_combos))
        takeAllWhole(combo);
    followChoice(m_combos[u"cmbgsub"_s], m_combos[u"cmbgcat"_s]);
    connect(m_combos[u"cmbgfirst"_s], &QComboBox::editTextChanged, this,
        [this] { setQuietly(u"cmbfl"_s, kAll.toString()); });
    connect(m_combos[u"cmbfl"_s], &QComboBox::editTextChanged, this, [this](const QString& chosen) {
        if (chosen == kAll)
            setQuietly(u"cmbgfirst"_s, kAll.toString());
    });
    for (auto* combo : std::as_const(m_combos)) {
        const bool inFind = Frame2->isAncestorOf(combo);
        connect(combo, &QComboBox::editTextChanged, this, [this, inFind] {
            resetWithin(!inFind);
            if (inFind)
                Q_EMIT namesChanged();
            else
                Q_EMIT choicesChanged();
        });
    }
}

SearchChoices SearchFilter::choices() const
{
    return {.category = text(u"cmbgcat"_s),
        .priority = text(u"CmbPrio"_s),
        .subcategory = text(u"cmbgsub"_s),
        .city = text(u"cmbgcity"_s),
        .company = text(u"CmbGCmpny"_s),
        .first = text(u"cmbgfirst"_s),
        .anyFirst = text(u"cmbfl"_s),
        .last = text(u"cmbglast"_s),
        .maiden = text(u"DBCMaiden"_s),
        .areaCode = text(u"CmbGStd"_s)};
}

NameChoices SearchFilter::names() const
{
    return {.first = text(u"cmbffirst"_s), .last = text(u"cmbflast"_s), .company = text(u"CmbFCmpny"_s)};
}

void SearchFilter::reset()
{
    resetWithin(true);
    resetWithin(false);
}

void SearchFilter::resetWithin(bool find)
{
    for (auto combo = m_combos.cbegin(); combo != m_combos.cend(); ++combo) {
        if (Frame2->isAncestorOf(combo.value()) == find)
            setQuietly(combo.key(), kAll.toString());
    }
    m_combos[u"cmbgsub"_s]->refill();
}

void SearchFilter::refill()
{
    for (auto* combo : std::as_const(m_combos))
        combo->refill();
}

void SearchFilter::setFindVisible(bool on)
{
    Frame2->setVisible(on);
    if (on)
        m_combos[u"cmbffirst"_s]->setFocus();
}

void SearchFilter::setQuietly(const QString& combo, const QString& text)
{
    const QSignalBlocker quiet(m_combos[combo]);
    m_combos[combo]->setText(text);
}

QString SearchFilter::text(const QString& combo) const
{
    return m_combos.value(combo)->currentText();
}

} // namespace views
