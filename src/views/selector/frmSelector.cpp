#include "views/selector/frmSelector.h"

#include "core/contact_lookups.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/frame.h"
#include "core/list_presenter.h"
#include "views/selector/quick_combos.h"
#include "views/selector/selector_list.h"
#include "views/selector/selector_page.h"
#include "widgets/alphabet_tabs.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kForm = u"frmSelector";
constexpr int kNameWidth = 200;
constexpr int kLeastNameWidth = 120;
constexpr QStringView kPageTools[] = {u"Caller", u"ID_Ex", u"Letter2", u"lrecord"};

QString translated(const char* text)
{
    return QCoreApplication::translate("views", text);
}

QToolButton* button(const QString& name, QStringView icon, const QString& text, const QString& toolTip)
{
    auto* made = new QToolButton;
    made->setObjectName(name);
    widgets::setIcon(made, icon);
    made->setText(text);
    made->setToolTip(toolTip);
    made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

} // namespace

frmSelector::frmSelector(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, core::selectorTools(),
          {.callerForm = kForm.toString(),
              .chosen =
                  [this] {
                      return core::ChosenContact{FG1->currentKey(), FG1->currentKey()};
                  },
              .sounds = true,
              .beforeFilter =
                  [this] {
                      setAllChoices();
                      narrow({});
                  }},
          this))
    , SSActiveTabs1(new QTabBar)
    , Tabs1(new widgets::AlphabetTabs)
    , Frame1(new QuickCombos(context.data))
    , FG1(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, FG1, this))
    , m_page(new SelectorPage(context))
    , m_sorted(new QLabel)
    , m_count(new QLabel)
    , m_showAll(button(u"ShowAll"_s, u"restore", tr("Show all"), tr("Show all contacts again (F5)")))
    , PG1(new QProgressBar)
    , CmdFilter(button(u"CmdFilter"_s, u"filter", tr("Filter"), tr("Filter the list")))
    , CmdView(button(u"CmdView"_s, u"list", tr("Menu"), tr("What can be done with the contact")))
{
    setWindowTitle(tr("Record Selector"));
    m_list->showBrokenAsEmpty();
    layOut();
    connectControls();
}

frmSelector::~frmSelector()
{
    if (shared().selectorMdiFlag == u"MDI")
        shared().selectorMdiFlag.clear();
}

void frmSelector::layOut()
{
    m_order = layOutOrder();
    m_listSide = layOutList();
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_listSide);
    splitter->addWidget(m_page);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({360, 800});
    auto* body = new QWidget;
    auto* bodyLayout = new QVBoxLayout(body);
    bodyLayout->setContentsMargins(8, 6, 8, 8);
    bodyLayout->setSpacing(6);
    bodyLayout->addWidget(m_order);
    bodyLayout->addWidget(splitter, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(layOutTools());
    layout->addWidget(body, 1);
    setFocusProxy(FG1);
    QWidget* const order[] = {SSActiveTabs1, Tabs1, Frame1, FG1, m_page};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QWidget* frmSelector::layOutTools()
{
    m_bar = m_tools->makeToolBar(this);
    QToolBar* bar = m_bar;
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    bar->addWidget(CmdFilter);
    bar->addWidget(CmdView);
    CmdFilter->setMenu(m_tools->makeMenu(u"FilterMenu"_s, this, core::Tool::FilterMenu));
    CmdFilter->setPopupMode(QToolButton::MenuButtonPopup);
    CmdFilter->setEnabled(m_tools->action(u"ID_Filter")->isEnabled());
    CmdView->setMenu(m_tools->makeMenu(u"Menu"_s, this));
    CmdView->setPopupMode(QToolButton::MenuButtonPopup);
    return bar;
}

QWidget* frmSelector::layOutOrder()
{
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setAccessibleName(tr("Sort by"));
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    for (const SelectorSort& sort : selectorSorts())
        SSActiveTabs1->setTabData(SSActiveTabs1->addTab(translated(sort.caption)), sort.word.toString());
    Tabs1->setObjectName(u"Tabs1"_s);
    Tabs1->setAccessibleName(tr("First letter"));
    Tabs1->setLabels(selectorLetters());
    auto* first = new QHBoxLayout;
    first->setSpacing(10);
    first->addWidget(SSActiveTabs1);
    first->addStretch(1);
    auto* order = new QWidget;
    auto* layout = new QVBoxLayout(order);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(first);
    layout->addWidget(Tabs1);
    layout->addWidget(Frame1);
    return order;
}

QWidget* frmSelector::layOutList()
{
    FG1->setObjectName(u"FG1"_s);
    FG1->setAccessibleName(tr("Contacts"));
    FG1->setEmptyText(tr("No contacts here"));
    FG1->setContextMenuPolicy(Qt::CustomContextMenu);
    FG1->showAs(
        kChangedColumn.toString(), [](const QVariant& month) { return shortMonth(month.toString()); });
    for (const QStringView id : {u"Edit", u"Delete"})
        FG1->addAction(m_tools->action(id));
    m_sorted->setObjectName(u"lblSort"_s);
    m_count->setObjectName(u"lblCount"_s);
    m_count->setAccessibleName(tr("Contacts listed"));
    for (QLabel* label : {m_sorted, m_count})
        label->setForegroundRole(QPalette::PlaceholderText);
    PG1->setObjectName(u"PG1"_s);
    PG1->setAccessibleName(tr("Progress"));
    PG1->setTextVisible(false);
    PG1->setMaximumSize(90, 10);
    PG1->hide();
    m_showAll->setShortcut(Qt::Key_F5);
    m_showAll->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_showAll->setAccessibleName(m_showAll->text());
    auto* foot = new QHBoxLayout;
    foot->setSpacing(10);
    foot->addWidget(m_sorted);
    foot->addWidget(PG1);
    foot->addStretch(1);
    foot->addWidget(m_count);
    foot->addWidget(m_showAll);
    auto* side = new QWidget;
    side->setMinimumWidth(260);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(FG1, 1);
    layout->addLayout(foot);
    return side;
}

void frmSelector::connectControls()
{
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &frmSelector::listAgain);
    connect(Tabs1, &widgets::AlphabetTabs::labelChosen, this, &frmSelector::listAgain);
    connect(Frame1, &QuickCombos::choicesChanged, this, [this] { narrow(quickClause(Frame1->choices())); });
    connect(m_list, &core::ListPresenter::currentChanged, this, &frmSelector::rowChanged);
    connect(FG1, &widgets::HeadingGrid::chosen, this, [this](int row) {
        if (FG1->keyAt(row) != 0)
            setInFull(true);
    });
    connect(FG1, &widgets::HeadingGrid::outlineProgress, this, [this](int percent) {
        PG1->setValue(percent);
        PG1->setVisible(percent < 100);
        if (percent == 100 && FG1->currentRow() >= 0)
            FG1->scrollTo(FG1->currentIndex());
    });
    connect(FG1, &QWidget::customContextMenuRequested, this,
        [this](const QPoint& at) { CmdView->menu()->popup(FG1->viewport()->mapToGlobal(at)); });
    connect(m_page, &SelectorPage::pageOpened, this, &frmSelector::rememberPage);
    connect(m_page, &SelectorPage::associateShown, this, &frmSelector::showContact);
    connect(m_page, &SelectorPage::fullWanted, this, &frmSelector::setInFull);
    connect(m_showAll, &QToolButton::clicked, this, [this] {
        listAll();
        FG1->setFocus();
    });
    connect(CmdView, &QToolButton::clicked, CmdView, &QToolButton::showMenu);
    connect(CmdFilter, &QToolButton::clicked, m_tools->action(u"ID_Filter"), &QAction::trigger);
    connect(m_tools, &core::ContactTools::contactDeleted, this, &frmSelector::forget);
    connect(m_tools->action(u"Simple"), &QAction::triggered, this, [this] { setSimple(true); });
    connect(m_tools->action(u"Details"), &QAction::triggered, this, [this] { setSimple(false); });
}

// Ids and names are all that is read: no combo is filled and no contact is shown before somebody asks.
void frmSelector::load()
{
    setFrameTitle(u"Contacts-Lookup"_s);
    shared().selectorMdiFlag = u"MDI"_s;
    setSimple(false);
    list();
    m_list->point(0);
}

void frmSelector::bookChanged()
{
    Frame1->refill();
    listAgain();
}

void frmSelector::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (!event->spontaneous())
        rememberPage();
}

bool frmSelector::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactNameSql(id));
    if (id == 0 || !contact.hasRow())
        return false;
    if (FG1->rowOf(id) < 0) {
        const QSignalBlocker quiet(SSActiveTabs1);
        SSActiveTabs1->setCurrentIndex(0);
        listAll();
    }
    return FG1->selectKey(id);
}

void frmSelector::applyFilter(const QString& whereClause)
{
    setAllChoices();
    narrow(whereClause);
}

void frmSelector::openPage(const QString& page)
{
    m_page->openPage(page);
    showContact(shared().selectedContactId);
}

void frmSelector::list()
{
    const SelectorSort& sort = selectorSorts()[static_cast<std::size_t>(SSActiveTabs1->currentIndex())];
    m_list->open(selectorSql(sort, letterWord(Tabs1->currentLabel()), m_clause), {},
        [this, &sort](jet::Recordset rows) {
            FG1->setOutline({});
            FG1->fill(sort.headings, std::move(rows));
            FG1->setOutline(sort.outline.toString());
        });
    fitColumns();
    m_sorted->setText(translated(sort.label));
    showState();
}

// The column under whose texts the rows stand gives way, so that names can be read in a narrow list.
void frmSelector::fitColumns()
{
    constexpr int kGroupColumn = 1;
    const QHeaderView* header = FG1->horizontalHeader();
    const SelectorSort& sort = selectorSorts()[static_cast<std::size_t>(SSActiveTabs1->currentIndex())];
    if (sort.outline.isEmpty() || header->count() <= kGroupColumn + 1)
        return;
    const int last = header->count() - 1;
    const int room = FG1->viewport()->width() - FG1->columnWidth(0);
    if (FG1->columnWidth(kGroupColumn) + FG1->columnWidth(last) <= room)
        return;
    FG1->setColumnWidth(kGroupColumn, std::max(header->sectionSizeHint(kGroupColumn), room - kNameWidth));
    FG1->setColumnWidth(last, kLeastNameWidth); // and what is left of the room
}

// The contact that was current stays current, if the list still has it.
void frmSelector::listAgain()
{
    list();
    if (FG1->currentKey() != 0)
        return rowChanged(FG1->currentRow());
    m_page->showContact(0);
}

void frmSelector::listAll()
{
    setAllChoices();
    narrow({});
}

void frmSelector::narrow(const QString& clause)
{
    m_clause = clause;
    listAgain();
}

void frmSelector::setAllChoices()
{
    Tabs1->setCurrentLabel(u"All"_s);
    Frame1->reset();
}

void frmSelector::rowChanged(int row)
{
    const qint64 id = FG1->keyAt(row);
    if (id == 0)
        return;
    shared().selectedContactId = id;
    shared().selectedContactName = FG1->textAt(row, u"name"_s);
    m_page->showContact(id);
    showState();
}

void frmSelector::showState()
{
    const int count = FG1->recordCount();
    m_count->setText(count == 1 ? tr("1 contact") : tr("%1 contacts").arg(count));
    m_showAll->setEnabled(!m_clause.trimmed().isEmpty() || letterWord(Tabs1->currentLabel()) != u"All");
}

void frmSelector::rememberPage()
{
    shared().CallerForm = m_page->form();
}

void frmSelector::forget(qint64 id)
{
    const qint64 neighbour = m_list->neighbourOf(id);
    if (shared().selectedContactId == id) {
        shared().selectedContactId = 0;
        shared().selectedContactName.clear();
    }
    m_page->showContact(0);
    list();
    if (m_list->point(neighbour))
        rowChanged(FG1->currentRow());
    FG1->setFocus();
}

void frmSelector::setSimple(bool simple)
{
    m_simple = simple;
    Frame1->setVisible(!simple);
    m_page->setChoiceVisible(!simple);
    for (const QStringView id : kPageTools)
        m_tools->action(id)->setVisible(!simple);
    const QList<QAction*> tools = m_bar->actions();
    tools[tools.indexOf(m_tools->action(kPageTools[0])) - 1]->setVisible(!simple); // the line before them
    m_tools->action(u"Simple")->setVisible(!simple);
    m_tools->action(u"Details")->setVisible(simple);
}

void frmSelector::setInFull(bool inFull)
{
    m_listSide->setVisible(!inFull);
    m_order->setVisible(!inFull);
    m_page->setInFull(inFull);
    setFocusProxy(inFull ? static_cast<QWidget*>(m_page) : FG1);
    if (inFull)
        m_page->setFocus();
    else
        FG1->setFocus();
}

} // namespace views
