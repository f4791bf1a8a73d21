#include "views/selector/frmSelector1.h"

#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "views/full_view/full_view_sql.h"
#include "views/search/FormTree2.h"
#include "views/search/place_tree.h"
#include "views/selector/name_choices_panel.h"
#include "views/selector/picture_pane.h"
#include "views/selector/tree_choices_panel.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kSearchWidth = 372;
constexpr int kLeastSearchWidth = 300;

/// Those of a contact that the selectors have by another name, and the names that are edited in a list of
/// names only.
const QStringList kSameTools{
    u"EditDetails"_s, u"Edit"_s, u"Call"_s, u"Email2"_s, u"Letter"_s, u"CommonFilter"_s, u"TabFilter"_s};

} // namespace

struct frmSelector1::Tab {
    QStringView page;
    const char* text;
    QStringView title; ///< of the frame
    void (frmSelector1::*enter)();
};

const std::array<frmSelector1::Tab, 5> frmSelector1::kTabs{{
    {u"Location", QT_TRANSLATE_NOOP("views", "Location"), u"Search-Location Tree",
        &frmSelector1::enterLocation},
    {u"Name", QT_TRANSLATE_NOOP("views", "Name"), u"Search-Name", &frmSelector1::enterNames},
    {u"Category", QT_TRANSLATE_NOOP("views", "Category"), u"Search-Category Tree",
        &frmSelector1::enterCategory},
    {u"Search", QT_TRANSLATE_NOOP("views", "Search"), u"Search-Advanced", &frmSelector1::enterSearch},
    {u"Picture", QT_TRANSLATE_NOOP("views", "Picture"), u"Search-Pics Thumbnails",
        &frmSelector1::enterPictures},
}};

frmSelector1::frmSelector1(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, core::selectorTools(),
          {.callerForm = u"frmSelector1"_s,
              .chosen = [this] { return m_results->currentContact(); },
              .sounds = true,
              .beforeFilter = [this] { resetChoices(); }},
          this))
    , m_contactTools(new core::ContactTools(context, core::viewTools(),
          {.callerForm = u"frmSelector1"_s,
              .chosen = [this] { return m_results->currentContact(); },
              .needsName = false},
          this))
    , SSActiveTabs1(new QTabBar)
    , m_panes(new QStackedWidget)
    , m_splitter(new QSplitter)
    , m_search(new QWidget)
    , SSTree1(new PlaceTree(context.data))
    , m_names(new NameChoicesPanel(context.data))
    , m_choices(new TreeChoicesPanel(context.data))
    , m_pictures(new PicturePane(context))
    , m_results(new FormTree2(context, this))
{
    setWindowTitle(tr("Record Selector"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(layOutSearch());
    m_splitter->addWidget(m_results);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({kSearchWidth, 900});
    m_splitter->setContentsMargins(8, 4, 8, 8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(layOutTools());
    layout->addWidget(m_splitter, 1);
    makeTools();
    connectControls();
}

// The tools of the selectors, then those of a contact that are not among them and can do something.
QToolBar* frmSelector1::layOutTools()
{
    QToolBar* bar = m_tools->makeToolBar(this);
    const auto own = bar->actions().size();
    QStringList without = kSameTools;
    for (const QStringView id : {u"SMS", u"PrintSingle", u"PrintLabel"}) {
        if (!m_contactTools->action(id)->isEnabled())
            without << id.toString();
    }
    m_contactTools->addTo(bar, without);
    bar->addSeparator();
    m_results->tools()->addTo(bar);
    m_pageTools = bar->actions().mid(own);
    m_pageTools.removeOne(m_contactTools->action(u"Search")); // brings the search back
    return bar;
}

void frmSelector1::makeTools()
{
    for (const QStringView id : {u"Edit", u"Delete"})
        m_results->addRowAction(m_tools->action(id));
    QMenu* row = m_tools->makeMenu(u"Menu"_s, this);
    m_results->setRowMenu(row);
    QMenu* thumbnail = m_tools->makeMenu(u"MenuThumb"_s, this);
    for (QMenu* menu : {row, thumbnail}) {
        m_contactTools->addTo(menu, kSameTools);
        m_contactTools->addReplaceMenu(menu);
    }
    m_pictures->setMenu(thumbnail);
}

QWidget* frmSelector1::layOutSearch()
{
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setAccessibleName(tr("Ways to search"));
    SSActiveTabs1->setExpanding(false);
    SSActiveTabs1->setDrawBase(false);
    for (const Tab& tab : kTabs)
        SSActiveTabs1->addTab(QCoreApplication::translate("views", tab.text));
    SSTree1->setObjectName(u"SSTree1"_s);
    for (QWidget* pane : std::initializer_list<QWidget*>{SSTree1, m_names, m_choices, m_pictures})
        m_panes->addWidget(pane);
    m_results->setObjectName(u"FormTree2"_s);
    m_search->setMinimumWidth(kLeastSearchWidth);
    auto* layout = new QVBoxLayout(m_search);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->setSpacing(6);
    layout->addWidget(SSActiveTabs1);
    layout->addWidget(m_panes, 1);
    return m_search;
}

void frmSelector1::connectControls()
{
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, &frmSelector1::enterTab);
    connect(SSTree1, &PlaceTree::nodeChosen, m_results,
        [this](const QStringList& path) { m_results->showNode(SSTree1->kind(), path); });
    connect(SSTree1, &PlaceTree::normalised, m_results, &FormTree2::refresh);
    connect(m_names, &NameChoicesPanel::choicesChanged, this,
        [this] { m_results->showFound(treeChoicesClause(m_names->choices())); });
    connect(m_names, &NameChoicesPanel::allWanted, this, [this] { m_results->showFound({}); });
    connect(m_choices, &TreeChoicesPanel::choicesChanged, this,
        [this] { m_results->showFound(treeChoicesClause(m_choices->choices())); });
    connect(m_choices, &TreeChoicesPanel::keywordWanted, this,
        [this](const QString& keyword) { m_results->showFound(keywordClause(keyword)); });
    connect(m_pictures, &PicturePane::contactChosen, m_results, &FormTree2::showThumbnail);
    connect(m_results, &FormTree2::closeRequested, this, &frmSelector1::closeRequested);
    connect(m_tools, &core::ContactTools::contactDeleted, m_results, &FormTree2::refresh);
    connect(m_tools->action(u"Simple"), &QAction::triggered, this, [this] { showAlone(true); });
    connect(m_tools->action(u"Details"), &QAction::triggered, this, [this] { showAlone(false); });
    connect(m_contactTools->action(u"Search"), &QAction::triggered, this, &frmSelector1::openKeyword);
}

// The first tab is entered when the screen is seen, for it may be opened on another one.
void frmSelector1::load()
{
    setFrameTitle(u"Search"_s);
    m_results->load();
    SSActiveTabs1->setCurrentIndex(0);
}

void frmSelector1::openPage(const QString& page)
{
    const auto tab
        = std::find_if(kTabs.begin(), kTabs.end(), [&](const Tab& row) { return row.page == page; });
    if (tab == kTabs.end())
        return;
    setFrameTitle(tab->title.toString());
    chooseTab(int(tab - kTabs.begin()));
}

void frmSelector1::chooseTab(int tab)
{
    if (tab == SSActiveTabs1->currentIndex())
        enterTab();
    else
        SSActiveTabs1->setCurrentIndex(tab);
}

void frmSelector1::applyFilter(const QString& whereClause)
{
    m_results->showFound(whereClause);
}

void frmSelector1::bookChanged()
{
    m_names->refill();
    m_choices->refill();
    if (m_entered && m_panes->currentWidget() == SSTree1) {
        const QStringList before = SSTree1->currentPath();
        SSTree1->build(SSTree1->kind());
        if (SSTree1->currentPath() != before)
            return m_results->showNode(SSTree1->kind(), SSTree1->currentPath());
    } else if (m_entered && m_panes->currentWidget() == m_pictures) {
        m_pictures->gather();
    }
    m_results->refresh();
}

void frmSelector1::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (event->spontaneous() || std::exchange(m_entered, true))
        return;
    const QString title = frameTitle();
    enterTab();
    setFrameTitle(title);
}

void frmSelector1::enterTab()
{
    if (!m_entered)
        return;
    const Tab& tab = kTabs[std::size_t(SSActiveTabs1->currentIndex())];
    setFrameTitle(tab.title.toString());
    shareRoom(tab.enter == &frmSelector1::enterPictures);
    (this->*tab.enter)();
    setFocusProxy(m_panes->currentWidget());
    if (!SSActiveTabs1->hasFocus()) // else the arrow keys go on to the next tab
        m_panes->currentWidget()->setFocus();
}

void frmSelector1::enterLocation()
{
    showTree(TreeKind::Location);
}

void frmSelector1::enterCategory()
{
    showTree(TreeKind::Category);
}

void frmSelector1::showTree(TreeKind kind)
{
    m_panes->setCurrentWidget(SSTree1);
    SSTree1->build(kind);
    m_results->showNode(kind, SSTree1->currentPath());
}

void frmSelector1::enterNames()
{
    m_panes->setCurrentWidget(m_names);
    m_results->showFound(treeChoicesClause(m_names->choices()));
}

void frmSelector1::enterSearch()
{
    m_panes->setCurrentWidget(m_choices);
    m_results->showFound(treeChoicesClause(m_choices->choices()));
}

void frmSelector1::enterPictures()
{
    m_panes->setCurrentWidget(m_pictures);
    m_results->showThumbnail(0); // none yet
    m_pictures->gather();
}

// Pictures take half of the room, however large the screen becomes.
void frmSelector1::shareRoom(bool pictures)
{
    if (std::exchange(m_wide, pictures) == pictures)
        return;
    const QList<int> sizes = std::exchange(m_otherSizes, m_splitter->sizes());
    m_splitter->setStretchFactor(0, pictures ? 1 : 0);
    m_splitter->setSizes(sizes);
}

void frmSelector1::resetChoices()
{
    m_names->reset();
    m_choices->reset();
}

void frmSelector1::showAlone(bool alone)
{
    m_search->setVisible(!alone);
    for (QAction* tool : std::as_const(m_pageTools))
        tool->setVisible(!alone);
}

void frmSelector1::openKeyword()
{
    showAlone(false);
    openPage(u"Search"_s);
    m_choices->openKeyword();
}

} // namespace views
