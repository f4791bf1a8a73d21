#include "telephone/dialer/memory_chooser.h"

#include "core/save_failure.h"
#include "core/vocabularies.h"
#include "telephone/dialer/dialer_statements.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

constexpr QStringView kLongHeadings = u"           |Category             |Sub Category        |City          "
                                      u"            |Name                "
                                      u"                     ";
constexpr QStringView kShortHeadings = u"           |Name                                     ";

struct Option {
    QStringView name;
    QStringView column;
    QStringView tag;
    const char* title; ///< in front of the row that begins with it
    QStringView before = {}; ///< stands in the caption before the number
    int cut = 0; ///< of the caption, when it is stored
};
/// Kept: the second and the third of each work group read the first number again.
constexpr Option kOptions[] = {
    {u"Hph1", u"h_ph1", u"H1", QT_TRANSLATE_NOOP("telephone::MemoryChooser", "Home")},
    {u"Hph2", u"h_ph2", u"H2", nullptr},
    {u"Hph3", u"h_ph3", u"H3", nullptr},
    {u"Bph1", u"w_ph1", u"W1", QT_TRANSLATE_NOOP("telephone::MemoryChooser", "Work 1")},
    {u"Bph2", u"w_ph1", u"W2", nullptr},
    {u"Bph3", u"w_ph1", u"W3", nullptr},
    {u"wph1", u"b_ph1", u"B1", QT_TRANSLATE_NOOP("telephone::MemoryChooser", "Work 2")},
    {u"wph2", u"b_ph1", u"B2", nullptr},
    {u"wph3", u"b_ph1", u"B3", nullptr},
    {u"Mobile", u"mobile", u"Mob", QT_TRANSLATE_NOOP("telephone::MemoryChooser", "Mobile"),
        u"Mobile:          ", 8},
    {u"SpMobile", u"sp_mobile", u"Mob", nullptr, u"Sp.Mobile         ", 10},
};
constexpr int kInARow = 3;

QString all()
{
    return u"All"_s;
}

} // namespace

MemoryChooser::MemoryChooser(core::Context& context, QWidget* parent)
    : QFrame(parent)
    , m_context(context)
    , FG1(new widgets::HeadingGrid)
{
    setObjectName(u"Frame3"_s);
    layOut();
    connectControls();
}

void MemoryChooser::layOut()
{
    FG1->setEmptyText(tr("No contact is as wanted"));
    auto* numbers = new QWidget;
    auto* grid = new QGridLayout(numbers);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    int at = 0;
    for (const Option& option : kOptions) {
        if (option.title)
            grid->addWidget(new QLabel(tr(option.title)), at / kInARow, 0);
        auto* button = new QRadioButton(numbers);
        button->setObjectName(option.name.toString());
        button->setAccessibleName(option.tag.toString());
        grid->addWidget(button, at / kInARow, 1 + at % kInARow);
        grid->setColumnStretch(1 + at % kInARow, 1);
        m_options << button;
        ++at;
    }
    widgets::FormKit form(this);
    form.group()
        .caption(u"lblcaption"_s)
        .beside()
        .caption(u"Label26"_s)
        .fixedCombo(u"cmbcat1"_s, tr("Cate&gory"))
        .beside()
        .fixedCombo(u"cmbcat2"_s, tr("Su&b category"))
        .fixedCombo(u"CmbCity"_s, tr("Ci&ty"))
        .beside()
        .fixedCombo(u"Combo1"_s, tr("&Phone list"))
        .wide(u"FG1"_s, tr("Contacts; Enter or a double click takes one"), FG1)
        .caption(u"lblname"_s, {}, tr("Person"))
        .wide(u"numbers"_s, tr("Number"), numbers);
    form.buttonRow()
        .button(u"CmdExp"_s, tr("&Names only"), u"list", tr("Show the names alone, or all columns"))
        .stretch()
        .button(u"cmdsl"_s, tr("&Save"), u"save", tr("Put the number into the memory"))
        .button(u"CmdHideChooser"_s, tr("Bac&k"), u"cancel", tr("Leave the memory as it is (Esc)"));
    const auto combo = [this](const QString& name) { return child<widgets::FilledCombo>(this, name); };
    cmbcat1 = combo(u"cmbcat1"_s);
    cmbcat2 = combo(u"cmbcat2"_s);
    CmbCity = combo(u"CmbCity"_s);
    Combo1 = combo(u"Combo1"_s);
    lblname = child<QLabel>(this, u"lblname"_s);
    cmdsl = child<QPushButton>(this, u"cmdsl"_s);
}

void MemoryChooser::connectControls()
{
    const auto offer = [this](widgets::FilledCombo* combo, const std::function<QString()>& sql) {
        combo->setSource([this, sql] {
            QStringList values = core::firstColumn(m_context.data, sql());
            values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
            return QStringList{all()} + values;
        });
    };
    offer(cmbcat1, &peopleCategoriesSql);
    offer(cmbcat2, [this] { return memorySubcategoriesSql(cmbcat1->currentText()); });
    offer(CmbCity,
        [] { return u"select distinct h_city from cnt_main where len(h_city)<>0 order by h_city"_s; });
    offer(Combo1, &phoneListNamesSql);
    connect(cmbcat1, &QComboBox::currentTextChanged, this, [this] {
        cmbcat2->refill();
        cmbcat2->setText(all());
        readGrid();
    });
    for (widgets::FilledCombo* combo : {cmbcat2, CmbCity})
        connect(combo, &QComboBox::currentTextChanged, this, &MemoryChooser::readGrid);
    connect(Combo1, &QComboBox::currentTextChanged, this, [this](const QString& list) {
        if (m_isFilling || list.isEmpty() || list == all())
            return readGrid();
        FG1->fill(m_context.data.openRecordset(contactsOfPhoneListSql(list)));
    });
    connect(FG1, &widgets::HeadingGrid::chosen, this, &MemoryChooser::choosePerson);
    connect(child<QPushButton>(this, u"CmdExp"_s), &QPushButton::clicked, this, [this] {
        m_isShort = !m_isShort;
        showColumns();
    });
    connect(cmdsl, &QPushButton::clicked, this, &MemoryChooser::save);
    connect(child<QPushButton>(this, u"CmdHideChooser"_s), &QPushButton::clicked, this,
        &MemoryChooser::cancelled);
}

void MemoryChooser::open(const QString& list, int slot)
{
    m_list = list;
    m_slot = slot;
    child<QLabel>(this, u"lblcaption"_s)->setText(u"List       :   "_s + list);
    child<QLabel>(this, u"Label26"_s)->setText(u"Memory  :  "_s + QString::number(slot + 1));
    m_isFilling = true;
    for (widgets::FilledCombo* combo : {cmbcat1, cmbcat2, CmbCity, Combo1}) {
        combo->refill();
        combo->setText(all());
    }
    m_isFilling = false;
    forgetPerson();
    showColumns();
    FG1->fill(m_context.data.openRecordset(u"select * from CNT_MAIN order by CATEGORY1"_s));
    FG1->setFocus();
}

void MemoryChooser::readGrid()
{
    if (!m_isFilling)
        FG1->fill(m_context.data.openRecordset(
            memoryContactsSql({cmbcat1->currentText(), cmbcat2->currentText(), CmbCity->currentText()})));
}

void MemoryChooser::showColumns()
{
    if (m_isShort)
        FG1->setHeadings(kShortHeadings, {QString(), u"name"_s});
    else
        FG1->setHeadings(kLongHeadings, {QString(), u"category1"_s, u"category2"_s, u"h_city"_s, u"name"_s});
    child<QPushButton>(this, u"CmdExp"_s)->setText(m_isShort ? tr("All colum&ns") : tr("&Names only"));
}

void MemoryChooser::forgetPerson()
{
    m_person = 0;
    m_name.clear();
    m_captions.clear();
    lblname->setText(tr("Choose a contact in the list, then one of its numbers"));
    for (QRadioButton* option : m_options) {
        option->setText({});
        option->setEnabled(false);
    }
    m_options[0]->setChecked(true);
    cmdsl->setEnabled(false);
}

void MemoryChooser::choosePerson(int row)
{
    forgetPerson();
    m_person = FG1->keyAt(row);
    m_name = FG1->textAt(row, u"name"_s);
    lblname->setText(m_name);
    int first = -1;
    for (int i = 0; i < m_options.size(); ++i) {
        const QString number = FG1->textAt(row, kOptions[i].column.toString());
        m_captions << kOptions[i].before.toString() + number;
        m_options[i]->setText(number.isEmpty() ? QString() : QString(m_captions[i]).replace(u'&', u"&&"_s));
        m_options[i]->setEnabled(!number.isEmpty());
        if (!number.isEmpty() && first < 0)
            first = i;
    }
    if (first < 0)
        return lblname->setText(tr("%1 has no telephone number").arg(m_name));
    m_options[first]->setChecked(true);
    m_options[first]->setFocus();
    cmdsl->setEnabled(true);
}

void MemoryChooser::save()
{
    int chosen = 0;
    while (!m_options[chosen]->isChecked())
        ++chosen;
    const Option& option = kOptions[chosen];
    const jet::Step step(m_context.data, tr("a number in the memory"));
    jet::Recordset row = m_context.data.openRecordset(memoryStoreSql(m_list, m_slot));
    if (row.hasRow())
        row.edit();
    else
        row.addNew();
    row.set(u"PerId", m_person);
    row.set(u"List", m_list);
    row.set(u"cmbnum", m_slot);
    row.set(u"phonenum", m_captions[chosen].mid(option.cut).trimmed());
    row.set(u"Name", m_name + u'-' + option.tag.toString());
    if (!row.update())
        return core::tellFailedSave(m_context);
    Q_EMIT saved(m_slot);
}

} // namespace telephone
