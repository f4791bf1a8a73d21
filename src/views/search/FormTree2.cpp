#include "views/search/FormTree2.h"

#include "core/contact_tool_table.h"
#include "core/list_presenter.h"
#include "views/search/place_tree.h"
#include "views/search/result_detail.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kTreeWidth = 260;
constexpr int kDetailHeight = 260;

constexpr core::Tool kTools[] = {
    {.id = u"Name",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("views", "Name"),
        .toolTip = QT_TRANSLATE_NOOP("views", "View the results by name"),
        .places = core::Tool::Labelled},
    {.id = u"Category",
        .icon = u"category",
        .text = QT_TRANSLATE_NOOP("views", "Category"),
        .toolTip = QT_TRANSLATE_NOOP("views", "View the results by category"),
        .places = core::Tool::Labelled},
    {.id = u"close",
        .icon = u"exit",
        .text = QT_TRANSLATE_NOOP("views", "Close"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Close the search"),
        .places = core::Tool::Labelled | core::Tool::GroupStart},
};

} // namespace

FormTree2::FormTree2(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "views"}, this))
    , m_hits(new core::ContactTools(context, core::hitTools(),
          {.callerForm = u"FormTree2"_s, .chosen = [this] { return currentContact(); }, .saysNone = false},
          this))
    , m_menu(m_hits->makeMenu(u"HitMenu"_s, this))
    , FG1(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, FG1, this))
    , m_detail(new ResultDetail(context.services.drive))
    , Option1(new QRadioButton(tr("Category")))
    , Option2(new QRadioButton(tr("Name")))
    , lblcount(new QLabel)
{
    setWindowTitle(treeSearchTitle(TreeKind::Category));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    if (!parent) {
        SSTree1 = new PlaceTree(context.data);
        SSTree1->setObjectName(u"SSTree1"_s);
        SSTree1->setMinimumWidth(160);
        splitter->addWidget(SSTree1);
        splitter->setContentsMargins(8, 8, 8, 8);
    }
    splitter->addWidget(layOutResults());
    splitter->setStretchFactor(splitter->count() - 1, 1);
    splitter->setSizes(parent ? QList<int>{900} : QList<int>{kTreeWidth, 900});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (!parent) {
        QToolBar* bar = m_tools->makeToolBar(this);
        bar->setObjectName(u"SSActiveToolBars1"_s);
        layout->addWidget(bar);
    }
    layout->addWidget(splitter, 1);
    connectTools();
    connectControls();
    setFocusProxy(SSTree1 ? static_cast<QWidget*>(SSTree1) : FG1);
}

void FormTree2::connectTools()
{
    auto* views = new QActionGroup(this);
    for (const auto& [id, option] : {std::pair(u"Name", Option2), std::pair(u"Category", Option1)}) {
        QAction* tool = m_tools->action(id);
        tool->setCheckable(true);
        tool->setChecked(option->isChecked());
        views->addAction(tool);
        connect(tool, &QAction::triggered, option, [option = option] { option->setChecked(true); });
    }
    connect(m_tools->action(u"close"), &QAction::triggered, this, &FormTree2::closeRequested);
}

QWidget* FormTree2::layOutResults()
{
    FG1->setObjectName(u"FG1"_s);
    FG1->setAccessibleName(tr("Contacts found"));
    FG1->setEmptyText({}); // an empty result is just an empty grid
    FG1->mergeEqual({u"Category1"_s, u"Category2"_s, u"region"_s, u"h_country"_s, u"h_state"_s, u"h_city"_s});
    FG1->setContextMenuPolicy(Qt::CustomContextMenu);
    auto* detail = new QScrollArea;
    detail->setWidget(m_detail);
    detail->setWidgetResizable(true);
    detail->setFrameShape(QFrame::NoFrame);
    detail->setMinimumHeight(m_detail->sizeHint().height() / 2);
    auto* upper = new QWidget;
    auto* upperLayout = new QVBoxLayout(upper);
    upperLayout->setContentsMargins(4, 0, 0, 0);
    upperLayout->setSpacing(6);
    upperLayout->addWidget(FG1, 1);
    upperLayout->addWidget(layOutFoot());
    auto* results = new QSplitter(Qt::Vertical);
    results->setChildrenCollapsible(false);
    results->addWidget(upper);
    results->addWidget(detail);
    results->setStretchFactor(0, 1);
    results->setSizes({360, kDetailHeight});
    return results;
}

QWidget* FormTree2::layOutFoot()
{
    Option1->setObjectName(u"Option1"_s);
    Option2->setObjectName(u"Option2"_s);
    Option1->setChecked(true);
    lblcount->setObjectName(u"lblcount"_s);
    lblcount->setAccessibleName(tr("Number of rows"));
    auto* foot = new QWidget;
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(new QLabel(tr("View by")));
    layout->addWidget(Option1);
    layout->addWidget(Option2);
    layout->addStretch(1);
    auto* rows = new QLabel(tr("Rows"));
    for (QLabel* label : {rows, lblcount}) {
        label->setForegroundRole(QPalette::PlaceholderText);
        layout->addWidget(label);
    }
    return foot;
}

void FormTree2::connectControls()
{
    connect(Option1, &QRadioButton::toggled, this, &FormTree2::viewChanged);
    connect(m_list, &core::ListPresenter::currentChanged, this, &FormTree2::rowChanged);
    // Also the row that has been current all along: another list may have been chosen from meanwhile.
    connect(FG1, &widgets::HeadingGrid::clicked, this, &FormTree2::select);
    connect(FG1, &widgets::HeadingGrid::chosen, m_hits->action(u"OpenHit"), &QAction::trigger);
    connect(FG1, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (FG1->currentRow() >= 0)
            m_menu->popup(FG1->viewport()->mapToGlobal(at));
    });
    if (SSTree1) {
        connect(SSTree1, &PlaceTree::nodeChosen, this,
            [this](const QStringList& path) { showNode(SSTree1->kind(), path); });
        connect(SSTree1, &PlaceTree::normalised, this, &FormTree2::refresh);
    }
}

// Alone it waits until it is told the kind of its tree, which it is before it is shown.
void FormTree2::load() { }

void FormTree2::openPage(const QString& page)
{
    m_kind = page == u"Location" ? TreeKind::Location : TreeKind::Category;
    setWindowTitle(treeSearchTitle(m_kind));
    if (SSTree1 && isVisible())
        showTree();
}

void FormTree2::showNode(TreeKind kind, const QStringList& path)
{
    apply([kind, path](ViewBy view) { return nodeQuery(kind, path, view); });
}

void FormTree2::showFound(const QString& whereClause)
{
    apply([whereClause](ViewBy view) { return foundQuery(whereClause, view); });
}

void FormTree2::showThumbnail(qint64 id)
{
    apply([id](ViewBy view) { return thumbnailQuery(id, view); });
    FG1->setCurrentRow(0);
}

void FormTree2::refresh()
{
    if (m_last)
        run(m_last);
}

qint64 FormTree2::currentId() const
{
    return FG1->currentKey();
}

void FormTree2::addRowAction(QAction* action)
{
    FG1->addAction(action);
}

void FormTree2::bookChanged()
{
    if (SSTree1 && SSTree1->topLevelItemCount() > 0) {
        SSTree1->build(SSTree1->kind());
        return showNode(SSTree1->kind(), SSTree1->currentPath());
    }
    refresh();
}

// As the list of another screen it is brought up to date by that one.
void FormTree2::showEvent(QShowEvent* event)
{
    if (!SSTree1)
        return QWidget::showEvent(event);
    Screen::showEvent(event);
    if (!event->spontaneous())
        showTree();
}

void FormTree2::showTree()
{
    if (SSTree1->topLevelItemCount() > 0 && m_kind == SSTree1->kind())
        return;
    SSTree1->build(m_kind);
    showNode(m_kind, {});
}

ViewBy FormTree2::view() const
{
    return Option1->isChecked() ? ViewBy::Category : ViewBy::Name;
}

bool FormTree2::run(const Filter& filter)
{
    const ResultQuery query = filter(view());
    const auto fill
        = [this, query](jet::Recordset rows) { FG1->fill(query.headings, std::move(rows), query.columns); };
    if (!m_list->open(query.sql, {}, fill))
        return false;
    lblcount->setText(QString::number(FG1->rowCount()));
    rowChanged(FG1->currentRow());
    return true;
}

void FormTree2::apply(const Filter& filter)
{
    if (run(filter))
        m_last = filter;
}

void FormTree2::rowChanged(int row)
{
    if (row < 0) {
        m_name.clear();
        return m_detail->display({});
    }
    const jet::Recordset contact
        = context().data.openRecordset(u"select * from cnt_main where id=%1"_s.arg(FG1->keyAt(row)));
    m_name = contact.textOrEmpty(u"Name");
    m_detail->display(contact);
    select();
    setPosition(m_list->position());
}

void FormTree2::select()
{
    shared().selectedContactId = currentId();
    shared().selectedContactName = m_name;
}

void FormTree2::viewChanged()
{
    m_tools->action(Option1->isChecked() ? u"Category" : u"Name")->setChecked(true);
    refresh();
}

} // namespace views
