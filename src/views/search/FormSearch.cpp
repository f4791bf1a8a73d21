#include "views/search/FormSearch.h"

#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/handover/page_screen.h"
#include "core/list_presenter.h"
#include "core/screens.h"
#include "views/search/place_tree.h"
#include "views/search/search_clauses.h"
#include "views/search/search_filter.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kTypingMs = 150;

constexpr int kAlways = core::Tool::Labelled;
constexpr auto kInScreen = core::Tool::KeyIn::Screen;
constexpr core::Tool kTools[] = {
    {.id = u"Find",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("views", "Find"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Find by first name, last name and company"),
        .places = kAlways},
    {.id = u"Advanced",
        .icon = u"search",
        .text = QT_TRANSLATE_NOOP("views", "Advanced"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Look for a word in many fields"),
        .places = kAlways,
        .key = int(Qt::CTRL) | int(Qt::Key_F),
        .keyIn = kInScreen},
    {.id = u"Refresh",
        .icon = u"restore",
        .text = QT_TRANSLATE_NOOP("views", "Refresh"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Show all contacts by name"),
        .places = kAlways,
        .key = Qt::Key_F5,
        .keyIn = kInScreen},
    {.id = u"Search4",
        .icon = u"phone",
        .text = QT_TRANSLATE_NOOP("views", "Phone Search"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Search all telephone numbers"),
        .task = core::ToolTask::Open,
        .form = u"FrmPhSearch",
        .places = kAlways},
    {.id = u"Search5",
        .icon = u"category",
        .text = QT_TRANSLATE_NOOP("views", "Category Tree"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Search the tree of categories"),
        .form = u"FormTree2",
        .places = kAlways},
    {.id = u"Search6",
        .icon = u"location",
        .text = QT_TRANSLATE_NOOP("views", "Location Tree"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Search the tree of locations"),
        .form = u"FormTree2",
        .places = kAlways},
    {.id = u"Close",
        .icon = u"exit",
        .text = QT_TRANSLATE_NOOP("views", "Close"),
        .toolTip = QT_TRANSLATE_NOOP("views", "Close the search"),
        .places = kAlways},
};

} // namespace

FormSearch::FormSearch(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_filter(new SearchFilter(context.data))
    , m_tools(new core::ToolSet(context.screens, {kTools, "views"}, this))
    , m_hits(new core::ContactTools(context, core::hitTools(),
          {.callerForm = u"FormSearch"_s,
              .chosen =
                  [this] {
                      const qint64 id = grid()->currentKey();
                      return core::ChosenContact{id, id};
                  },
              .saysNone = false},
          this))
    , m_hitMenu(m_hits->makeMenu(u"HitMenu"_s, this))
    , FG1(new widgets::HeadingGrid)
    , GridKey(new widgets::HeadingGrid)
    , m_contactList(new core::ListPresenter(context.data, FG1, this))
    , m_hitList(new core::ListPresenter(context.data, GridKey, this))
    , m_grids(new QStackedWidget)
    , Frame3(new QFrame)
    , m_typing(new QTimer(this))
    , Option1(new QRadioButton(tr("Category")))
    , Option2(new QRadioButton(tr("Name")))
    , SSCommand3(new QPushButton(tr("Keyword Search")))
    , cmdgo(new QPushButton(tr("Go")))
    , CmdHelp(new QPushButton(tr("Help")))
    , m_count(new QLabel)
{
    setWindowTitle(tr("Search"));
    auto* choices = new QScrollArea;
    choices->setWidget(m_filter);
    choices->setWidgetResizable(true);
    choices->setFrameShape(QFrame::NoFrame);
    choices->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    choices->setMinimumWidth(m_filter->minimumSizeHint().width() + 20);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(choices);
    splitter->addWidget(layOutResults());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setContentsMargins(8, 8, 8, 8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tools->makeToolBar(this));
    layout->addWidget(splitter, 1);
    connectTools();
    connectControls();
    setFocusProxy(txtkey);
}

void FormSearch::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
    };
    m_tools->action(u"Find")->setCheckable(true);
    on(u"Find", [this](bool shown) { m_filter->setFindVisible(shown); });
    on(u"Advanced", [this] { showKeyword(Frame3->isHidden()); });
    on(u"Refresh", [this] { list(contactsByNameSql()); });
    on(u"Search5", [this] { showTree(u"Category"_s); });
    on(u"Search6", [this] { showTree(u"Location"_s); });
    on(u"Close", &FormSearch::closeRequested);
}

QWidget* FormSearch::layOutKeyword()
{
    auto* word = new QWidget;
    widgets::FormKit wordForm(word);
    wordForm.line(u"txtkey"_s, tr("&Keyword"));
    txtkey = widgets::child<QLineEdit>(word, u"txtkey"_s);
    txtkey->setPlaceholderText(tr("A name, a city, a category, ..."));
    txtkey->setClearButtonEnabled(true);
    Frame3->setObjectName(u"Frame3"_s);
    widgets::FormKit form(Frame3);
    form.buttonRow()
        .button(u"CmdSearch"_s, tr("&Search"), u"search", tr("Look for the word in many fields (Enter)"))
        .button(u"SSCommand5"_s, tr("Refresh"), u"restore", tr("List all contacts again"))
        .button(u"SSCommand4"_s, tr("Hide"), u"cancel", tr("Hide the keyword search (Esc)"));
    Frame3->hide();
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(word, 1);
    layout->addWidget(m_count);
    layout->addWidget(Frame3);
    for (QWidget* part : {word, static_cast<QWidget*>(Frame3)})
        part->layout()->setContentsMargins(0, 0, 0, 0);
    return row;
}

QWidget* FormSearch::layOutResults()
{
    FG1->setObjectName(u"FG1"_s);
    FG1->setAccessibleName(tr("Contacts"));
    GridKey->setObjectName(u"GridKey"_s);
    GridKey->setAccessibleName(tr("Contacts with the keyword"));
    for (widgets::HeadingGrid* each : {FG1, GridKey}) {
        each->setEmptyText({}); // an empty result is just an empty grid
        each->setContextMenuPolicy(Qt::CustomContextMenu);
        m_grids->addWidget(each);
    }
    auto* results = new QWidget;
    auto* layout = new QVBoxLayout(results);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(layOutKeyword());
    layout->addWidget(m_grids, 1);
    layout->addWidget(layOutFoot());

    QWidget* const order[] = {widgets::child<QPushButton>(Frame3, u"SSCommand4"_s), FG1, GridKey, Option1,
        Option2, SSCommand3, cmdgo, CmdHelp};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    for (QPushButton* button : {SSCommand3, cmdgo, CmdHelp})
        button->setAutoDefault(false);
    return results;
}

QWidget* FormSearch::layOutFoot()
{
    Option1->setObjectName(u"Option1"_s);
    Option2->setObjectName(u"Option2"_s);
    Option1->setChecked(true);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_count->setAccessibleName(tr("Contacts listed"));
    SSCommand3->setObjectName(u"SSCommand3"_s);
    SSCommand3->setToolTip(tr("Look for a word in many fields (Ctrl+F)"));
    widgets::setIcon(SSCommand3, u"search");
    cmdgo->setObjectName(u"cmdgo"_s);
    widgets::setIcon(cmdgo, u"next");
    cmdgo->setEnabled(m_hits->action(u"OpenHit")->isEnabled());
    cmdgo->setToolTip(cmdgo->isEnabled() ? tr("Go to the contact (Enter, double click)")
                                         : m_hits->action(u"OpenHit")->toolTip());
    CmdHelp->setObjectName(u"CmdHelp"_s);
    widgets::setIcon(CmdHelp, u"help");
    auto* foot = new QWidget;
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(new QLabel(tr("View by")));
    layout->addWidget(Option1);
    layout->addWidget(Option2);
    layout->addStretch(1);
    layout->addWidget(SSCommand3);
    layout->addWidget(cmdgo);
    layout->addWidget(CmdHelp);
    return foot;
}

void FormSearch::connectControls()
{
    const auto button = [this](const QString& name) { return widgets::child<QPushButton>(this, name); };
    connect(m_filter, &SearchFilter::choicesChanged, this, &FormSearch::applyChoices);
    connect(m_filter, &SearchFilter::namesChanged, this, &FormSearch::applyNames);
    connect(m_filter->SSCommand6, &QPushButton::clicked, this, &FormSearch::clearChoices);
    connect(SSCommand3, &QPushButton::clicked, this, [this] {
        showKeyword(true);
        showGrid(GridKey);
    });
    connect(button(u"SSCommand4"_s), &QPushButton::clicked, this, [this] { showKeyword(false); });
    connect(button(u"SSCommand5"_s), &QPushButton::clicked, this, [this] {
        m_word.clear();
        queryKeyword(contactsByCategorySql());
        showGrid(GridKey);
    });
    connect(button(u"CmdSearch"_s), &QPushButton::clicked, this, &FormSearch::searchKeyword);
    connect(txtkey, &QLineEdit::returnPressed, this, &FormSearch::searchKeyword);
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(txtkey, &QLineEdit::textEdited, m_typing, qOverload<>(&QTimer::start));
    connect(m_typing, &QTimer::timeout, this, &FormSearch::followKeyword);
    const auto onKey = [this](Qt::Key key, QWidget* within, auto perform) {
        auto* shortcut = new QShortcut(key, within);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, perform);
    };
    for (QWidget* within : {static_cast<QWidget*>(Frame3), static_cast<QWidget*>(txtkey)})
        onKey(Qt::Key_Escape, within, [this] { showKeyword(false); });
    onKey(Qt::Key_Down, txtkey, [this] { enterGrid(); });
    connect(Option1, &QRadioButton::toggled, this, &FormSearch::formatGrid);
    connect(cmdgo, &QPushButton::clicked, m_hits->action(u"OpenHit"), &QAction::trigger);
    connect(CmdHelp, &QPushButton::clicked, this, [this] { showHelp(u"CON0024"_s, CmdHelp); });
    for (core::ListPresenter* each : {m_contactList, m_hitList}) {
        connect(each, &core::ListPresenter::currentChanged, this, [this, each](int row) {
            if (each == shownList()) // the hidden one may be read anew
                rowChanged(row);
        });
    }
    for (widgets::HeadingGrid* each : {FG1, GridKey}) {
        connect(each, &widgets::HeadingGrid::chosen, m_hits->action(u"OpenHit"), &QAction::trigger);
        connect(each, &QWidget::customContextMenuRequested, this, [this, each](const QPoint& at) {
            if (each->currentRow() >= 0)
                m_hitMenu->popup(each->viewport()->mapToGlobal(at));
        });
    }
}

// The keyword grid starts with the same list, but is read when it is seen.
void FormSearch::load()
{
    setFrameTitle(u"Search"_s);
    formatGrid();
    const SearchGrid words = keywordGrid();
    GridKey->setHeadings(words.headings, words.columns);
    query(contactsByCategorySql());
}

void FormSearch::bookChanged()
{
    m_filter->refill();
    query(builtSql);
    if (m_keywordRead)
        queryKeyword(m_keywordRead ? m_hitList->sql() : contactsByCategorySql());
}

void FormSearch::showTree(const QString& kind)
{
    if (auto* tree = context().screens.load<core::PageScreen>(u"FormTree2"))
        tree->openPage(kind);
    context().screens.show(u"FormTree2");
}

void FormSearch::applyChoices()
{
    list(searchSql(m_filter->choices()));
}

void FormSearch::applyNames()
{
    list(nameSearchSql(m_filter->names()));
}

void FormSearch::clearChoices()
{
    m_filter->reset();
    list(contactsByCategorySql());
}

// What was chosen is seen, also when the hits of a keyword were shown before.
void FormSearch::list(const QString& sql)
{
    query(sql);
    showGrid(FG1);
}

void FormSearch::query(const QString& sql)
{
    if (!m_contactList->open(sql))
        return;
    builtSql = sql;
    showCount();
}

void FormSearch::queryKeyword(const QString& sql)
{
    m_keywordRead = m_hitList->open(sql, {}, [this](jet::Recordset rows) { fillHits(std::move(rows)); })
        || m_keywordRead;
    showCount();
}

// Some statements leave columns out.
void FormSearch::fillHits(jet::Recordset rows)
{
    const QStringList columns = keywordGrid().columns;
    QList<bool> isKnown;
    for (const QString& column : columns)
        isKnown << (column.isEmpty() || rows.columnIndex(column) >= 0);
    GridKey->fill(std::move(rows));
    for (int column = 0; column < columns.size(); ++column)
        GridKey->setColumnHidden(column, !isKnown[column]);
}

void FormSearch::searchKeyword()
{
    m_typing->stop();
    m_word = txtkey->text();
    queryKeyword(keywordHitsSql(m_word));
    showGrid(GridKey);
}

// An apostrophe breaks the statement, which is for the person to try.
void FormSearch::followKeyword()
{
    if (txtkey->text().trimmed().isEmpty())
        showGrid(FG1);
    else if (!txtkey->text().contains(u'\''))
        searchKeyword();
}

void FormSearch::enterGrid()
{
    if (m_typing->isActive())
        followKeyword();
    if (grid()->currentRow() < 0)
        grid()->setCurrentRow(0);
    grid()->setFocus();
}

void FormSearch::showKeyword(bool on)
{
    Frame3->setVisible(on);
    m_tools->action(u"Advanced")->setText(on ? tr("Hide") : tr("Advanced"));
    if (on) {
        txtkey->setFocus();
        txtkey->selectAll();
    } else {
        showGrid(FG1);
        FG1->setFocus();
    }
}

// Without its buttons the word stands there as long as its hits do.
void FormSearch::showGrid(widgets::HeadingGrid* shown)
{
    m_typing->stop();
    const QString word = shown == GridKey ? m_word : QString();
    if (Frame3->isHidden() ? txtkey->text() != word : txtkey->text().isEmpty())
        txtkey->setText(word);
    if (shown == GridKey && !m_keywordRead)
        queryKeyword(m_keywordRead ? m_hitList->sql() : contactsByCategorySql());
    m_grids->setCurrentWidget(shown);
    showCount();
    rowChanged(shown->currentRow());
}

void FormSearch::formatGrid()
{
    const SearchGrid layout = contactGrid(Option1->isChecked() ? ViewBy::Category : ViewBy::Name);
    const qint64 current = FG1->currentKey();
    FG1->setHeadings(layout.headings, layout.columns);
    if (current != 0)
        FG1->selectKey(current);
}

void FormSearch::rowChanged(int row)
{
    if (row < 0)
        return;
    m_hits->select(grid()->keyAt(row));
    setPosition(shownList()->position());
}

void FormSearch::showCount()
{
    setPosition(shownList()->position());
    const int count = grid()->rowCount();
    m_count->setText(count == 1 ? tr("1 contact") : tr("%1 contacts").arg(count));
}

widgets::HeadingGrid* FormSearch::grid() const
{
    return m_grids->currentWidget() == GridKey ? GridKey : FG1;
}

core::ListPresenter* FormSearch::shownList() const
{
    return grid() == GridKey ? m_hitList : m_contactList;
}

} // namespace views
