#include "telephone/lists/FrmPhList.h"

#include "core/contact_tools.h"
#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/take_back.h"
#include "core/vocabularies.h"
#include "jet/date_text.h"
#include "output/grid/list_print.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "telephone/lists/button_row.h"
#include "telephone/lists/contact_pane.h"
#include "telephone/lists/number_files.h"
#include "telephone/lists/phone_list_tools.h"
#include "telephone/lists/phone_reports.h"
#include "telephone/own_city.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

constexpr QStringView kNumberHeadings = u"||Name                    |Phone";
constexpr QStringView kExportFolder = u"C:\\OVUserFiles\\Exported Files\\Excel";

QString newListName()
{
    return u"New List Name"_s;
}

qint64 personIn(const widgets::HeadingGrid* grid)
{
    const qint64 listed = grid->currentText(u"idd"_s).toLongLong();
    return listed != 0 ? listed : grid->currentText(u"id"_s).toLongLong();
}

} // namespace

FrmPhList::FrmPhList(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, phoneListTools(),
          {.callerForm = u"FrmPhList"_s,
              .chosen =
                  [this] {
                      const qint64 id = personIn(m_chosenIn->currentRow() < 0 ? FG : m_chosenIn);
                      return core::ChosenContact{id, id};
                  }},
          this))
    , m_contacts(new ContactPane(context.data))
    , FG(m_contacts->grid())
    , FGPhone(new widgets::HeadingGrid)
    , list1(new widgets::RecordList)
    , m_chosenIn(FG)
    , SSActiveTabs1(new QTabBar)
    , m_building(new QWidget)
    , m_naming(new QWidget)
    , m_ticks(new QWidget)
    , Check1(new QCheckBox(tr("Priority 1")))
    , Check2(new QCheckBox(tr("Priority 2")))
    , Check3(new QCheckBox(tr("Home City Only")))
    , Text1(new QLineEdit)
    , lblname(new QLabel)
    , m_numberMenu(new QMenu(this))
{
    setWindowTitle(tr("Phone List"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_contacts);
    splitter->addWidget(layOutLists());
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    splitter->setContentsMargins(8, 4, 8, 8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(layOutTools());
    layout->addWidget(splitter, 1);
    makeMenus();
    connectLists();
    connectKeys();
    setFocusProxy(FG);
}

FrmPhList::~FrmPhList() = default;

QToolBar* FrmPhList::layOutTools()
{
    auto* bar = m_tools->makeToolBar(this);
    connect(m_tools->action(u"Export"), &QAction::triggered, this, &FrmPhList::exportList);
    return bar;
}

QWidget* FrmPhList::layOutLists()
{
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setAccessibleName(tr("Kinds of lists"));
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    for (const QString& caption : {tr("User List"), tr("Dialer"), tr("Contacts"), tr("Associations")})
        SSActiveTabs1->addTab(caption);
    auto* foot = new QWidget;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(SSActiveTabs1);
    layout->addWidget(m_building);
    layout->addWidget(m_naming);
    layout->addWidget(m_ticks);
    layout->addWidget(layOutNumbers(), 1);
    layout->addWidget(lblname);
    layout->addWidget(foot);
    layOutFoot(foot);

    widgets::FormKit building(m_building);
    building.combo(u"DBCombo1"_s, tr("&List"))
        .button(u"SSCommand9"_s, tr("Add"), u"add", tr("Put the numbers with a tick into the list"))
        .button(u"SSCommand10"_s, tr("Delete"), u"delete", tr("Take the number out of the list (Del)"))
        .button(u"ssNewList"_s, tr("List Add"), u"folder-add", tr("Make a new list"));
    m_building->layout()->setContentsMargins(0, 0, 0, 0);
    DBCombo1 = child<widgets::FilledCombo>(m_building, u"DBCombo1"_s);
    auto* naming = rowOf(m_naming);
    Text1->setObjectName(u"Text1"_s);
    Text1->setAccessibleName(tr("Name of the new list"));
    Text1->setMaxLength(255);
    naming->addWidget(Text1, 1);
    naming->addWidget(makeButton(u"SSCommand5"_s, tr("Save"), u"save", tr("Make the list (Enter)")));
    naming->addWidget(makeButton(u"SSCommand4"_s, tr("Cancel"), u"cancel", tr("Make no list (Esc)")));
    m_naming->hide();
    auto* ticks = rowOf(m_ticks);
    int number = 0;
    for (QCheckBox* tick : {Check1, Check2, Check3}) {
        tick->setObjectName(u"Check%1"_s.arg(++number));
        ticks->addWidget(tick);
    }
    ticks->addStretch(1);
    m_ticks->hide();
    lblname->setObjectName(u"lblname"_s);
    lblname->setAccessibleName(tr("Selected number"));
    lblname->setTextFormat(Qt::PlainText);
    lblname->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblname->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return page;
}

QWidget* FrmPhList::layOutNumbers()
{
    list1->setObjectName(u"list1"_s);
    list1->setAccessibleName(tr("Lists"));
    list1->setEmptyText(tr("No lists yet"));
    FGPhone->setObjectName(u"FGPhone"_s);
    FGPhone->setAccessibleName(tr("Numbers of the list"));
    FGPhone->setHeadings(kNumberHeadings, {QString(), QString(), u"name"_s, u"phone"_s});
    FGPhone->letColumnsGiveWay();
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(list1);
    splitter->addWidget(FGPhone);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 2);
    return splitter;
}

void FrmPhList::layOutFoot(QWidget* foot)
{
    auto* row = rowOf(foot);
    SSCommand6 = makeButton(u"SSCommand6"_s, tr("Go to Details"), u"list", tr("Show the contacts again"));
    SSCommand11 = makeButton(u"SSCommand11"_s, tr("Go to Simple"), u"list", tr("Show the lists alone"));
    SSCommand6->hide();
    row->addWidget(SSCommand6);
    row->addWidget(SSCommand11);
    row->addStretch(1);
    auto* report
        = makeButton(u"dxColorBtn2"_s, tr("Print"), u"report", tr("Preview the list, print or save it"));
    auto* grid
        = makeButton(u"dxColorBtn3"_s, tr("Print grid"), u"printer", tr("Print the list as it is shown"));
    row->addWidget(report);
    row->addWidget(grid);
    connect(report, &QPushButton::clicked, this, &FrmPhList::printReport);
    connect(grid, &QPushButton::clicked, this, [this] {
        output::ListPrint(context(), FGPhone, SSActiveTabs1->tabText(SSActiveTabs1->currentIndex()));
    });
}

void FrmPhList::makeMenus()
{
    m_numberMenu->setObjectName(u"NumberMenu"_s);
    QAction* remove = m_numberMenu->addAction(tr("Delete"));
    remove->setObjectName(u"mnudelete"_s);
    widgets::setIcon(remove, u"delete");
    connect(remove, &QAction::triggered, this, &FrmPhList::deleteNumber);
    m_numberMenu->addSeparator();
    m_tools->addTo(m_numberMenu);
    QMenu* personMenu = m_tools->makeMenu(u"PersonMenu"_s, this);
    auto* listMenu = new QMenu(this);
    listMenu->setObjectName(u"ListMenu"_s);
    QAction* removeList = listMenu->addAction(tr("Delete the list"));
    removeList->setObjectName(u"DeleteList"_s);
    widgets::setIcon(removeList, u"delete");
    connect(removeList, &QAction::triggered, this, &FrmPhList::deleteList);
    const auto onMenu = [this](widgets::HeadingGrid* grid, QMenu* menu, const auto& prepare) {
        grid->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(grid, &QWidget::customContextMenuRequested, this, [grid, menu, prepare](const QPoint& at) {
            if (grid->currentRow() >= 0 && prepare())
                menu->popup(grid->viewport()->mapToGlobal(at));
        });
    };
    onMenu(FG, personMenu, [this] {
        m_chosenIn = FG;
        return true;
    });
    onMenu(FGPhone, m_numberMenu, [this, remove] {
        m_chosenIn = FGPhone;
        remove->setVisible(kind() == ListKind::User);
        return true;
    });
    onMenu(list1, listMenu, [this] { return kind() == ListKind::User; });
}

void FrmPhList::connectLists()
{
    connect(m_contacts, &ContactPane::rowChanged, this, &FrmPhList::showPerson);
    connect(m_contacts, &ContactPane::addWanted, this, &FrmPhList::addPerson);
    connect(child<QPushButton>(this, u"SSCommand9"_s), &QPushButton::clicked, this, &FrmPhList::addPerson);
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &FrmPhList::leaveTab);
    connect(list1, &widgets::HeadingGrid::currentRowChanged, this, [this](int row) {
        if (row < 0)
            return;
        const QSignalBlocker quiet(DBCombo1);
        DBCombo1->setText(list1->currentText(listColumn()));
        chooseList(DBCombo1->currentText());
    });
    connect(DBCombo1, &QComboBox::currentTextChanged, this, &FrmPhList::typeList);
    connect(FGPhone, &widgets::HeadingGrid::currentRowChanged, this, &FrmPhList::showNumber);
    connect(FGPhone, &widgets::HeadingGrid::chosen, m_tools->action(u"Call"), &QAction::trigger);
    for (QCheckBox* tick : {Check1, Check2, Check3})
        connect(tick, &QCheckBox::toggled, this, &FrmPhList::readNumbers);
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"SSCommand10"_s, [this] { deleteNumber(); });
    onClick(u"ssNewList"_s, [this] { beginList(true); });
    onClick(u"SSCommand5"_s, [this] { saveList(); });
    onClick(u"SSCommand4"_s, [this] { beginList(false); });
    onClick(u"SSCommand6"_s, [this] { showWide(false); });
    onClick(u"SSCommand11"_s, [this] { showWide(true); });
    connect(Text1, &QLineEdit::returnPressed, this, &FrmPhList::saveList);
}

void FrmPhList::connectKeys()
{
    const auto onKey = [this](Qt::Key key, QWidget* within, auto act) {
        auto* shortcut = new QShortcut(key, within);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    onKey(Qt::Key_Delete, FGPhone, [this] {
        if (kind() == ListKind::User)
            deleteNumber();
    });
    onKey(Qt::Key_Delete, list1, [this] {
        if (kind() == ListKind::User && list1->currentRow() >= 0)
            deleteList();
    });
    onKey(Qt::Key_Escape, m_naming, [this] {
        if (mayDiscard())
            beginList(false);
    });
}

void FrmPhList::load()
{
    setFrameTitle(tr("Phone List Maker"));
    DBCombo1->setSource([this] { return core::firstColumn(context().data, listNamesSql(ListKind::User)); });
    m_contacts->load();
    chooseTab();
}

bool FrmPhList::isTouched() const
{
    return !m_naming->isHidden() && Text1->isModified();
}

void FrmPhList::bookChanged()
{
    DBCombo1->refill();
    m_contacts->readAgain();
    readLists();
    if (kind() != ListKind::Contacts && list1->currentRow() < 0)
        m_list.clear(); // it has been taken back
    readNumbers();
}

ListKind FrmPhList::kind() const
{
    return static_cast<ListKind>(SSActiveTabs1->currentIndex());
}

QString FrmPhList::listColumn() const
{
    switch (kind()) {
    case ListKind::Dialer: return u"list"_s;
    case ListKind::Associations: return u"group"_s;
    case ListKind::User:
    case ListKind::Contacts: break;
    }
    return u"listname"_s;
}

void FrmPhList::showPerson()
{
    const int row = FG->currentRow();
    setPosition(row < 0 ? QString() : u"%1 of %2"_s.arg(row + 1).arg(FG->rowCount()));
    if (row >= 0)
        m_chosenIn = FG;
}

// ---- lists

// Lists are named on the first tab only.
void FrmPhList::leaveTab()
{
    if (mayDiscard())
        return chooseTab();
    const QSignalBlocker quiet(SSActiveTabs1);
    SSActiveTabs1->setCurrentIndex(static_cast<int>(ListKind::User));
}

void FrmPhList::chooseTab()
{
    beginList(false);
    m_list.clear();
    lblname->clear();
    m_building->setVisible(kind() == ListKind::User);
    m_ticks->setVisible(kind() == ListKind::Contacts);
    list1->setVisible(kind() != ListKind::Contacts);
    {
        const QSignalBlocker quiet(DBCombo1);
        DBCombo1->setText({});
    }
    readLists();
    FGPhone->setCurrentRow(-1);
    if (kind() == ListKind::Contacts)
        return readNumbers();
    m_numbersSql.clear();
    FGPhone->clearRows();
    FGPhone->setEmptyText(list1->rowCount() == 0 ? QString() : tr("Choose a list"));
}

void FrmPhList::readLists()
{
    if (kind() == ListKind::Contacts)
        return;
    {
        const QSignalBlocker quiet(list1);
        list1->fill(u"Lists"_s, context().data.openRecordset(listNamesSql(kind())), {listColumn()});
    }
    pointAtList();
}

void FrmPhList::pointAtList()
{
    const QSignalBlocker quiet(list1);
    for (int row = 0; !m_list.isEmpty() && row < list1->rowCount(); ++row) {
        if (list1->textAt(row, listColumn()).compare(m_list, Qt::CaseInsensitive) == 0)
            return list1->setCurrentRow(row);
    }
    list1->setCurrentRow(-1);
}

// A name that is only being typed is no list yet, and nothing can be put into it.
void FrmPhList::typeList(const QString& typed)
{
    const QStringList known = DBCombo1->values();
    const auto found = std::ranges::find_if(known, [name = typed.trimmed()](const QString& list) {
        return list.compare(name, Qt::CaseInsensitive) == 0;
    });
    chooseList(found == known.end() ? QString() : *found);
    pointAtList();
}

void FrmPhList::chooseList(const QString& list)
{
    if (m_list == list)
        return;
    m_list = list;
    FGPhone->setEmptyText(list.isEmpty() ? tr("Choose a list") : tr("No numbers in this list"));
    readNumbers();
}

void FrmPhList::readNumbers()
{
    if (kind() != ListKind::Contacts && m_list.isEmpty()) {
        FGPhone->clearRows();
        return showNumber();
    }
    if (kind() != ListKind::Contacts)
        return fillNumbers(listNumbersSql(kind(), m_list));
    const bool hasDefault = !context().data.openRecordset(defaultCitySql()).isEmpty();
    const QString city = ownCity(context().data);
    for (QCheckBox* tick : {Check1, Check2, Check3})
        tick->setToolTip(hasDefault
                ? tr("Your cities have a default: all contacts are listed, whatever is ticked")
                : QString());
    FGPhone->setEmptyText(Check3->isChecked() && city.isEmpty()
            ? tr("Your own city is not known; it stands with your own data")
            : hasDefault ? tr("No contacts here")
                         : tr("Tick what the list shall have"));
    fillNumbers(
        contactPhonesSql({Check1->isChecked(), Check2->isChecked(), Check3->isChecked()}, hasDefault, city));
}

void FrmPhList::fillNumbers(const QString& sql)
{
    m_numbersSql = sql;
    const int row = FGPhone->currentRow();
    FGPhone->fill(context().data.openRecordset(sql));
    FGPhone->setCurrentRow(std::min(row, FGPhone->rowCount() - 1));
    showNumber();
}

void FrmPhList::showNumber()
{
    const bool isOne = FGPhone->currentRow() >= 0;
    lblname->setText(
        isOne ? FGPhone->currentText(u"name"_s) + u"  "_s + FGPhone->currentText(u"phone"_s) : QString());
    if (isOne)
        m_chosenIn = FGPhone;
}

void FrmPhList::showWide(bool wide)
{
    m_contacts->setVisible(!wide);
    SSCommand6->setVisible(wide);
    SSCommand11->setVisible(!wide);
}

// ---- changes

void FrmPhList::addPerson()
{
    if (m_list.isEmpty() || kind() != ListKind::User)
        return warn(tr("List Name should be selected"));
    const NewMember member = m_contacts->member();
    if (member.id == 0)
        return inform(tr("Record not selected"));
    switch (addMember(context().data, m_list, member)) {
    case MemberAdded::AlreadyThere: return inform(tr("This Person is already in this list"));
    case MemberAdded::NotStored: return core::tellFailedSave(context());
    case MemberAdded::NoNumber: return;
    case MemberAdded::Added: break;
    }
    m_contacts->noteAdded();
    playSound(core::sounds::Save);
    afterChange();
    tellSaved(member.name);
}

void FrmPhList::beginList(bool begin)
{
    m_naming->setVisible(begin);
    m_building->setVisible(!begin && kind() == ListKind::User);
    Text1->setText(newListName());
    Text1->setModified(false);
    if (begin) {
        Text1->setFocus();
        Text1->selectAll();
    }
}

void FrmPhList::saveList()
{
    const QString name = Text1->text().trimmed();
    if (name.isEmpty() || name.toUpper() == newListName().toUpper())
        return warn(tr("Not a valid List name"));
    if (!addList(context().data, name))
        return core::tellFailedSave(context());
    beginList(false);
    m_list = name;
    {
        const QSignalBlocker quiet(DBCombo1);
        DBCombo1->setText(name);
    }
    FGPhone->setEmptyText(tr("No numbers in this list"));
    playSound(core::sounds::Save);
    afterChange();
    tellSaved(name);
    FG->setFocus();
}

void FrmPhList::deleteNumber()
{
    if (m_list.isEmpty())
        return warn(tr("List Name should be selected"));
    if (FGPhone->currentRow() < 0)
        return inform(tr("Record not selected"));
    if (context().services.boxes.ask(
            tr("Are you sure you want to delete ? "), shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::No)
        return;
    if (!telephone::deleteNumber(context().data, m_list, FGPhone->currentText(u"phone"_s), personIn(FGPhone)))
        return core::tellFailedSave(context());
    playSound(core::sounds::Delete);
    afterChange();
}

void FrmPhList::deleteList()
{
    const QString list = list1->currentText(listColumn());
    if (context().services.boxes.ask(
            tr("Are you sure you want to delete the list %1 with all its numbers?").arg(list),
            shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::No)
        return;
    if (!telephone::deleteList(context().data, list))
        return core::tellFailedSave(context());
    playSound(core::sounds::Delete);
    {
        const QSignalBlocker quiet(DBCombo1);
        DBCombo1->setText({});
    }
    chooseList({});
    afterChange();
}

void FrmPhList::afterChange()
{
    DBCombo1->refill();
    readLists();
    readNumbers();
    context().screens.tellBookChanged(this);
}

// ---- paper and files

void FrmPhList::printReport()
{
    if (kind() != ListKind::Contacts && m_list.isEmpty())
        return warn(tr("List Name should be selected"));
    const bool national = shared().NationalMode;
    output::Report report = phoneReport(kind(), m_list,
        std::make_shared<output::RecordsetSource>(
            context().data.openRecordset(printedNumbersSql(kind(), m_list)), output::reportDates(national)));
    report.printDate = jet::formatDate(context().services.clock.today(), core::datePattern(national));
    output::ShowReportViewer(context(), report, tr("Phone List"));
}

void FrmPhList::exportList()
{
    if (FGPhone->rowCount() == 0)
        return inform(tr("There are no numbers to export"));
    const platform::Drive& drive = context().services.drive;
    drive.ensureFolder(kExportFolder);
    const QString stem = m_list.isEmpty() ? tr("Phone List") : m_list;
    const auto path = context().services.boxes.saveFile(tr("Export"),
        u"Excel File (*.xls)|*.xls|CSV File (*.csv)|*.csv|Text File (*.txt)|*.txt"_s,
        {drive.local(kExportFolder), platform::Drive::safeFileName(stem) + u".xls"_s});
    if (!path)
        return;
    const QString why
        = exportNumbers(context().data.openRecordset(m_numbersSql), *path, QFileInfo(*path).suffix());
    if (!why.isEmpty())
        return warn(tr("The numbers could not be saved as %1: %2.").arg(*path, why));
    context().frame.showNotice(tr("Saved %1").arg(QFileInfo(*path).fileName()), tr("Open"),
        [&context = context(), file = *path] { context.services.shell.openFile(file); });
}

} // namespace telephone
