#include "letters/lists/FormMailList.h"

#include "core/contact_lookups.h"
#include "core/contact_tools.h"
#include "core/frame.h"
#include "core/handover/contacts_target.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "letters/lists/list_members.h"
#include "letters/lists/mail_letter.h"
#include "letters/lists/mail_list_tools.h"
#include "letters/lists/mail_tabs.h"
#include "letters/lists/member_pane.h"
#include "letters/lists/print_dialog.h"
#include "letters/lists/save_list.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/storage.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kPicker = u"FrmMailLstAdd";
constexpr QStringView kGroupLetter = u"FrmGrpLetter";
constexpr QStringView kExported = u"C:\\OVUserFiles\\Exported Files";
constexpr QStringView kLetter = u"C:\\OVUserFiles\\Exported Files\\Mail.rtf";

QPushButton* buttonOf(const QString& name, const QString& text, QStringView icon, const QString& toolTip)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    if (!icon.isEmpty())
        widgets::setIcon(button, icon);
    return button;
}

struct Option {
    QStringView name;
    const char* text;
};
/// In the order of the formats of a grid.
constexpr Option kFormats[] = {
    {u"Option6", QT_TRANSLATE_NOOP("letters::FormMailList", "Save as E&xcel")},
    {u"Option8", QT_TRANSLATE_NOOP("letters::FormMailList", "Save as CS&V")},
    {u"Option7", QT_TRANSLATE_NOOP("letters::FormMailList", "Save as &TXT")},
};
constexpr Option kAddresses[] = {
    {u"optadd_1", QT_TRANSLATE_NOOP("letters::FormMailList", "&Home")},
    {u"optadd_2", QT_TRANSLATE_NOOP("letters::FormMailList", "Work &1")},
    {u"optadd_3", QT_TRANSLATE_NOOP("letters::FormMailList", "Work &2")},
};

} // namespace

FormMailList::FormMailList(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, mailListTools(),
          {.callerForm = u"FormMailList"_s,
              .chosen =
                  [this] {
                      const qint64 id = m_members->currentId();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , m_members(new MemberPane(context))
    , m_print(new PrintDialog(context, this))
    , SSActiveTabs1(new QTabBar)
    , list1(new widgets::HeadingGrid)
    , m_filters(new QWidget)
    , m_listTools(new QWidget)
    , cmbRelation(new widgets::FilledCombo)
    , m_formats(new QButtonGroup(this))
    , m_addresses(new QButtonGroup(this))
{
    setWindowTitle(tr("Mail List"));
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setAccessibleName(tr("Kinds of groups"));
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    for (const MailTabTexts& row : mailTabs())
        SSActiveTabs1->addTab(row.caption());
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    m_groups = layOutGroups();
    splitter->addWidget(m_groups);
    splitter->addWidget(m_members);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 2);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(8, 4, 8, 8);
    body->setSpacing(6);
    body->addWidget(SSActiveTabs1);
    body->addWidget(splitter, 1);
    body->addWidget(layOutFiles());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(layOutTools());
    layout->addLayout(body, 1);
    makeMenus();
    connectControls();
    setFocusProxy(list1);
}

FormMailList::~FormMailList() = default;

QToolBar* FormMailList::layOutTools()
{
    auto* bar = m_tools->makeToolBar(this);
    auto* help = new QAction(tr("Help"), this);
    widgets::setIcon(help, u"help");
    help->setToolTip(tr("What this screen is for"));
    bar->addSeparator();
    bar->addAction(help);
    bar->widgetForAction(help)->setObjectName(u"CmdHelp"_s);
    connect(help, &QAction::triggered, this,
        [this, bar, help] { showHelp(u"CON0017"_s, bar->widgetForAction(help)); });
    return bar;
}

QWidget* FormMailList::layOutGroups()
{
    list1->setObjectName(u"list1"_s);
    list1->letColumnsGiveWay();
    auto* groups = new QWidget;
    auto* layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(list1, 1);
    layout->addWidget(layOutFilters());
    layout->addWidget(layOutListTools());
    return groups;
}

QWidget* FormMailList::layOutFilters()
{
    auto* layout = new QVBoxLayout(m_filters);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignTop);
    int number = 0;
    for (const QString& text : {tr("Priority 1"), tr("Priority 2"), tr("Home City Only")}) {
        auto* tick = new QCheckBox(text);
        tick->setObjectName(u"Check%1"_s.arg(++number));
        m_ticks << tick;
        layout->addWidget(tick);
    }
    auto* label = new QLabel(tr("Relat&ion"));
    label->setObjectName(u"lblRelation"_s);
    label->setBuddy(cmbRelation);
    cmbRelation->setObjectName(u"cmbRelation"_s);
    cmbRelation->setAccessibleName(tr("Relation"));
    layout->addWidget(label);
    layout->addWidget(cmbRelation);
    return m_filters;
}

QWidget* FormMailList::layOutListTools()
{
    auto* grid = new QGridLayout(m_listTools);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(6);
    grid->addWidget(
        buttonOf(u"SSCommand2"_s, tr("Add &New List"), u"folder-add", tr("Make a list of contacts")), 0, 0);
    grid->addWidget(
        buttonOf(u"cmdAddPeople"_s, tr("Add &people..."), u"person-add", tr("Put contacts into the list")), 0,
        1);
    grid->addWidget(buttonOf(u"SSCommand7"_s, tr("Take &off the list"), u"delete",
                        tr("Take the member off the list (Del)")),
        1, 0, 1, 2);
    grid->addWidget(
        buttonOf(u"cmdRenameList"_s, tr("&Rename..."), u"edit", tr("Give the list another name (F2)")), 2, 0);
    grid->addWidget(buttonOf(u"cmdDeleteList"_s, tr("&Delete list"), u"delete",
                        tr("Delete the list; its members stay in the book")),
        2, 1);
    return m_listTools;
}

QWidget* FormMailList::layOutFiles()
{
    auto* files = new QWidget;
    auto* row = new QHBoxLayout(files);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    const auto add = [this, row](QButtonGroup* group, int id, const Option& option) {
        auto* button = new QRadioButton(tr(option.text));
        button->setObjectName(option.name.toString());
        button->setChecked(id == 0);
        group->addButton(button, id);
        row->addWidget(button);
    };
    int id = 0;
    for (const Option& option : kFormats)
        add(m_formats, id++, option);
    row->addWidget(new QLabel(tr("Address:")));
    id = 0;
    for (const Option& option : kAddresses)
        add(m_addresses, id++, option);
    row->addStretch(1);
    row->addWidget(buttonOf(u"SSCommand3"_s, tr("Save as &file"), u"export",
        tr("Write the members with their addresses to a file")));
    return files;
}

void FormMailList::makeMenus()
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"MemberMenu"_s);
    auto* remove = menu->addAction(tr("Take off the list"));
    remove->setObjectName(u"subdel"_s);
    widgets::setIcon(remove, u"delete");
    connect(remove, &QAction::triggered, this, &FormMailList::removeMember);
    menu->addSeparator();
    m_tools->addTo(menu);
    widgets::HeadingGrid* grid = m_members->grid();
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(grid, &QWidget::customContextMenuRequested, this, [this, grid, menu, remove](const QPoint& at) {
        remove->setVisible(tab() == MailTab::Lists);
        if (grid->currentRow() >= 0)
            menu->popup(grid->viewport()->mapToGlobal(at));
    });
    auto* listMenu = new QMenu(this);
    listMenu->setObjectName(u"ListMenu"_s);
    for (const QString& name : {u"cmdAddPeople"_s, u"cmdRenameList"_s, u"cmdDeleteList"_s}) {
        auto* button = child<QPushButton>(this, name);
        connect(listMenu->addAction(button->icon(), QString(button->text()).remove(u'&')),
            &QAction::triggered, button, &QPushButton::click);
    }
    list1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list1, &QWidget::customContextMenuRequested, this, [this, listMenu](const QPoint& at) {
        if (tab() == MailTab::Lists && list1->currentRow() >= 0)
            listMenu->popup(list1->viewport()->mapToGlobal(at));
    });
}

void FormMailList::connectControls()
{
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &FormMailList::chooseTab);
    connect(list1, &widgets::HeadingGrid::currentRowChanged, this, &FormMailList::showMembers);
    connect(m_members, &MemberPane::currentChanged, this, &FormMailList::showPlace);
    connect(m_members, &MemberPane::selectionChanged, this,
        [this] { this->context().screens.tellBookChanged(this); });
    connect(
        m_members->grid(), &widgets::HeadingGrid::chosen, m_tools->action(u"FullView"), &QAction::trigger);
    connect(cmbRelation, &QComboBox::currentTextChanged, this, &FormMailList::showMembers);
    for (QCheckBox* tick : std::as_const(m_ticks))
        connect(tick, &QCheckBox::toggled, this, &FormMailList::showMembers);
    connect(m_members, &MemberPane::choiceWanted, this, [this] {
        if (auto* picker = this->context().screens.load<core::PageScreen>(kPicker))
            picker->openPage(u"Print"_s);
        this->context().screens.show(kPicker);
    });
    connect(m_print, &PrintDialog::chosen, this, &FormMailList::print);
    const auto onTool
        = [this](QStringView id, auto act) { connect(m_tools->action(id), &QAction::triggered, this, act); };
    onTool(u"PrintAll", [this] { askWhatToPrint(false); });
    onTool(u"PrintSelected", [this] { askWhatToPrint(true); });
    onTool(u"GroupLetter", [this] { writeGroupLetter(); });
    onTool(u"MSWord", [this] { startLetter(); });
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"SSCommand2"_s, [this] { addPeople({}); });
    onClick(u"cmdAddPeople"_s, [this] { addPeople(m_members->group().name); });
    onClick(u"SSCommand7"_s, [this] { removeMember(); });
    onClick(u"cmdRenameList"_s, [this] { renameList(); });
    onClick(u"cmdDeleteList"_s, [this] { deleteList(); });
    onClick(u"SSCommand3"_s, [this] { saveAsFile(); });
    const auto onKey = [this](Qt::Key key, QWidget* within, auto act) {
        auto* shortcut = new QShortcut(key, within);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, act] {
            if (tab() == MailTab::Lists)
                act();
        });
    };
    onKey(Qt::Key_Delete, m_members->grid(), [this] { removeMember(); });
    onKey(Qt::Key_Delete, list1, [this] { deleteList(); });
    onKey(Qt::Key_F2, list1, [this] { renameList(); });
}

void FormMailList::load()
{
    setFrameTitle(tr("Letter Mailing List Maker"));
    cmbRelation->setSource(
        [this] { return QStringList{u"All"_s} + core::firstColumn(context().data, relationsSql()); });
    {
        const QSignalBlocker quiet(cmbRelation);
        cmbRelation->setText(u"All"_s);
    }
    chooseTab();
}

void FormMailList::openPage(const QString& page)
{
    const bool isAssociation = page.startsWith(u"Association:"_s);
    SSActiveTabs1->setCurrentIndex(int(isAssociation ? MailTab::Associations : MailTab::Lists));
    if (page.contains(u':')) {
        readGroups();
        if (pointAt(page.section(u':', 1)))
            showMembers();
    }
}

void FormMailList::bookChanged()
{
    cmbRelation->refill();
    const MailGroup group = m_members->group();
    readGroups();
    if (!hasGroups(tab()))
        return m_members->readAgain();
    if (!group.name.isEmpty() && pointAt(group.name, group.id))
        return m_members->readAgain();
    showMembers();
}

MailTab FormMailList::tab() const
{
    return static_cast<MailTab>(SSActiveTabs1->currentIndex());
}

MailFilter FormMailList::filter() const
{
    if (tab() == MailTab::Contacts)
        return {
            m_ticks[0]->isChecked(), m_ticks[1]->isChecked(), m_ticks[2]->isChecked() ? m_town : QString()};
    return {.relation = tab() == MailTab::Family ? cmbRelation->currentText() : QString()};
}

void FormMailList::chooseTab()
{
    const bool isBook = tab() == MailTab::Contacts;
    const bool isFamily = tab() == MailTab::Family;
    m_groups->setVisible(tab() != MailTab::Handy);
    list1->setVisible(hasGroups(tab()));
    m_filters->setVisible(!hasGroups(tab()));
    m_listTools->setVisible(tab() == MailTab::Lists);
    for (QCheckBox* tick : std::as_const(m_ticks))
        tick->setVisible(isBook);
    child<QLabel>(this, u"lblRelation"_s)->setVisible(isFamily);
    cmbRelation->setVisible(isFamily);
    if (isBook) {
        m_town = context().data.openRecordset(defaultTownSql()).textOrEmpty(u"city");
        m_ticks[2]->setEnabled(!m_town.isEmpty());
        m_ticks[2]->setToolTip(m_town.isEmpty() ? tr("None of your cities is the default") : m_town);
    }
    if (!hasGroups(tab()))
        return showMembers();
    readGroups();
    showMembers();
}

void FormMailList::readGroups()
{
    if (!hasGroups(tab()))
        return;
    const QSignalBlocker quiet(list1);
    const MailTabTexts& row = textsOf(tab());
    list1->setAccessibleName(row.heading());
    list1->setEmptyText(row.noGroups());
    list1->fill(row.heading(), context().data.openRecordset(mailGroupsSql(tab())), {row.column.toString()});
    list1->setCurrentRow(-1);
}

bool FormMailList::pointAt(const QString& group, qint64 id)
{
    const QSignalBlocker quiet(list1);
    if (id != 0)
        return list1->selectKey(id);
    for (int row = 0; row < list1->rowCount(); ++row) {
        if (list1->textAt(row, textsOf(tab()).column.toString()).compare(group, Qt::CaseInsensitive) == 0) {
            list1->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

void FormMailList::showMembers()
{
    const MailTabTexts& row = textsOf(tab());
    if (hasGroups(tab()) && list1->currentRow() < 0) {
        m_members->showNone(list1->rowCount() == 0 ? QString() : tr("Choose a list"));
    } else {
        MailGroup group{tab()};
        if (hasGroups(tab())) {
            group.name = list1->currentText(row.column.toString());
            group.id = list1->currentKey();
        }
        QString empty = row.noMembers();
        if (tab() == MailTab::Contacts && m_ticks[2]->isChecked())
            empty = tr("Nobody has \"%1 \", with a blank at the end, as the city of the home").arg(m_town);
        m_members->show(group, filter(), empty);
    }
    const bool isList = m_members->isShowing();
    for (const QString& name : {u"cmdAddPeople"_s, u"SSCommand7"_s, u"cmdRenameList"_s, u"cmdDeleteList"_s})
        child<QPushButton>(this, name)->setEnabled(isList);
    child<QPushButton>(this, u"SSCommand3"_s)->setEnabled(isList);
    showPlace();
}

void FormMailList::showPlace()
{
    const widgets::HeadingGrid* grid = m_members->grid();
    setPosition(
        grid->currentRow() < 0 ? QString() : u"%1 of %2"_s.arg(grid->currentRow() + 1).arg(grid->rowCount()));
}

// ---- lists

void FormMailList::addPeople(const QString& list)
{
    auto* picker = context().screens.load<core::ContactsTarget>(kPicker);
    if (picker)
        picker->takeContacts({}, list);
    context().screens.show(kPicker);
}

void FormMailList::removeMember()
{
    const QString list = m_members->group().name;
    const QString name = m_members->currentName();
    if (tab() != MailTab::Lists || m_members->grid()->currentRow() < 0)
        return inform(tr("Record not selected"));
    const qint64 id = m_members->currentId();
    const int rows = rowsOfMember(context().data, list, name, id);
    QString question = tr("Do you want to take %1 off the list %2?").arg(name.simplified(), list);
    if (rows > 1)
        question += u"\n\n"_s + tr("%1 members have this name, and all of them go.").arg(rows);
    if (context().services.boxes.ask(question, shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::No)
        return;
    if (!removeListMember(context().data, list, name, id))
        return core::tellFailedSave(context());
    playSound(core::sounds::Delete);
    afterChange();
}

void FormMailList::renameList()
{
    const QString list = m_members->group().name;
    if (list.isEmpty())
        return inform(tr("Record not selected"));
    const auto typed
        = context().services.boxes.inputText(tr("Rename the list"), tr("New name of %1").arg(list));
    const QString name = typed.value_or(QString()).trimmed();
    if (!typed || name == list)
        return;
    if (name.isEmpty())
        return warn(tr("Please define Mail List Name"));
    const bool isOther = name.compare(list, Qt::CaseInsensitive) != 0;
    if (isOther && pointAt(name)) {
        pointAt(list);
        if (context().services.boxes.ask(
                tr("There is a list %1 already. Do you want to make one list of both?").arg(name),
                shared().AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
            return;
    }
    if (!renameMailList(context().data, list, name))
        return core::tellFailedSave(context());
    playSound(core::sounds::Save);
    afterChange();
    if (pointAt(name))
        showMembers();
}

void FormMailList::deleteList()
{
    const QString list = m_members->group().name;
    if (list.isEmpty())
        return inform(tr("Record not selected"));
    if (context().services.boxes.ask(
            tr("Are you sure you want to delete the list %1? Its members stay in the book.").arg(list),
            shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::No)
        return;
    if (!deleteMailList(context().data, list))
        return core::tellFailedSave(context());
    playSound(core::sounds::Delete);
    afterChange();
}

void FormMailList::afterChange()
{
    bookChanged();
    context().screens.tellBookChanged(this);
}

// ---- paper, files, letters

void FormMailList::askWhatToPrint(bool onlySelected)
{
    if (!m_members->isShowing())
        return inform(tr("Record not selected"));
    m_onlySelected = onlySelected;
    const QString whose
        = m_members->group().name.isEmpty() ? textsOf(tab()).caption() : m_members->group().name;
    m_print->ask(onlySelected
            ? tr("%1: those selected, %2").arg(whose, QString::number(m_members->selected()))
            : tr("%1: all members, %2").arg(whose, QString::number(m_members->grid()->rowCount())));
}

void FormMailList::print(const LabelChoice& choice)
{
    const QString sql
        = printedMembersSql(m_members->group(), choice.address, m_onlySelected, m_members->sql());
    const jet::Way way = tab() == MailTab::Contacts ? jet::Way::Ado : jet::Way::Dao;
    showLabels(context(), context().data.openRecordset(sql, way), choice, m_members->group().name);
}

void FormMailList::saveAsFile()
{
    constexpr output::GridFormat formats[]
        = {output::GridFormat::Xls, output::GridFormat::Csv, output::GridFormat::Txt};
    const QString list
        = m_members->group().name.isEmpty() ? textsOf(tab()).caption() : m_members->group().name;
    jet::Recordset rows
        = context().data.openRecordset(savedMembersSql(m_members->group(), m_members->filter(),
                                           output::AddressSet(m_addresses->checkedId())),
            m_members->way());
    if (rows.isEmpty())
        return inform(tr("No records are available for the selection"));
    saveMembers(context(), std::move(rows), formats[m_formats->checkedId()], list, this);
}

void FormMailList::writeGroupLetter()
{
    const QList<qint64> ids = m_members->memberIds(false);
    if (ids.isEmpty())
        return inform(tr("Record not selected"));
    auto* letter = context().screens.load<core::ContactsTarget>(kGroupLetter);
    if (letter)
        letter->takeContacts(ids, m_members->group().name);
    context().screens.show(kGroupLetter);
}

void FormMailList::startLetter()
{
    const qint64 id = m_members->currentId();
    if (id == 0)
        return inform(tr("Record not selected"));
    const platform::Drive& drive = context().services.drive;
    drive.ensureFolder(kExported);
    const QString path = drive.local(kLetter);
    const jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(id));
    const QByteArray letter = mailLetter(contact, context().services.clock.today(), shared().NationalMode);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(letter) != letter.size()
        || !platform::commitWhole(file))
        return warn(
            tr("The letter could not be written as %1: %2.").arg(path, platform::whyNotReplaced(path)));
    if (!context().services.shell.openFile(path))
        context().frame.showNotice(tr("The letter is %1; no program was found to show it").arg(path));
}

void FormMailList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
