#include "core/setup/default_panel.h"

#include "core/setup/category_statements.h"
#include "core/vocabularies.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using widgets::child;
using widgets::KeyFilter;

namespace setup {

namespace {

/// The switches of this tab, in the order in which they stand under each other.
constexpr QStringView kOnSave[] = {u"chkAddFav", u"chkUpdOutlook", u"ChkMerge"};
constexpr QStringView kJournal[] = {u"Check1", u"Check2", u"Check4"};
constexpr int kTopPriority = 1;
constexpr int kLowestPriority = 5;

} // namespace

DefaultPanel::DefaultPanel(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_rules(new QButtonGroup(this))
    , m_fonts(new QButtonGroup(this))
    , m_hint(core::makeHint(u"lblDefaultHint"_s))
{
    widgets::FormKit form(
        this, [this](QStringView column) { return this->context().schema.textSize(u"cntb_setup", column); });
    layOutDefaults(form);
    form.nextColumn();
    layOutFiles(form);
    layOutFont(form);
    setSources();
    connectControls();
}

void DefaultPanel::layOutDefaults(widgets::FormKit& form)
{
    form.group(tr("New contacts"))
        .combo(u"DBCombo3"_s, tr("&Category"), u"categ1"_s, KeyFilter::NoApostrophe)
        .combo(u"DBCombo4"_s, tr("Su&b category"), u"categ2"_s, KeyFilter::NoApostrophe)
        .fixedCombo(u"CmbPri"_s, tr("&Priority"), u"Priority"_s)
        .combo(u"cboPrefix"_s, tr("Company suffi&x"), u"cmpnysuffix"_s, KeyFilter::NoApostrophe)
        .hint(tr("Written when the field is left"))
        .group(tr("Journal categories"))
        .combo(u"txtltcat"_s, tr("Le&tters"), u"ltrcat"_s, KeyFilter::NoApostrophe)
        .combo(u"TxtEMilCat"_s, tr("E-&mails"), u"emilcat"_s, KeyFilter::NoApostrophe)
        .combo(u"CmbAsso"_s, tr("Ass&ociations"), u"assojcat"_s, KeyFilter::NoApostrophe)
        .group(tr("Default Path of VCF Files"))
        .readOnly(u"BFVCF"_s, tr("&Folder"))
        .beside()
        .button(u"CmdVCF"_s, tr("Bro&wse..."), u"folder", tr("Choose the folder of vCard files"))
        .group()
        .button(u"SSCommand12"_s, tr("&Save"), u"save", tr("Store the defaults above (Ctrl+S)"))
        .wide(m_hint->objectName(), tr("Hint"), m_hint);
    widgets::setKey(child<QPushButton>(this, u"SSCommand12"_s), QKeySequence::Save);
    for (const QString& name : {u"txtltcat"_s, u"TxtEMilCat"_s, u"CmbAsso"_s})
        combo(name)->setToolTip(tr("Category and subcategory with \"-\" between"));
    // What may hold two columns takes the length of both.
    for (const QString& name : {u"txtltcat"_s, u"TxtEMilCat"_s, u"CmbAsso"_s})
        combo(name)->lineEdit()->setMaxLength(2 * combo(name)->lineEdit()->maxLength() + 1);
}

void DefaultPanel::layOutFiles(widgets::FormKit& form)
{
    form.group(tr("Copies in the journal"));
    for (const QStringView control : kJournal)
        addSwitch(form, control);
    form.group(tr("When a contact is saved"));
    for (const QStringView control : kOnSave)
        addSwitch(form, control);
    form.group(tr("Letters and photos"));
    for (const StoreRule& rule : storeRules()) {
        auto* option = new QRadioButton(QCoreApplication::translate("setup", rule.caption));
        m_rules->addButton(option, rule.stored);
        form.wide(u"OpCopy_%1"_s.arg(rule.stored), option->text(), option);
    }
    form.button(u"CmdCpyToML"_s, tr("Apply"), u"save", tr("Store what becomes of the files"));
}

void DefaultPanel::layOutFont(widgets::FormKit& form)
{
    form.group(tr("Text size of the lists"));
    for (const GridFont& font : gridFonts()) {
        form.radio(u"Opts_"_s + font.name.toString(), QCoreApplication::translate("setup", font.caption));
        m_fonts->addButton(static_cast<QRadioButton*>(form.last()), font.size);
    }
    form.beside().button(u"SSCommand2"_s, tr("Apply"), u"save", tr("Show all lists in this size"));
}

void DefaultPanel::addSwitch(widgets::FormKit& form, QStringView control)
{
    const Switch& which = switchOf(control);
    form.check(which.control.toString(), QCoreApplication::translate("setup", which.caption))
        .hint(tr("Written at once"));
    connect(static_cast<QCheckBox*>(form.last()), &QCheckBox::clicked, this,
        [this, &which](bool on) { writeSwitch(which, on); });
}

widgets::FilledCombo* DefaultPanel::combo(const QString& name) const
{
    return child<widgets::FilledCombo>(this, name);
}

void DefaultPanel::setSources()
{
    combo(u"DBCombo3"_s)->setSource([this] { return core::firstColumn(data(), treeCategoriesSql()); });
    combo(u"DBCombo4"_s)->setSource([this] {
        return core::firstColumn(data(), treeSubcategoriesSql(combo(u"DBCombo3"_s)->currentText()));
    });
    connect(combo(u"DBCombo3"_s), &QComboBox::currentTextChanged, combo(u"DBCombo4"_s),
        &widgets::FilledCombo::refill);
    QStringList priorities{QString()};
    for (int priority = kTopPriority; priority <= kLowestPriority; ++priority)
        priorities << QString::number(priority);
    combo(u"CmbPri"_s)->setValues(priorities);
    for (const QString& name : {u"txtltcat"_s, u"TxtEMilCat"_s, u"CmbAsso"_s})
        combo(name)->setSource([this] { return core::firstColumn(data(), journalCategoriesSql()); });
    combo(u"cboPrefix"_s)->setSource([this] {
        return core::firstColumn(
            data(), core::vocabularySql(core::Vocabulary::CompanySuffixes, context().shared.NationalMode));
    });
}

void DefaultPanel::connectControls()
{
    const auto onClick = [this](const QString& name, auto handler) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, handler);
    };
    onClick(u"SSCommand12"_s, &DefaultPanel::save);
    onClick(u"CmdVCF"_s, &DefaultPanel::chooseFolder);
    onClick(u"CmdCpyToML"_s, &DefaultPanel::saveStoreRule);
    onClick(u"SSCommand2"_s, &DefaultPanel::saveFont);
    widgets::FilledCombo* suffix = combo(u"cboPrefix"_s);
    connect(suffix, &QComboBox::textActivated, this, &DefaultPanel::writeSuffix);
    connect(suffix->lineEdit(), &QLineEdit::editingFinished, this, &DefaultPanel::writeSuffix);
}

void DefaultPanel::refresh()
{
    const jet::Recordset settings = data().openRecordset(settingsSql());
    const Defaults stored = defaultsOf(settings);
    combo(u"DBCombo3"_s)->setText(stored.category);
    combo(u"DBCombo4"_s)->setText(stored.subcategory);
    combo(u"CmbPri"_s)->setText(stored.priority);
    combo(u"txtltcat"_s)->setText(stored.letters);
    combo(u"TxtEMilCat"_s)->setText(stored.mails);
    combo(u"CmbAsso"_s)->setText(stored.associations);
    widgets::setTextOf(child<QLineEdit>(this, u"BFVCF"_s), stored.cardFolder);
    m_suffix = settings.textOrEmpty(u"cmpnysuffix");
    combo(u"cboPrefix"_s)->setText(m_suffix);
    for (const Switch& which : switches()) {
        if (auto* box = findChild<QCheckBox*>(which.control.toString()))
            box->setChecked(data().openRecordset(switchRowSql(which)).flag(which.column));
    }
    const auto rule = settings.number(u"cpytoml");
    m_rules->button(rule == 1 || rule == 2 ? int(rule) : storeRules().back().stored)->setChecked(true);
    if (QAbstractButton* font = m_fonts->button(context().shared.GridFontSize))
        font->setChecked(true);
    m_shown = defaults();
    m_isRead = true;
    tell({});
}

bool DefaultPanel::isTouched() const
{
    return m_isRead && defaults() != m_shown;
}

Defaults DefaultPanel::defaults() const
{
    Defaults defaults;
    defaults.category = combo(u"DBCombo3"_s)->currentText().trimmed();
    defaults.subcategory = combo(u"DBCombo4"_s)->currentText().trimmed();
    defaults.priority = combo(u"CmbPri"_s)->currentText();
    defaults.letters = combo(u"txtltcat"_s)->currentText();
    defaults.mails = combo(u"TxtEMilCat"_s)->currentText();
    defaults.associations = combo(u"CmbAsso"_s)->currentText();
    defaults.cardFolder = child<QLineEdit>(this, u"BFVCF"_s)->text();
    return defaults;
}

void DefaultPanel::save()
{
    const jet::Step step(data(), tr("a change of the settings"));
    if (!saveDefaults(data(), defaults()))
        return tell(notStored(tr("The defaults could not be stored.")));
    playSound(u"save");
    refresh();
    tell(tr("Saved."));
    Q_EMIT vocabulariesChanged();
}

// The merged entry is known to all screens at once.
void DefaultPanel::writeSwitch(const Switch& which, bool on)
{
    const jet::Step step(data(), tr("a change of the settings"));
    if (!data().execute(switchSql(which, on)))
        return tell(notStored(tr("The choice could not be stored.")));
    if (which.control == u"ChkMerge") {
        context().shared.ContMerge = on;
        Q_EMIT vocabulariesChanged();
    }
}

void DefaultPanel::writeSuffix()
{
    const QString suffix = combo(u"cboPrefix"_s)->currentText();
    if (suffix == m_suffix)
        return;
    if (data().execute(companySuffixSql(suffix)))
        m_suffix = suffix;
}

void DefaultPanel::chooseFolder()
{
    const auto folder = context().services.boxes.folder(tr("Default Path of VCF Files"));
    if (!folder)
        return;
    const QString named = context().services.drive.named(*folder);
    widgets::setTextOf(child<QLineEdit>(this, u"BFVCF"_s), named.isEmpty() ? *folder : named);
}

void DefaultPanel::saveStoreRule()
{
    for (const StoreRule& rule : storeRules()) {
        if (rule.stored != m_rules->checkedId())
            continue;
        if (data().execute(storeRuleSql(rule)).changed == 0)
            return tell(tr("The choice could not be stored."));
        context().shared.PhotoStoreMode = rule.mode.toString();
        playSound(u"save");
        tell(tr("Saved."));
    }
}

void DefaultPanel::saveFont()
{
    const int size = m_fonts->checkedId();
    if (size < 0)
        return tell(tr("Choose a size first."));
    if (!saveGridFont(data(), size))
        return tell(tr("The choice could not be stored."));
    context().shared.GridFontSize = size;
    widgets::setGridFontSize(size);
    playSound(u"save");
    tell(tr("Saved."));
}

void DefaultPanel::tell(const QString& hint)
{
    m_hint->setText(hint);
}

} // namespace setup
