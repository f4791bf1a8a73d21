#include "entry/duplicator/FrmDuplicator.h"

#include "core/frame.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "entry/duplicator/duplicate_columns.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace entry {

namespace {

constexpr QStringView kFilter = u"frmFilter";

} // namespace

FrmDuplicator::FrmDuplicator(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , DBCombo1(new widgets::RecordList)
{
    setWindowTitle(tr("Record Duplicator"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(layOutSource());
    splitter->addWidget(layOutDuplicate());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({300, 700});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(splitter);
    setFocusProxy(DBCombo1);
    connectControls();
}

FrmDuplicator::~FrmDuplicator() = default;

QWidget* FrmDuplicator::layOutSource()
{
    DBCombo1->setObjectName(u"DBCombo1"_s);
    DBCombo1->setAccessibleName(tr("Contacts"));
    DBCombo1->setEmptyText(tr("No contacts here"));
    m_listCategory = new widgets::FilledCombo(nullptr, widgets::FilledCombo::Typing::ListOnly);
    m_listCategory->setObjectName(u"cboCateg"_s);
    m_listCategory->setAccessibleName(tr("Category of the list"));
    m_listCategory->setToolTip(tr("List only the contacts of a category"));
    auto* label = new QLabel(tr("&List"));
    label->setBuddy(m_listCategory);
    auto* filter = new QToolButton;
    filter->setObjectName(u"CmdFilter"_s);
    widgets::setIcon(filter, u"filter");
    filter->setAutoRaise(true);
    filter->setAccessibleName(tr("Filter"));
    const bool hasFilter = context().screens.has(kFilter);
    filter->setEnabled(hasFilter);
    filter->setToolTip(hasFilter ? tr("Filter the list") : tr("%1\nNot available yet").arg(tr("Filter")));
    auto* head = new QHBoxLayout;
    head->addWidget(label);
    head->addWidget(m_listCategory, 1);
    head->addWidget(filter);
    auto* side = new QWidget;
    side->setMinimumWidth(220);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addLayout(head);
    layout->addWidget(DBCombo1, 1);
    return side;
}

QWidget* FrmDuplicator::layOutDuplicate()
{
    auto* names = new QGroupBox(tr("Name for new record"));
    auto* grid = new QGridLayout(names);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const DuplicateChoice& choice : duplicateChoices()) {
        auto* option = new QRadioButton(QCoreApplication::translate("entry", choice.caption));
        option->setObjectName(choice.option.toString());
        auto* name = new QLabel;
        name->setObjectName(choice.label.toString());
        name->setTextFormat(Qt::PlainText);
        name->setAccessibleName(option->text().remove(u'&'));
        grid->addWidget(option, row, 0);
        grid->addWidget(name, row++, 1);
    }
    auto* side = new QWidget;
    widgets::FormKit form(side);
    form.group().wide(u"FrameNames"_s, tr("Name for new record"), names);
    form.group(tr("Classes of the new record"))
        .combo(u"DBCategory"_s, tr("Cate&gory"))
        .combo(u"DBCSub"_s, tr("S&ub category"))
        .fixedCombo(u"CmbPrio"_s, tr("&Priority"));
    form.group(tr("Copy"))
        .check(u"Check1"_s, tr("&Home address and telephones"))
        .check(u"Check2"_s, tr("&Work addresses and telephones"))
        .check(u"Check4"_s, tr("&E-mail and web addresses"))
        .check(u"Check3"_s, tr("Status, &religion and region"))
        .caption(u"lblComing"_s);
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("Help"), u"help", tr("What this screen is for"))
        .stretch()
        .button(u"CmdDuplicate"_s, tr("&Duplicate"), u"person-add", tr("Make the new contact (Ctrl+S)"))
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    DBCategory = child<widgets::FilledCombo>(side, u"DBCategory"_s);
    DBCSub = child<widgets::FilledCombo>(side, u"DBCSub"_s);
    m_coming = child<QLabel>(side, u"lblComing"_s);
    m_coming->setTextFormat(Qt::PlainText);
    widgets::setKey(child<QPushButton>(side, u"CmdDuplicate"_s), QKeySequence::Save);
    return side;
}

void FrmDuplicator::connectControls()
{
    connect(DBCombo1, &widgets::RecordList::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            showSource(DBCombo1->textAt(row, u"name"_s));
    });
    connect(DBCombo1, &widgets::RecordList::chosen, this,
        [this] { child<QRadioButton>(this, u"OptSpouse"_s)->setFocus(); });
    connect(m_listCategory, &QComboBox::currentTextChanged, this, [this] {
        m_clause.clear();
        readNames();
    });
    connect(DBCategory, &QComboBox::currentTextChanged, DBCSub, &widgets::FilledCombo::refill);
    for (const DuplicateChoice& choice : duplicateChoices())
        connect(child<QRadioButton>(this, choice.option.toString()), &QRadioButton::toggled, this,
            &FrmDuplicator::showWhatComes);
    connect(child<QToolButton>(this, u"CmdFilter"_s), &QToolButton::clicked, this, &FrmDuplicator::askFilter);
    auto* help = child<QPushButton>(this, u"CmdHelp"_s);
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0044"_s, help); });
    connect(
        child<QPushButton>(this, u"CmdDuplicate"_s), &QPushButton::clicked, this, &FrmDuplicator::duplicate);
    connect(child<QPushButton>(this, u"CmdExit"_s), &QPushButton::clicked, this, &Screen::closeRequested);
}

// The names are read, no combo is.
void FrmDuplicator::load()
{
    setFrameTitle(u"Record Duplicator"_s);
    setPosition(u"Record Duplicator"_s);
    const auto values = [this](const QString& sql) { return core::firstColumn(context().data, sql); };
    m_listCategory->setSource([values] { return QStringList{u"All"_s} + values(duplicateCategoriesSql()); });
    m_listCategory->setText(u"All"_s);
    DBCategory->setSource([values] { return values(duplicateCategoriesSql()); });
    DBCSub->setSource(
        [this, values] { return values(duplicateSubcategoriesSql(DBCategory->currentText())); });
    child<widgets::FilledCombo>(this, u"CmbPrio"_s)->setValues({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s});
    const bool business = context().data.openRecordset(u"Select * from ov_Setup"_s).flag(u"Business");
    for (const DuplicateChoice& choice : duplicateChoices()) {
        const bool offered = !(business && choice.isPersonal);
        child<QWidget>(this, choice.option.toString())->setVisible(offered);
        child<QWidget>(this, choice.label.toString())->setVisible(offered);
    }
    child<QRadioButton>(this, business ? u"OptAltPer"_s : u"OptSpouse"_s)->setChecked(true);
    for (const QString& check : {u"Check1"_s, u"Check2"_s, u"Check3"_s, u"Check4"_s})
        child<QCheckBox>(this, check)->setChecked(check == u"Check1");
    readNames();
    showWhatComes();
}

void FrmDuplicator::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

bool FrmDuplicator::showContact(qint64 id)
{
    const jet::Recordset contact
        = context().data.openRecordset(u"select id,name from cnt_main where id=%1"_s.arg(id));
    if (!contact.hasRow())
        return false;
    showSource(contact.textOrEmpty(u"name"));
    return true;
}

void FrmDuplicator::applyFilter(const QString& whereClause)
{
    m_clause = whereClause;
    readNames();
}

void FrmDuplicator::bookChanged()
{
    readNames();
}

void FrmDuplicator::readNames()
{
    const QString category = m_listCategory->currentText();
    DBCombo1->fill(
        context().data.openRecordset(duplicateNamesSql(category == u"All" ? QString() : category, m_clause)));
    DBCombo1->setCurrentRow(-1);
    showSource({});
}

void FrmDuplicator::askFilter()
{
    shared().CallerForm = u"FrmDuplicator"_s;
    context().screens.show(kFilter, core::Shown::Modally);
}

// Kept: the source is looked up by its name, so of two people with one name it is the first.
void FrmDuplicator::showSource(const QString& name)
{
    const jet::Recordset source
        = name.isEmpty() ? jet::Recordset() : context().data.openRecordset(duplicateSourceSql(name));
    m_source = source.hasRow() ? name : QString();
    m_last = source.textOrEmpty(u"Last");
    widgets::setTextOf(child<QWidget>(this, u"CmbPrio"_s), source.textOrEmpty(u"Priority"));
    DBCategory->setText(source.textOrEmpty(u"category1"));
    DBCSub->setText(source.textOrEmpty(u"category2"));
    for (const DuplicateChoice& choice : duplicateChoices())
        child<QLabel>(this, choice.label.toString())->setText(source.textOrEmpty(choice.column));
    child<QPushButton>(this, u"CmdDuplicate"_s)->setEnabled(source.hasRow());
    showWhatComes();
}

const DuplicateChoice* FrmDuplicator::chosen() const
{
    for (const DuplicateChoice& choice : duplicateChoices()) {
        if (child<QRadioButton>(this, choice.option.toString())->isChecked())
            return &choice;
    }
    return nullptr;
}

void FrmDuplicator::showWhatComes()
{
    const DuplicateChoice* choice = chosen();
    if (!choice || m_source.isEmpty())
        return m_coming->setText(tr("Choose a contact on the left, then whose record is to be made."));
    const QString first = widgets::textOf(child<QWidget>(this, choice->label.toString()));
    m_coming->setText(
        tr("The new contact will be called \"%1\".").arg(duplicateName(first, m_last).trimmed()));
}

void FrmDuplicator::duplicate()
{
    const DuplicateChoice* choice = chosen();
    const QString name = m_source;
    if (!choice || name.isEmpty())
        return;
    const QString person = widgets::textOf(child<QWidget>(this, choice->label.toString()));
    if (context().services.boxes.ask(
            tr("This operation will make the record of %1 (%2 of %3) in your contact list")
                .arg(person, choice->word.toString(), name),
            shared().AppTitle)
        != platform::Answer::Yes)
        return;
    const jet::Recordset source = context().data.openRecordset(duplicateSourceSql(name));
    if (!source.hasRow())
        return;
    const auto checked = [this](const QString& check) { return child<QCheckBox>(this, check)->isChecked(); };
    Duplicate made{source.textOrEmpty(choice->column), DBCategory->currentText(), DBCSub->currentText(),
        widgets::textOf(child<QWidget>(this, u"CmbPrio"_s)),
        {.home = checked(u"Check1"_s),
            .work = checked(u"Check2"_s),
            .classes = checked(u"Check3"_s),
            .mail = checked(u"Check4"_s)},
        context().services.clock.today()};
    jet::Recordset rows = context().data.openRecordset(u"select * from cnt_main where 1>2"_s);
    rows.addNew();
    assignDuplicate(rows, source, made);
    if (!rows.update())
        return;
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    m_coming->setText(tr("\"%1\" is a contact now.").arg(duplicateName(made.first, m_last).trimmed()));
}

} // namespace entry
