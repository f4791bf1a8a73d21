#include "telephone/codes/frmstd.h"

#include "core/vocabularies.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace telephone {

using widgets::child;

frmstd::frmstd(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_places(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Search India STD & Pin Code"));
    layOut();
    connect(m_state, &QComboBox::currentTextChanged, this, [this] {
        DBCombo2->refill();
        showCodes();
    });
    connect(DBCombo2, &QComboBox::currentTextChanged, this, &frmstd::showCodes);
    for (widgets::FilledCombo* combo : {DBCombo1, DBCombo3})
        connect(combo, &QComboBox::currentTextChanged, this, &frmstd::showPlaces);
    connect(Option1, &QRadioButton::toggled, this, &frmstd::followKind);
    connect(m_places, &widgets::HeadingGrid::chosen, this, &frmstd::takePlace);
    setFocusProxy(DBCombo2);
}

void frmstd::layOut()
{
    m_places->setHeadings(u"|City                      |State                    |Pin   |Tel code ",
        {QString(), u"city"_s, u"state"_s, u"pin prefix"_s, u"std"_s});
    widgets::FormKit form(this);
    form.group(tr("Codes of a city"))
        .combo(u"dcmbstate"_s, tr("&State"))
        .combo(u"DBCombo2"_s, tr("&City"))
        .readOnly(u"txtstd"_s, tr("Tel code"))
        .readOnly(u"txtPin"_s, tr("Pin code"));
    form.nextColumn(2);
    form.group(tr("Cities of a code"))
        .radio(u"Option1"_s, tr("PIN CODE"))
        .radio(u"Option2"_s, tr("Tel CODE"))
        .combo(u"DBCombo3"_s, tr("&Pin code"))
        .combo(u"DBCombo1"_s, tr("&Tel code"))
        .wide(u"FGPlaces"_s, tr("Cities with this code"), m_places);
    m_state = child<widgets::FilledCombo>(this, u"dcmbstate"_s);
    DBCombo1 = child<widgets::FilledCombo>(this, u"DBCombo1"_s);
    DBCombo2 = child<widgets::FilledCombo>(this, u"DBCombo2"_s);
    DBCombo3 = child<widgets::FilledCombo>(this, u"DBCombo3"_s);
    txtstd = child<QLineEdit>(this, u"txtstd"_s);
    txtPin = child<QLineEdit>(this, u"txtPin"_s);
    Option1 = child<QRadioButton>(this, u"Option1"_s);
    Option2 = child<QRadioButton>(this, u"Option2"_s);
}

void frmstd::load()
{
    setFrameTitle(windowTitle());
    const auto offer = [this](widgets::FilledCombo* combo, auto sql) {
        combo->setSource([this, sql] {
            QStringList values = core::firstColumn(context().info, sql());
            values.removeIf([](const QString& value) { return value.isEmpty(); });
            values.removeDuplicates();
            return values;
        });
    };
    offer(DBCombo1, [] { return home::codesSql(CodeKind::Telephone); });
    offer(DBCombo3, [] { return home::codesSql(CodeKind::Pin); });
    offer(DBCombo2, [this] { return home::citiesSql(m_state->currentText()); });
    m_state->setSource(
        [this] { return QStringList{u"All"_s} + core::firstColumn(context().info, home::statesSql()); });
    m_state->setText(u"All"_s);
    Option2->setChecked(true);
    followKind();
}

CodeKind frmstd::kind() const
{
    return Option2->isChecked() ? CodeKind::Telephone : CodeKind::Pin;
}

// Of two cities with one name it is the one in the state that is chosen, or the first.
void frmstd::showCodes()
{
    jet::Recordset rows = context().info.openRecordset(home::cityFactsSql(DBCombo2->currentText().trimmed()));
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.textAt(row, rows.columnIndex(u"state")) == m_state->currentText() && rows.moveTo(row))
            break;
    }
    txtstd->setText(rows.textOrEmpty(u"std"));
    txtPin->setText(rows.textOrEmpty(u"pin prefix"));
}

void frmstd::showPlaces()
{
    const QString code = (kind() == CodeKind::Telephone ? DBCombo1 : DBCombo3)->currentText().trimmed();
    m_places->setEmptyText(code.isEmpty() ? tr("Enter a code") : tr("No city has this code"));
    if (code.isEmpty())
        m_places->clearRows();
    else
        m_places->fill(context().info.openRecordset(home::placesOfCodeSql(kind(), code)));
}

void frmstd::followKind()
{
    DBCombo1->setEnabled(kind() == CodeKind::Telephone);
    DBCombo3->setEnabled(kind() == CodeKind::Pin);
    showPlaces();
}

void frmstd::takePlace(int row)
{
    m_state->setText(m_places->textAt(row, u"state"_s));
    DBCombo2->setText(m_places->textAt(row, u"city"_s));
}

} // namespace telephone
