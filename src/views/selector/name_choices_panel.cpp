#include "views/selector/name_choices_panel.h"

#include "views/filters/all_combo.h"
#include "views/filters/chosen_value.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace views {

namespace {

struct ComboRow {
    QStringView name;
    const char* label;
    QStringView list; ///< the combo of the search screen with the same values
    QString TreeChoices::*choice;
};

constexpr ComboRow kCombos[] = {
    {u"cmbffirst", QT_TRANSLATE_NOOP("views", "&First name"), u"cmbgfirst", &TreeChoices::first},
    {u"cmbflast", QT_TRANSLATE_NOOP("views", "&Last name"), u"cmbglast", &TreeChoices::last},
    {u"CmbFCmpny", QT_TRANSLATE_NOOP("views", "Compan&y"), u"CmbGCmpny", &TreeChoices::company},
};

} // namespace

NameChoicesPanel::NameChoicesPanel(jet::Database& book, QWidget* parent)
    : QWidget(parent)
{
    widgets::FormKit form(this);
    for (const ComboRow& row : kCombos) {
        const QString name = row.name.toString();
        form.combo(
            name, QCoreApplication::translate("views", row.label), {}, widgets::KeyFilter::NoApostrophe);
        auto* combo = widgets::child<widgets::FilledCombo>(this, name);
        combo->setSource([&book, &row] { return valuesWithAll(book, searchListSql(row.list)); });
        combo->setText(kAll.toString());
        takeAllWhole(combo);
        connect(combo, &QComboBox::editTextChanged, this, &NameChoicesPanel::choicesChanged);
        m_combos << combo;
    }
    setFocusProxy(m_combos.constFirst());
    form.buttonRow()
        .button(u"SSCommand5"_s, tr("&Refresh"), u"restore", tr("Show every contact again"))
        .button(u"SSCommand2"_s, tr("&Clear"), u"cancel", tr("Empty the names"));
    form.stretch();
    connect(widgets::child<QPushButton>(this, u"SSCommand5"_s), &QPushButton::clicked, this,
        &NameChoicesPanel::allWanted);
    connect(widgets::child<QPushButton>(this, u"SSCommand2"_s), &QPushButton::clicked, this, [this] {
        setTexts({});
        Q_EMIT choicesChanged();
    });
}

TreeChoices NameChoicesPanel::choices() const
{
    TreeChoices choices;
    for (std::size_t i = 0; i < std::size(kCombos); ++i)
        choices.*kCombos[i].choice = m_combos[qsizetype(i)]->currentText();
    return choices;
}

void NameChoicesPanel::reset()
{
    setTexts(kAll.toString());
}

void NameChoicesPanel::refill()
{
    for (widgets::FilledCombo* combo : m_combos)
        combo->refill();
}

void NameChoicesPanel::setTexts(const QString& text)
{
    for (widgets::FilledCombo* combo : m_combos) {
        const QSignalBlocker quiet(combo);
        combo->setText(text);
    }
}

} // namespace views
