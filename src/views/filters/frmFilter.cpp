#include "views/filters/frmFilter.h"

#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QShowEvent>

using namespace Qt::StringLiterals;
using widgets::child;
using widgets::KeyFilter;

namespace views {

namespace {

constexpr FilterKind kCommonFilter{FilterForm::Common, u"C0014", true};
constexpr int kLeastWidth = 460;

struct ComboLabel {
    QStringView control;
    const char* label;
};

constexpr ComboLabel kComboLabels[] = {
    {u"cboCateg", QT_TRANSLATE_NOOP("views", "C&ategory")},
    {u"cboSubCateg", QT_TRANSLATE_NOOP("views", "&Subcategory")},
    {u"cboPriority", QT_TRANSLATE_NOOP("views", "&Priority")},
    {u"cboStatus", QT_TRANSLATE_NOOP("views", "S&tatus")},
    {u"cboRegion", QT_TRANSLATE_NOOP("views", "&Region")},
    {u"cboRelation", QT_TRANSLATE_NOOP("views", "Re&lation")},
    {u"cboCountry", QT_TRANSLATE_NOOP("views", "C&ountry")},
    {u"cboCity", QT_TRANSLATE_NOOP("views", "&City")},
};

} // namespace

frmFilter::frmFilter(core::Context& context, QWidget* parent)
    : FilterScreen(context, kCommonFilter, parent)
{
    setWindowTitle(tr("Contacts - Common Filter"));
    setMinimumWidth(kLeastWidth);
    widgets::FormKit form(this);
    form.group(tr("Look for a word"))
        .line(u"txtkey"_s, tr("&Keyword"), {}, KeyFilter::NoApostrophe)
        .caption(u"lblKeyword"_s,
            tr("In names, addresses, categories and the like. With a keyword the choices below do not "
               "count."));
    txtkey = child<QLineEdit>(this, u"txtkey"_s);
    txtkey->setClearButtonEnabled(true);

    form.group(tr("Or choose"));
    for (const ComboLabel& row : kComboLabels) {
        const QString name = row.control.toString();
        form.combo(name, QCoreApplication::translate("views", row.label), {}, KeyFilter::NoApostrophe);
        m_combos.insert(name, child<widgets::FilledCombo>(this, name));
    }
    layOutButtons(form);
}

// The values are read when a list drops down.
void frmFilter::load()
{
    for (const FilterList& list : commonFilterLists()) {
        m_combos[list.control.toString()]->setSource(
            [this, sql = list.sql.toString()] { return offeredValues(sql); });
    }
    chooseAll();
}

QString frmFilter::whereClause() const
{
    return commonFilterClause(txtkey->text(), choices());
}

FilterChoices frmFilter::choices() const
{
    FilterChoices choices;
    for (auto combo = m_combos.begin(); combo != m_combos.end(); ++combo)
        choices.insert(combo.key(), combo.value()->currentText());
    return choices;
}

void frmFilter::chooseAll()
{
    for (widgets::FilledCombo* combo : std::as_const(m_combos))
        combo->setText(u"All"_s);
}

void frmFilter::showEvent(QShowEvent* event)
{
    FilterScreen::showEvent(event);
    if (!event->spontaneous())
        txtkey->setFocus();
}

} // namespace views
