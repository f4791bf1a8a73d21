#include "views/selector/quick_combos.h"

#include "core/vocabularies.h"
#include "views/filters/filter_clauses.h"
#include "widgets/filled_combo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace views {

QuickCombos::QuickCombos(jet::Database& book, QWidget* parent)
    : QFrame(parent)
    , m_book(book)
    , cboCity(addCombo(u"cboCity"_s))
    , cboPriority(addCombo(u"cboPriority"_s))
    , cboCateg(addCombo(u"cboCateg"_s))
    , cboSubCateg(addCombo(u"cboSubCateg"_s))
{
    setObjectName(u"Frame1"_s);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    const std::pair<QString, widgets::FilledCombo*> rows[] = {{tr("C&ity"), cboCity},
        {tr("&Priority"), cboPriority}, {tr("Cate&gory"), cboCateg}, {tr("S&ub category"), cboSubCateg}};
    QWidget* before = nullptr;
    for (const auto& [text, combo] : rows) {
        auto* label = new QLabel(text);
        label->setBuddy(combo);
        combo->setAccessibleName(QString(text).remove(u'&'));
        combo->setToolTip(tr("Show only the contacts that have this"));
        if (before) {
            layout->addSpacing(8);
            setTabOrder(before, combo);
        }
        layout->addWidget(label);
        layout->addWidget(combo, combo == cboPriority ? 0 : 1);
        before = combo;
    }
    setSources();
    // Each change counts, whoever makes it; a category brings its own subcategories.
    connect(cboCateg, &QComboBox::currentTextChanged, this, [this] {
        m_categoryChanged = true;
        const QSignalBlocker quiet(cboSubCateg);
        cboSubCateg->setCurrentIndex(0);
        cboSubCateg->refill();
    });
    for (auto* combo : {cboCity, cboPriority, cboCateg, cboSubCateg})
        connect(combo, &QComboBox::currentTextChanged, this, &QuickCombos::choicesChanged);
}

widgets::FilledCombo* QuickCombos::addCombo(const QString& name)
{
    auto* combo = new widgets::FilledCombo(this, widgets::FilledCombo::Typing::ListOnly);
    combo->setObjectName(name);
    combo->setValues({u"All"_s});
    combo->setCurrentIndex(0);
    return combo;
}

void QuickCombos::setSources()
{
    const auto withAll
        = [this](const QString& sql) { return QStringList{u"All"_s} + core::firstColumn(m_book, sql); };
    cboPriority->setValues(quickPriorities());
    cboCity->setSource([withAll] { return withAll(quickCitiesSql()); });
    cboCateg->setSource([withAll] { return withAll(quickCategoriesSql()); });
    cboSubCateg->setSource([this, withAll] {
        return withAll(
            m_categoryChanged ? quickSubcategoriesSql(cboCateg->currentText()) : quickSubcategoriesSql());
    });
}

QuickChoices QuickCombos::choices() const
{
    return {cboCity->currentText(), cboPriority->currentText(), cboCateg->currentText(),
        cboSubCateg->currentText()};
}

bool QuickCombos::isAll() const
{
    return quickClause(choices()).isEmpty();
}

void QuickCombos::reset()
{
    for (auto* combo : {cboCity, cboPriority, cboCateg, cboSubCateg}) {
        const QSignalBlocker quiet(combo);
        combo->setCurrentIndex(0);
    }
    cboSubCateg->refill();
}

void QuickCombos::refill()
{
    for (auto* combo : {cboCity, cboCateg, cboSubCateg})
        combo->refill();
}

} // namespace views
