#include "views/selector/tree_choices_panel.h"

#include "views/filters/all_combo.h"
#include "views/filters/chosen_value.h"
#include "views/full_view/keyword_panel.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

struct ComboRow {
    QStringView name;
    const char* label;
    QString TreeChoices::*choice;
};

constexpr QStringView kPriority = u"cboPriority";

constexpr ComboRow kCombos[] = {
    {u"cboMain", QT_TRANSLATE_NOOP("views", "&Main name"), &TreeChoices::mainName},
    {u"cboFirst", QT_TRANSLATE_NOOP("views", "&First name"), &TreeChoices::first},
    {u"cboLast", QT_TRANSLATE_NOOP("views", "&Last name"), &TreeChoices::last},
    {u"cboMaiden", QT_TRANSLATE_NOOP("views", "Mai&den name"), &TreeChoices::maiden},
    {u"cboCompany", QT_TRANSLATE_NOOP("views", "Compan&y"), &TreeChoices::company},
    {u"cboCountry", QT_TRANSLATE_NOOP("views", "C&ountry"), &TreeChoices::country},
    {u"cboCity", QT_TRANSLATE_NOOP("views", "C&ity"), &TreeChoices::city},
    {u"cboStd", QT_TRANSLATE_NOOP("views", "Area code"), &TreeChoices::areaCode},
    {u"cboCateg", QT_TRANSLATE_NOOP("views", "&Category"), &TreeChoices::category},
    {u"cboSubCateg", QT_TRANSLATE_NOOP("views", "S&ub category"), &TreeChoices::subcategory},
    {kPriority, QT_TRANSLATE_NOOP("views", "&Priority"), &TreeChoices::priority},
    {u"cboProduct", QT_TRANSLATE_NOOP("views", "Product"), &TreeChoices::product},
    {u"cboRelation", QT_TRANSLATE_NOOP("views", "Relation"), &TreeChoices::relation},
    {u"cboStatus", QT_TRANSLATE_NOOP("views", "Status"), &TreeChoices::status},
};

} // namespace

TreeChoicesPanel::TreeChoicesPanel(jet::Database& book, QWidget* parent)
    : QWidget(parent)
    , m_keyword(new KeywordPanel)
{
    layOut();
    setSources(book);
    reset();
    connectCombos();
    setFocusProxy(m_combos.value(kCombos[0].name.toString()));
}

void TreeChoicesPanel::layOut()
{
    auto* page = new QWidget;
    widgets::FormKit form(page);
    for (const ComboRow& row : kCombos) {
        const QString name = row.name.toString();
        form.combo(
            name, QCoreApplication::translate("views", row.label), {}, widgets::KeyFilter::NoApostrophe);
        m_combos.insert(name, widgets::child<widgets::FilledCombo>(page, name));
    }
    form.buttonRow()
        .button(u"cmdRef"_s, tr("&Refresh"), u"restore", tr("Set all to \"All\" and show every contact"))
        .button(u"cmdKeyWord"_s, tr("&Keyword..."), u"search", tr("Look for a word in many fields"));
    auto* scroller = new QScrollArea;
    scroller->setWidget(page);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_keyword->setObjectName(u"frmkeyword"_s);
    m_keyword->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_keyword);
    layout->addWidget(scroller, 1);
}

void TreeChoicesPanel::setSources(jet::Database& book)
{
    for (const TreeList& list : treeLists()) {
        m_combos[list.combo.toString()]->setSource([this, &book, &list] {
            const auto* narrowing = m_combos.value(list.restrictedBy.toString());
            return valuesWithAll(book, treeListSql(list, narrowing ? narrowing->currentText() : QString()));
        });
    }
    m_combos[kPriority.toString()]->setValues({u"All"_s, u"1&2"_s, u"2&3"_s, u"3&4"_s});
}

// Each change counts, also a typed letter: a "*" is looked for as it is typed.
void TreeChoicesPanel::connectCombos()
{
    for (const TreeList& list : treeLists()) {
        if (auto* narrowing = m_combos.value(list.restrictedBy.toString()))
            followChoice(m_combos[list.combo.toString()], narrowing);
    }
    for (auto* combo : std::as_const(m_combos)) {
        takeAllWhole(combo);
        connect(combo, &QComboBox::editTextChanged, this, &TreeChoicesPanel::choicesChanged);
    }
    connect(widgets::child<QPushButton>(this, u"cmdRef"_s), &QPushButton::clicked, this, [this] {
        reset();
        Q_EMIT choicesChanged();
    });
    connect(widgets::child<QPushButton>(this, u"cmdKeyWord"_s), &QPushButton::clicked, this,
        &TreeChoicesPanel::openKeyword);
    connect(m_keyword, &KeywordPanel::searched, this, &TreeChoicesPanel::keywordWanted);
}

TreeChoices TreeChoicesPanel::choices() const
{
    TreeChoices choices;
    for (const ComboRow& row : kCombos)
        choices.*row.choice = m_combos.value(row.name.toString())->currentText();
    return choices;
}

void TreeChoicesPanel::reset()
{
    for (auto* combo : std::as_const(m_combos)) {
        const QSignalBlocker quiet(combo);
        combo->setText(kAll.toString());
    }
    for (const TreeList& list : treeLists()) {
        if (!list.restrictedBy.isEmpty())
            m_combos[list.combo.toString()]->refill();
    }
}

void TreeChoicesPanel::refill()
{
    for (const TreeList& list : treeLists())
        m_combos[list.combo.toString()]->refill();
}

void TreeChoicesPanel::openKeyword()
{
    m_keyword->open();
}

} // namespace views
