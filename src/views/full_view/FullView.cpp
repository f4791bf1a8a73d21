#include "views/full_view/FullView.h"

#include "core/contact_lookups.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/list_presenter.h"
#include "core/photo_file.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "views/command_button.h"
#include "views/contact_pages/contact_page.h"
#include "views/contact_pages/record_texts.h"
#include "views/full_view/address_source.h"
#include "views/full_view/category_tree.h"
#include "views/full_view/full_view_edit.h"
#include "views/full_view/full_view_header.h"
#include "views/full_view/full_view_pages.h"
#include "views/full_view/full_view_sql.h"
#include "views/full_view/keyword_panel.h"
#include "views/full_view/list_editing.h"
#include "views/full_view/listed_book.h"
#include "widgets/fields.h"
#include "widgets/found_strip.h"
#include "widgets/picture_box.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
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
constexpr QStringView kPhotoViewer = u"\\Orvane Photo Viewer.exe";

} // namespace

FullView::FullView(core::Context& context, QWidget* parent)
    : FullView(context, kFullView, parent)
{
}

FullView::FullView(core::Context& context, const FullViewKind& kind, QWidget* parent)
    : Screen(context, parent)
    , m_kind(kind)
    , m_tools(new core::ContactTools(context, core::viewTools(),
          {.callerForm = kind.callerForm.toString(),
              .chosen =
                  [this] {
                      return core::ChosenContact{m_id, DBList1->currentKey(), shownName()};
                  },
              .tellsName = true,
              .needsName = false},
          this))
    , DBList1(new widgets::RecordList)
    , tvwdb(new CategoryTree(context.data))
    , frmkeyword(new KeywordPanel)
    , m_listEditing(new ListEditing(DBList1))
    , m_header(new FullViewHeader)
    , m_edit(new FullViewEdit(context))
    , m_found(new widgets::FoundStrip)
    , m_list(new core::ListPresenter(context.data, DBList1, this))
    , lblCounter(new QLabel)
    , ssprevious(
          commandButton(u"ssprevious"_s, u"previous", tr("Previous contact"), {}, Qt::CTRL | Qt::Key_Up))
    , ssnext(commandButton(u"ssnext"_s, u"next", tr("Next contact"), {}, Qt::CTRL | Qt::Key_Down))
    , CmdList(commandButton(u"CmdList"_s, u"list", tr("Show the list of all contacts"), tr("List")))
    , CmdTree(commandButton(u"CmdTree"_s, u"tree", tr("Show the contacts by category"), tr("Tree")))
    , CmdView(commandButton(u"CmdView"_s, u"filter", tr("Filter the list")))
    , CmdRefresh(commandButton(u"CmdRefresh"_s, u"restore", tr("Show all contacts again"), {}, Qt::Key_F5))
{
    setWindowTitle(QCoreApplication::translate("views", kind.title));
    m_book = std::make_unique<OwnBook>(*this);
    m_list->setStrip(m_found, core::contactCountSql());
    m_list->showBrokenAsEmpty();
    layOut();
    makeMenus();
    connectControls();
}

FullView::~FullView() = default;

void FullView::addCommandRow(QWidget* row)
{
    static_cast<QVBoxLayout*>(m_browser->layout())->insertWidget(1, row);
}

void FullView::makeMenus()
{
    m_tools->action(u"Edit")->setCheckable(true);
    m_menu = m_tools->makeMenu(u"Menu"_s, this);
    m_tools->addReplaceMenu(m_menu);
    m_filterMenu = new QMenu(this);
    m_filterMenu->setObjectName(u"FilterMenu"_s);
    m_filterMenu->setToolTipsVisible(true);
    for (const QStringView id : {u"CommonFilter", u"TabFilter", u"Search"})
        m_filterMenu->addAction(m_tools->action(id));
    CmdView->setMenu(m_filterMenu);
    CmdView->setPopupMode(QToolButton::MenuButtonPopup);

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
    connect(m_list, &core::ListPresenter::currentChanged, this, &FullView::rowChanged);
    connect(tvwdb, &CategoryTree::contactChosen, this, &FullView::chooseInTree);
    connect(frmkeyword, &KeywordPanel::searched, this, [this](const QString& keyword) {
        if (!mayLeaveEdit())
            return;
        openFound(keywordSql(keyword), tr("Keyword: %1").arg(keyword));
        frmkeyword->hide();
    });
    connect(m_tools->action(u"Search"), &QAction::triggered, frmkeyword, &KeywordPanel::open);
    connect(m_tools->action(u"Edit"), &QAction::triggered, m_listEditing, &ListEditing::setEditable);
    // Later, since a step to another row ends the editing, and the list is read anew.
    connect(m_listEditing, &ListEditing::nameEdited, this, &FullView::storeName, Qt::QueuedConnection);
    connect(ssnext, &QToolButton::clicked, this, [this] { moveBy(1); });
    connect(ssprevious, &QToolButton::clicked, this, [this] { moveBy(-1); });
    connect(CmdList, &QToolButton::clicked, this, &FullView::showList);
    connect(CmdTree, &QToolButton::clicked, this, &FullView::showTree);
    connect(CmdRefresh, &QToolButton::clicked, this, &FullView::refresh);
    connect(m_found, &widgets::FoundStrip::clearWanted, this, &FullView::refresh);
    connect(m_header, &FullViewHeader::reachChosen, m_pages->summary(), &ContactPage::follow);
    connect(m_pages->summary(), &ContactPage::contactChosen, this, &FullView::goToAssociate);
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
    setFrameTitle(m_kind.frameTitle.toString());
    openList(core::contactListSql());
}

bool FullView::showContact(qint64 id)
{
    const jet::Recordset contact
        = context().data.openRecordset(u"select * from [cnt_main] where id=%1"_s.arg(id));
    if (id == 0 || !contact.hasRow())
        return false;
    if (!mayLeaveEdit())
        return true;
    listOwnBook();
    if (DBList1->rowOf(id) < 0)
        openList(core::contactListSql());
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
    if (!mayLeaveEdit())
        return;
    listOwnBook();
    openFound(core::contactListSql(whereClause), tr("Filter"));
}

void FullView::bookChanged()
{
    // What is being entered stays until it is saved or left.
    if (isTouched())
        return;
    m_book->listAgain();
    tvwdb->rebuild();
    if (TabsEdit->currentIndex() == kEditPage)
        m_edit->loadContact(m_id);
}

bool FullView::isTouched() const
{
    return TabsEdit->currentIndex() == kEditPage && m_edit->isTouched();
}

// What was typed is gone only after a Yes.
bool FullView::mayLeaveEdit()
{
    if (!isTouched())
        return true;
    if (!mayDiscard())
        return false;
    m_edit->loadContact(m_id);
    return true;
}

void FullView::openList(const QString& sql, const QString& foundBy)
{
    m_list->open(sql, foundBy);
    showCounter();
}

// What was found is seen, also when the tree was in front.
void FullView::openFound(const QString& sql, const QString& foundBy)
{
    openList(sql, foundBy);
    showList();
    if (DBList1->rowCount() == 0)
        return displayNothing();
    selectInList(m_id != 0 && DBList1->rowOf(m_id) >= 0 ? m_id : DBList1->keyAt(0));
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

void FullView::browse(std::unique_ptr<AddressSource> source)
{
    if (source)
        listBook(std::make_unique<OtherBook>(*this, std::move(source)));
    else
        listBook(std::make_unique<OwnBook>(*this));
}

void FullView::listOwnBook()
{
    if (!m_book->isOwn())
        browse(nullptr);
}

void FullView::listBook(std::unique_ptr<ListedBook> book)
{
    // The rows go first, since they ask the old book for their texts.
    DBList1->clearRows();
    m_book = std::move(book);
    const bool own = m_book->isOwn();
    m_tools->action(u"Edit")->setChecked(false);
    m_listEditing->setEditable(false);
    for (const QStringView id : {u"Edit", u"Search"})
        m_tools->action(id)->setEnabled(own);
    frmkeyword->hide();
    m_lists->setCurrentWidget(m_listPage);
    CmdList->setEnabled(false);
    CmdTree->setEnabled(own);
    TabsEdit->setTabEnabled(kEditPage, own);
    m_pages->showBook(own);
    m_found->hide();
    displayNothing();
    m_book->list();
    Q_EMIT bookChosen(own);
}

void FullView::rowChanged(int row)
{
    if (row >= 0)
        m_book->show(row);
}

void FullView::moveBy(int step)
{
    if (mayLeaveEdit())
        m_list->moveBy(step);
}

void FullView::showCounter()
{
    lblCounter->setText(m_list->position());
}

void FullView::display(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(id));
    if (!contact.hasRow())
        return displayNothing();
    m_id = id;
    showTexts(fullViewTexts(contact, shared().NationalMode));
    showSummary(contact);
    m_picture = contact.textOrEmpty(u"PhotLoc");
    m_header->showPicture(core::photoFile(context().services.drive, m_picture));
    m_record->setCurrentIndex(1);
    if (TabsEdit->currentIndex() == kEditPage && m_edit->contact() != id)
        m_edit->loadContact(id);
}

void FullView::showSummary(const jet::Recordset& contact)
{
    const QStringList labels = core::userFieldLabels(core::readSettings(context().data));
    const NoteHead head = noteHead(contact);
    m_pages->showUserLabels(labels);
    m_pages->summary()->showContact(m_id, head.name,
        noteSections(
            contact, NoteView::Full, {shared().NationalMode, context().services.clock.today(), labels}));
    m_header->showReach(head.mobile, head.mail);
}

void FullView::displayNothing()
{
    m_id = 0;
    m_picture.clear();
    showTexts(fullViewTexts({}, shared().NationalMode));
    for (QWidget* control : std::as_const(m_controls))
        widgets::setTextOf(control, {});
    m_pages->summary()->showContact(0, {}, {});
    m_header->showReach({}, {});
    m_header->showPicture({});
    m_header->showPlainName({});
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
    m_lists->setCurrentWidget(m_listPage);
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
    if (mayLeaveEdit())
        m_book->listAll();
}

void FullView::pageChanged(int page)
{
    if (page != kEditPage && m_edit->isTouched()) {
        if (!mayDiscard())
            return TabsEdit->setCurrentIndex(kEditPage);
        m_edit->loadContact(m_id);
    }
    const bool wasHidden = m_browser->isHidden();
    m_browser->setVisible(page != kEditPage);
    // Back on the page after a No, it is as it was left.
    if (page == kEditPage && !wasHidden) {
        m_edit->loadContact(m_id);
        playSound(core::sounds::Edit);
    }
}

void FullView::save()
{
    if (!m_edit->saveContact())
        return;
    refresh();
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    m_edit->tell(tr("Saved"));
    tellSaved(shownName());
    QTimer::singleShot(kSavedNoteMs, m_edit, [this] { m_edit->tell({}); });
}

void FullView::goToAssociate(const QString& name)
{
    const jet::Recordset contact = context().data.openRecordset(associateSql(name));
    if (!contact.hasRow() || !mayLeaveEdit())
        return;
    const qint64 id = contact.number(u"id");
    if (DBList1->rowOf(id) < 0)
        openList(core::contactListSql());
    selectInList(id);
}

void FullView::storeName(qint64 id, const QString& name)
{
    jet::Recordset row = context().data.openRecordset(u"SELECT id,name FROM cnt_main where id=%1"_s.arg(id));
    if (!row.hasRow())
        return;
    row.edit();
    row.set(u"name", name);
    const bool isStored = row.update();
    m_book->listAgain();
    if (!isStored)
        return core::tellFailedSave(context());
    context().screens.tellBookChanged(this);
    tellSaved(name);
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
    if (m_picture.isEmpty())
        return;
    platform::Shell& desktop = context().services.shell;
    if (!desktop.siblingExists(kPhotoViewer) || !desktop.startSibling(kPhotoViewer, m_picture))
        desktop.openFile(m_picture);
}

QString FullView::shownName() const
{
    return widgets::textOf(m_header->SSCommand8);
}

} // namespace views
