#include "views/FullView.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/photo_file.h"
#include "core/sound_files.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "views/category_tree.h"
#include "views/contact_tools.h"
#include "views/full_view_edit.h"
#include "views/full_view_header.h"
#include "views/full_view_pages.h"
#include "views/full_view_sql.h"
#include "views/keyword_panel.h"
#include "views/list_editing.h"
#include "views/record_texts.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/picture_box.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr FullViewKind kFullView{QT_TRANSLATE_NOOP("views", "Full view"), u"Contacts Full View", u"FullView"};

constexpr int kEditPage = 1;
constexpr int kSavedNoteMs = 4000;

QToolButton* command(const QString& name, QStringView icon, const QString& toolTip, const QString& text = {},
    const QKeySequence& key = {})
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    widgets::setIcon(button, icon);
    button->setText(text);
    button->setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setShortcut(key);
    button->setToolTip(
        key.isEmpty() ? toolTip : u"%1 (%2)"_s.arg(toolTip, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

FullView::FullView(core::Context& context, QWidget* parent)
    : FullView(context, kFullView, parent)
{
}

FullView::FullView(core::Context& context, const FullViewKind& kind, QWidget* parent)
    : Screen(context, parent)
    , m_kind(kind)
    , m_tools(new ContactTools(context,
          {.callerForm = kind.callerForm.toString(),
              .shownName = [this] { return shownName(); },
              .listedId = [this] { return DBList1->currentKey(); }},
          this))
    , DBList1(new widgets::RecordList)
    , tvwdb(new CategoryTree(context.data))
    , frmkeyword(new KeywordPanel)
    , m_listEditing(new ListEditing(DBList1))
    , m_header(new FullViewHeader)
    , m_edit(new FullViewEdit(context))
    , lblCounter(new QLabel)
    , ssprevious(command(u"ssprevious"_s, u"previous", tr("Previous contact"), {}, Qt::CTRL | Qt::Key_Up))
    , ssnext(command(u"ssnext"_s, u"next", tr("Next contact"), {}, Qt::CTRL | Qt::Key_Down))
    , CmdList(command(u"CmdList"_s, u"list", tr("Show the list of all contacts"), tr("List")))
    , CmdTree(command(u"CmdTree"_s, u"tree", tr("Show the contacts by category"), tr("Tree")))
    , CmdView(command(u"CmdView"_s, u"filter", tr("Filter the list")))
    , CmdRefresh(command(u"CmdRefresh"_s, u"restore", tr("Show all contacts again"), {}, Qt::Key_F5))
{
    setWindowTitle(QCoreApplication::translate("views", kind.title));
    layOut();
    makeMenus();
    connectControls();
}

void FullView::layOut()
{
    auto* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"SSActiveToolBars1"_s);
    lblCounter->setObjectName(u"lblCounter"_s);
    lblCounter->setAccessibleName(tr("Position in the list"));
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    for (QWidget* step : std::initializer_list<QWidget*>{ssprevious, lblCounter, ssnext})
        bar->addWidget(step);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    m_browser = layOutBrowser();
    splitter->addWidget(m_browser);
    splitter->addWidget(layOutRecord());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({270, 900});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(splitter, 1);
    setFocusProxy(DBList1);
}

QWidget* FullView::layOutBrowser()
{
    DBList1->setObjectName(u"DBList1"_s);
    DBList1->setAccessibleName(tr("Contacts"));
    DBList1->setEmptyText(tr("No contacts here"));
    tvwdb->setObjectName(u"tvwdb"_s);
    frmkeyword->setObjectName(u"frmkeyword"_s);
    frmkeyword->hide();
    CmdList->setEnabled(false);
    m_lists = new QStackedWidget;
    m_lists->addWidget(DBList1);
    m_lists->addWidget(tvwdb);

    auto* commands = new QHBoxLayout;
    commands->setSpacing(2);
    commands->addWidget(CmdList);
    commands->addWidget(CmdTree);
    commands->addStretch(1);
    commands->addWidget(CmdView);
    commands->addWidget(CmdRefresh);
    auto* browser = new QWidget;
    browser->setMinimumWidth(200);
    auto* layout = new QVBoxLayout(browser);
    layout->setContentsMargins(8, 8, 0, 8);
    layout->setSpacing(6);
    layout->addLayout(commands);
    layout->addWidget(frmkeyword);
    layout->addWidget(m_lists, 1);
    return browser;
}

QWidget* FullView::layOutRecord()
{
    TabsEdit = new QTabWidget;
    TabsEdit->setObjectName(u"TabsEdit"_s);
    auto* pages = new FullViewPages;
    pages->setDocumentMode(true);
    TabsEdit->addTab(pages, widgets::icon(u"card"), tr("View"));
    TabsEdit->addTab(m_edit, widgets::icon(u"edit"), tr("Edit"));
    auto* record = new QWidget;
    auto* recordLayout = new QVBoxLayout(record);
    recordLayout->setContentsMargins(0, 0, 0, 0);
    recordLayout->addWidget(m_header);
    recordLayout->addWidget(TabsEdit, 1);
    auto* nothing = new QLabel(tr("Choose a contact on the left to see everything about it here."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    m_record = new QStackedWidget;
    m_record->addWidget(nothing);
    m_record->addWidget(record);

    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 4, 8, 8);
    layout->addWidget(m_record, 1);
    return side;
}

void FullView::makeMenus()
{
    m_menu = m_tools->makeMenu(this);
    m_menu->setObjectName(u"Menu"_s);
    m_filterMenu = new QMenu(this);
    m_filterMenu->setObjectName(u"FilterMenu"_s);
    m_filterMenu->setToolTipsVisible(true);
    for (const QStringView id : {u"CommonFilter", u"TabFilter", u"Search"})
        m_filterMenu->addAction(m_tools->action(id));
    CmdView->setMenu(m_filterMenu);
    CmdView->setPopupMode(QToolButton::MenuButtonPopup);
    QAction* search = m_tools->action(u"Search");
    search->setShortcut(QKeySequence::Find);
    search->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(search);

    const std::pair<QToolButton*, QStringView> buttons[]
        = {{m_header->CmdTel, u"Call"}, {m_header->CmdAdd, u"Letter"}, {m_header->CmdEmail, u"Email2"}};
    for (const auto& [button, id] : buttons) {
        QAction* action = m_tools->action(id);
        button->setEnabled(action->isEnabled());
        if (!action->isEnabled())
            button->setToolTip(tr("%1\nNot available yet").arg(button->toolTip()));
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
    }
}

void FullView::connectControls()
{
    connect(DBList1, &widgets::RecordList::currentRowChanged, this, &FullView::rowChanged);
    connect(tvwdb, &CategoryTree::contactChosen, this, &FullView::chooseInTree);
    connect(frmkeyword, &KeywordPanel::searched, this, [this](const QString& keyword) {
        openFound(keywordSql(keyword));
        frmkeyword->hide();
    });
    connect(m_tools, &ContactTools::searchWanted, frmkeyword, &KeywordPanel::open);
    connect(m_tools, &ContactTools::listEditingWanted, m_listEditing, &ListEditing::setEditable);
    // Later, since a step to another row ends the editing, and the list is read anew.
    connect(m_listEditing, &ListEditing::nameEdited, this, &FullView::storeName, Qt::QueuedConnection);
    connect(ssnext, &QToolButton::clicked, this, [this] { moveBy(1); });
    connect(ssprevious, &QToolButton::clicked, this, [this] { moveBy(-1); });
    connect(CmdList, &QToolButton::clicked, this, &FullView::showList);
    connect(CmdTree, &QToolButton::clicked, this, &FullView::showTree);
    connect(CmdRefresh, &QToolButton::clicked, this, &FullView::refresh);
    connect(CmdView, &QToolButton::clicked, this, [this] {
        shared().CallerForm = m_kind.callerForm.toString();
        m_filterMenu->popup(CmdView->mapToGlobal(CmdView->rect().bottomLeft()));
    });
    connect(TabsEdit, &QTabWidget::currentChanged, this, &FullView::pageChanged);
    connect(m_edit, &FullViewEdit::saveRequested, this, &FullView::save);
    connect(m_header->SSCommand8, &QPushButton::clicked, this, &FullView::viewLinkedData);
    connect(m_header->SSCommand8, &QWidget::customContextMenuRequested, this,
        [this](const QPoint& at) { m_menu->popup(m_header->SSCommand8->mapToGlobal(at)); });
    connect(m_header->ix1, &widgets::PictureBox::clicked, this, &FullView::openPicture);
    for (QPushButton* label : {m_header->LblAsso1, m_header->LblAsso2})
        connect(label, &QPushButton::clicked, this, [this, label] { goToAssociate(widgets::textOf(label)); });
}

// Nothing is read but the keys of the list; the tree and the lists of the edit page are read when they are
// seen.
void FullView::load()
{
    openList(contactListSql());
}

bool FullView::showContact(qint64 id)
{
    const jet::Recordset contact
        = context().data.openRecordset(u"select * from [cnt_main] where id=%1"_s.arg(id));
    if (id == 0 || !contact.hasRow())
        return false;
    if (DBList1->rowOf(id) < 0)
        openList(contactListSql());
    // Kept: the list is searched for the name, so of two people with one name it stops at the first.
    const QString name = contact.textOrEmpty(u"Name");
    int row = DBList1->rowOf(id);
    while (row > 0 && DBList1->textAt(row - 1, u"Name"_s).compare(name, Qt::CaseInsensitive) == 0)
        --row;
    TabsEdit->setCurrentIndex(0);
    selectInList(DBList1->keyAt(row));
    tvwdb->reveal(contact.textOrEmpty(u"category1"), contact.textOrEmpty(u"category2"), name);
    return true;
}

void FullView::applyFilter(const QString& whereClause)
{
    openFound(contactListSql(whereClause));
}

void FullView::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (event->spontaneous())
        return;
    context().frame.setTitle(m_kind.frameTitle.toString());
    context().frame.showDate(
        widgets::formatDate(context().services.clock.today(), core::datePattern(shared().NationalMode)));
    // Another screen may have changed the book meanwhile.
    if (std::exchange(m_wasShown, true)) {
        reopenList();
        if (!tvwdb->isVisible())
            tvwdb->rebuild();
    }
}

void FullView::openList(const QString& sql)
{
    Data4 = sql;
    DBList1->fill(context().data.openRecordset(sql));
    // Said outright that no row is current, else the list takes its first row when it gets the focus.
    DBList1->setCurrentRow(-1);
    showCounter();
}

void FullView::openFound(const QString& sql)
{
    openList(sql);
    const int row = m_id == 0 ? -1 : DBList1->rowOf(m_id);
    DBList1->setCurrentRow(std::max(0, row));
}

void FullView::reopenList()
{
    openList(Data4);
    if (m_id != 0)
        selectInList(m_id);
}

void FullView::selectInList(qint64 id)
{
    const int row = DBList1->rowOf(id);
    if (row >= 0 && row == DBList1->currentRow()) {
        rowChanged(row);
    } else if (row >= 0) {
        DBList1->setCurrentRow(row);
    } else {
        DBList1->setCurrentRow(-1);
        showCounter();
        display(id);
    }
}

void FullView::rowChanged(int row)
{
    if (row < 0)
        return;
    shared().selectedContactId = DBList1->keyAt(row);
    shared().selectedContactName = DBList1->textAt(row, u"Name"_s);
    display(shared().selectedContactId);
    showCounter();
}

void FullView::moveBy(int step)
{
    const int row = DBList1->currentRow() + step;
    if (row >= 0 && row < DBList1->rowCount())
        DBList1->setCurrentRow(row);
}

void FullView::showCounter()
{
    const int row = DBList1->currentRow();
    lblCounter->setText(row < 0
            ? QString()
            : u"%1 of %2"_s.arg(QString::number(row + 1), QString::number(DBList1->rowCount())));
}

void FullView::display(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(contactByIdSql(id));
    if (!contact.hasRow())
        return displayNothing();
    m_id = id;
    showTexts(fullViewTexts(contact, shared().NationalMode));
    m_picture = contact.textOrEmpty(u"PhotLoc");
    m_header->showPicture(core::photoFile(context().services.drive, m_picture));
    m_record->setCurrentIndex(1);
    if (TabsEdit->currentIndex() == kEditPage && m_edit->contact() != id)
        m_edit->loadContact(id);
}

void FullView::displayNothing()
{
    m_id = 0;
    m_picture.clear();
    showTexts(fullViewTexts({}, shared().NationalMode));
    for (QWidget* control : std::as_const(m_controls))
        widgets::setTextOf(control, {});
    m_header->showPicture({});
    TabsEdit->setCurrentIndex(0);
    m_record->setCurrentIndex(0);
}

void FullView::showTexts(const QList<ShownText>& texts)
{
    for (const ShownText& shown : texts) {
        QWidget*& control = m_controls[shown.control];
        if (!control)
            control = widgets::child<QWidget>(this, shown.control);
        widgets::setTextOf(control, shown.text);
    }
    m_header->tidy({widgets::textOf(m_controls[u"txtJobTitle"_s]),
        widgets::textOf(m_controls[u"txtcompany"_s]), widgets::textOf(m_controls[u"txtCat"_s])});
}

void FullView::showList()
{
    m_lists->setCurrentWidget(DBList1);
    CmdList->setEnabled(false);
    CmdTree->setEnabled(true);
    DBList1->setFocus();
}

void FullView::showTree()
{
    m_lists->setCurrentWidget(tvwdb);
    CmdTree->setEnabled(false);
    CmdList->setEnabled(true);
    tvwdb->setFocus();
}

// The hidden list follows, so that both ways of browsing mean the same contact.
void FullView::chooseInTree(qint64 id)
{
    selectInList(id);
    shared().selectedContactId = id;
}

void FullView::refresh()
{
    openList(contactListSql());
    tvwdb->rebuild();
    if (m_id == 0)
        return;
    selectInList(m_id);
    const jet::Recordset contact = context().data.openRecordset(contactByIdSql(m_id));
    tvwdb->reveal(
        contact.textOrEmpty(u"category1"), contact.textOrEmpty(u"category2"), contact.textOrEmpty(u"Name"));
}

void FullView::pageChanged(int page)
{
    m_browser->setVisible(page != kEditPage);
    if (page == kEditPage) {
        m_edit->loadContact(m_id);
        playSound(core::sounds::Edit);
    }
}

void FullView::save()
{
    if (!m_edit->saveContact())
        return;
    refresh();
    playSound(core::sounds::Save);
    m_edit->tell(tr("Saved"));
    QTimer::singleShot(kSavedNoteMs, m_edit, [this] { m_edit->tell({}); });
}

void FullView::goToAssociate(const QString& name)
{
    const jet::Recordset contact = context().data.openRecordset(associateSql(name));
    if (!contact.hasRow())
        return;
    const qint64 id = contact.number(u"id");
    if (DBList1->rowOf(id) < 0)
        openList(contactListSql());
    selectInList(id);
}

void FullView::storeName(qint64 id, const QString& name)
{
    jet::Recordset row = context().data.openRecordset(u"SELECT id,name FROM cnt_main where id=%1"_s.arg(id));
    if (!row.hasRow())
        return;
    row.edit();
    row.set(u"name", name);
    row.update();
    reopenList();
}

// While there is no screen for it, the button offers the same menu as its right button.
void FullView::viewLinkedData()
{
    QAction* viewer = m_tools->action(u"ViewLinkedItem");
    if (viewer->isEnabled())
        viewer->trigger();
    else
        m_menu->popup(m_header->SSCommand8->mapToGlobal(m_header->SSCommand8->rect().bottomLeft()));
}

void FullView::openPicture()
{
    if (!m_picture.isEmpty())
        context().services.shell.openFile(m_picture);
}

QString FullView::shownName() const
{
    return widgets::textOf(m_header->SSCommand8);
}

} // namespace views
