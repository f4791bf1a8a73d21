#include "core/shell/MDIForm1.h"

#include "core/date_patterns.h"
#include "core/handover/contact_screen.h"
#include "core/paint_timing.h"
#include "core/screens.h"
#include "core/shell/frame_settings.h"
#include "core/shell/key_arbiter.h"
#include "core/shell/list_bar.h"
#include "core/shell/list_commands.h"
#include "core/shell/menu_table.h"
#include "core/shell/notice_strip.h"
#include "core/shell/screen_tabs.h"
#include "core/shell/start_page.h"
#include "core/shell/tool_actions.h"
#include "core/shell/undo_command.h"
#include "core/shell/window_state.h"
#include "jet/date_text.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/special_folders.h"
#include "widgets/heading_grid.h"
#include "widgets/mnemonics.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

/// The groups of the tool bar: the tool that a click performs, and the page that its arrow drops down.
struct BarGroup {
    QStringView tool;
    QStringView page;
    QStringView icon;
    const char* caption;
};
constexpr BarGroup kBarGroups[] = {
    {u"ID_Add", u"ID_AddM", u"person-add", QT_TRANSLATE_NOOP("shell", "Add")},
    {u"EditDD", u"ID_Edit", u"person-edit", QT_TRANSLATE_NOOP("shell", "Edit")},
    {u"ID_View", u"ID_AddBook", u"persons", QT_TRANSLATE_NOOP("shell", "View")},
    {u"ID_ViewOther", u"ID_ViewOther", u"picture", QT_TRANSLATE_NOOP("shell", "View other")},
    {u"Lookup", u"ID_Lookup", u"search", QT_TRANSLATE_NOOP("shell", "Look-up")},
    {u"AnnivOther", u"BirthdayList1", u"cake", QT_TRANSLATE_NOOP("shell", "Birthdays")},
    {u"PhoneDialer", u"ID_PDialer", u"phone", QT_TRANSLATE_NOOP("shell", "Telephone")},
    {u"ID_Letter12", u"ID_Letter", u"letter", QT_TRANSLATE_NOOP("shell", "Letters")},
    {u"E=Mail", u"ID_EMails", u"envelope", QT_TRANSLATE_NOOP("shell", "E-mail")},
    {u"ID_Data", u"Data", u"import", QT_TRANSLATE_NOOP("shell", "Transfer")},
    {u"ID_Print1", u"ID_Report", u"printer", QT_TRANSLATE_NOOP("shell", "Print")},
    {u"ID_Fun", u"Functions", u"family", QT_TRANSLATE_NOOP("shell", "Functions")},
    {u"ID_Setup", u"Setup", u"setup", QT_TRANSLATE_NOOP("shell", "Setup")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("shell", text);
}

/// An entry of a menu that does what a tool does, and is there when the tool is.
void followTool(QAction* entry, QAction* tool)
{
    entry->setIcon(tool->icon());
    entry->setToolTip(tool->toolTip());
    entry->setEnabled(tool->isEnabled());
    entry->setVisible(tool->isVisible());
    // The key is the tool's; here it is only told.
    entry->setText(entry->text() + u'\t' + tool->shortcut().toString(QKeySequence::NativeText));
    QObject::connect(entry, &QAction::triggered, tool, &QAction::trigger);
    QObject::connect(
        tool, &QAction::visibleChanged, entry, [entry, tool] { entry->setVisible(tool->isVisible()); });
}

/// The tool by which the screen deletes what it shows, when it has something to delete.
QAction* deletingTool(const core::Screen* screen)
{
    auto* tool = screen ? screen->findChild<QAction*>(u"Delete"_s) : nullptr;
    return tool && tool->isEnabled() ? tool : nullptr;
}

/// Holds a screen that is shown modally, and asks it before it closes, by whatever way.
class ScreenDialog : public QDialog {
public:
    ScreenDialog(core::Screen* screen, QWidget* parent)
        : QDialog(parent)
        , m_screen(screen)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(screen->windowTitle());
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(screen);
        screen->show(); // one that was a tab was hidden when it left
        // A dialog that sizes itself stays below two thirds of the display, which is too small for some.
        resize(sizeHint().boundedTo(parent->size()));
        connect(screen, &core::Screen::closeRequested, this, &QDialog::close);
        connect(screen, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    }

    void reject() override
    {
        if (m_screen->mayClose())
            QDialog::reject();
    }

private:
    core::Screen* m_screen;
};

bool isBehindADialog(const QWidget* frame)
{
    const auto dialogs = frame->findChildren<QDialog*>();
    return QApplication::activeModalWidget() || std::ranges::any_of(dialogs, [](const QDialog* dialog) {
        return dialog->isVisible() && dialog->isModal();
    });
}

} // namespace

MDIForm1::MDIForm1()
{
    setObjectName(u"MDIForm1"_s);
    setWindowTitle(tr("Orvane Contacts"));
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::build(core::Context& context)
{
    m_context = &context;
    m_performer = new ActionPerformer(context, this);
    connect(m_performer, &ActionPerformer::closeWanted, this, &QWidget::close);
    connect(m_performer, &ActionPerformer::restoreWanted, this, &MDIForm1::restoreWanted);
    connect(m_performer, &ActionPerformer::dropDownWanted, this, &MDIForm1::dropDown);
    const auto isAvailable = [this](const core::Action& action) { return canPerform(action); };

    m_tools = new ToolActions(isAvailable, this);
    connect(m_tools, &ToolActions::triggered, this,
        [this](const QString& id) { perform(*core::toolAction(id)); });

    m_listBar = new ListBar(isAvailable);
    m_listBarDock = new QDockWidget(tr("Areas"), this);
    m_listBarDock->setObjectName(u"ListBarDock"_s);
    m_listBarDock->setWidget(m_listBar);
    m_listBarDock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    addDockWidget(Qt::LeftDockWidgetArea, m_listBarDock);
    connect(m_listBar, &ListBar::chosen, this, [this](const core::Action& action) { perform(action); });
    connect(m_performer, &ActionPerformer::listBarHidden, m_listBarDock, &QWidget::hide);

    m_startPage = new StartPage(context, isAvailable);
    connect(m_startPage, &StartPage::toolWanted, this,
        [this](const QString& id) { perform(*core::toolAction(id)); });
    connect(m_startPage, &StartPage::contactWanted, this, &MDIForm1::showContact);
    m_tabs = new ScreenTabs;
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MDIForm1::closeTab);
    connect(m_tabs, &QTabWidget::currentChanged, this, &MDIForm1::showHead);
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_startPage);
    m_pages->addWidget(m_tabs);
    // A screen is as large as the frame lets it be; none makes the frame larger than the display.
    m_pages->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_notice = new NoticeStrip;
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_notice);
    setCentralWidget(centre);

    buildToolBar();
    buildMenus();
    buildPanes();
    resize(1240, 780);
    windowState().recallWindow(*this);
    core::reportFirstPaint(this);
}

void MDIForm1::buildToolBar()
{
    SSActiveToolBars1 = addToolBar(tr("Tools"));
    SSActiveToolBars1->setObjectName(u"SSActiveToolBars1"_s);
    SSActiveToolBars1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    SSActiveToolBars1->setIconSize({24, 24});
    SSActiveToolBars1->setMovable(false);
    SSActiveToolBars1->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const BarGroup& group : kBarGroups) {
        QAction* tool = m_tools->action(group.tool);
        auto* button = new QToolButton;
        button->setObjectName(u"group_"_s + group.tool.toString());
        button->setText(translated(group.caption));
        button->setToolTip(tool->toolTip());
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        button->setMenu(m_tools->page(group.page));
        widgets::setIcon(button, group.icon);
        // A group whose own tool has no screen yet still drops its page down.
        connect(button, &QToolButton::clicked, this, [tool, button] {
            if (tool->isEnabled())
                tool->trigger();
            else
                button->showMenu();
        });
        QAction* placed = SSActiveToolBars1->addWidget(button);
        connect(tool, &QAction::visibleChanged, placed,
            [tool, placed] { placed->setVisible(tool->isVisible()); });
        placed->setVisible(tool->isVisible());
    }
    widgets::letTextsGiveWay(SSActiveToolBars1);
}

void MDIForm1::fillMenu(QMenu* menu, std::span<const MenuRow> rows)
{
    for (const MenuRow& row : rows) {
        if (row.kind == MenuRow::Kind::Line) {
            menu->addSeparator();
            continue;
        }
        if (row.kind == MenuRow::Kind::Page) {
            QMenu* page = m_tools->page(row.id);
            if (row.caption)
                page->setTitle(translated(row.caption));
            menu->addMenu(page);
            continue;
        }
        QAction* tool = row.id.isEmpty() ? nullptr : m_tools->action(row.id);
        if (tool && !row.caption) {
            menu->addAction(tool);
            continue;
        }
        QAction* entry = menu->addAction(translated(row.caption));
        entry->setObjectName(row.name.isEmpty() ? u"menu_"_s + row.id.toString() : row.name.toString());
        if (tool)
            followTool(entry, tool);
    }
}

void MDIForm1::buildMenus()
{
    m_keys = new KeyArbiter([this]() -> QWidget* { return screenInFront(); }, this);
    const auto add = [this](const QString& caption, std::span<const MenuRow> rows) {
        QMenu* menu = menuBar()->addMenu(caption);
        fillMenu(menu, rows);
        return menu;
    };
    QMenu* contacts = add(tr("&Contacts"), contactsMenu());
    auto* deleting = contacts->findChild<QAction*>(u"DeleteContact"_s);
    widgets::setIcon(deleting, u"delete");
    connect(deleting, &QAction::triggered, this, &MDIForm1::deleteInFront);
    const auto look = [this, deleting] { deleting->setEnabled(deletingTool(screenInFront()) != nullptr); };
    look();
    connect(contacts, &QMenu::aboutToShow, this, look);
    connect(m_tabs, &QTabWidget::currentChanged, this, look);
    new ListCommands(
        *m_context, [this]() -> QWidget* { return screenInFront(); }, contacts, *m_keys);
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    new UndoCommand(*m_context, edit);
    edit->addSeparator();
    followTool(edit->addAction(tr("&Find")), m_tools->action(u"Search"));
    followTool(edit->addAction(tr("Address Book &Setup")), m_tools->action(u"CSetup"));
    buildViewMenu(add(tr("&View"), viewMenu()));
    add(tr("C&ommunicate"), communicateMenu());
    add(tr("&Tools"), toolsMenu());
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    for (QAction* action : m_tools->page(u"Help")->actions())
        help->addAction(action);
    help->addMenu(m_tools->page(u"ID_Inormation"));
    // Shortcuts work also while their menu was never opened, unless the screen in front has the same.
    for (const auto& command : core::toolCommands()) {
        QAction* action = m_tools->action(command.id);
        addAction(action);
        if (!action->shortcut().isEmpty())
            m_keys->add(action);
    }
    for (QAction* action : edit->actions())
        m_keys->add(action);
}

void MDIForm1::buildViewMenu(QMenu* view)
{
    QAction* listBar = m_listBarDock->toggleViewAction();
    listBar->setObjectName(u"ShowListBar"_s);
    listBar->setText(tr("&Areas at the side"));
    view->addAction(listBar);
    QAction* dark = view->addAction(tr("&Dark colours"));
    dark->setObjectName(u"DarkLook"_s);
    dark->setCheckable(true);
    dark->setChecked(widgets::currentLook() == widgets::Look::Dark);
    connect(dark, &QAction::toggled, this, &MDIForm1::toggleLook);
    QAction* toCome = view->addAction(tr("Show what is still to &come"));
    toCome->setObjectName(u"ShowWhatIsToCome"_s);
    toCome->setCheckable(true);
    connect(toCome, &QAction::toggled, this, &MDIForm1::showWhatIsToCome);
    toCome->setChecked(windowState().showsAll());
    QAction* closing = view->addAction(tr("Close the &tab"));
    closing->setObjectName(u"CloseTab"_s);
    closing->setShortcut(QKeySequence(u"Ctrl+W"_s));
    connect(closing, &QAction::triggered, this, [this] { closeTab(m_tabs->currentIndex()); });
    m_keys->add(closing);
    const auto look = [this, closing] { closing->setEnabled(m_tabs->count() > 0); };
    look();
    connect(m_tabs, &QTabWidget::currentChanged, this, look);
}

void MDIForm1::buildPanes()
{
    m_positionPane = new QLabel;
    m_positionPane->setObjectName(u"PositionPane"_s);
    m_positionPane->setTextFormat(Qt::PlainText);
    m_positionPane->setMinimumWidth(110);
    m_datePane = new QLabel;
    m_datePane->setObjectName(u"DatePane"_s);
    statusBar()->addPermanentWidget(m_positionPane);
    statusBar()->addPermanentWidget(m_datePane);
}

void MDIForm1::loadFrame()
{
    if (std::exchange(m_loaded, true))
        return;
    core::SharedState& shared = m_context->shared;
    const QDate today = m_context->services.clock.today();
    shared.DocumentsPath = m_context->services.folders.SpecialFolderPath(5);
    shared.AppTitle = u"Orvane Contacts"_s;
    const FrameSettings settings = readFrameSettings(m_context->data, shared);
    widgets::setGridFontSize(shared.GridFontSize);
    m_tools->showPersonalTools(!settings.business);
    m_startPage->showBirthdays(!settings.business);
    m_tools->showCityTools(shared.NationalMode);
    showToday();
    m_startPage->setToday(today);
    shared.ModuleName = u"Contacts"_s;
    makeUserFolders(m_context->services.drive);
    offerDueMails();
}

void MDIForm1::reloadFrame()
{
    m_loaded = false;
    loadFrame();
    showTabOrStartPage();
}

void MDIForm1::offerDueMails()
{
    const auto due = m_context->data.openRecordset(dueMailsSql(m_context->services.clock.today()));
    if (due.isEmpty())
        return;
    const auto answer = m_context->services.boxes.ask(
        tr("Do you want to send all confirmed pending emails"), m_context->shared.AppTitle);
    // The mails stay where they are until the screen that sends them is there.
    if (answer == platform::Answer::Yes)
        m_context->screens.show(u"frmTimedEmail");
}

bool MDIForm1::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_loaded)
        activate();
    return QMainWindow::event(event);
}

void MDIForm1::activate()
{
    if (!std::exchange(m_wasActivated, true))
        Q_EMIT firstActivated();
    // Behind the first picture of the frame, which nobody should wait for.
    if (std::exchange(m_hasLastScreens, false))
        QTimer::singleShot(0, this, &MDIForm1::openLastScreens);
    const QString key = takeDeferredKey(m_context->data);
    if (const core::Action* action = core::keyAction(key))
        perform(*action);
}

// A screen that is open stays where it is, whichever way it is asked for. Only from within a dialog, which
// lets nothing behind it be reached, a tab becomes a dialog too.
void MDIForm1::place(core::Screen* screen, core::Shown shown)
{
    const int index = m_tabs->indexOf(screen);
    const bool isOutOfReach = index >= 0 && isBehindADialog(this);
    if (index >= 0 && !isOutOfReach) {
        m_tabs->setCurrentIndex(index);
    } else if (auto* dialog = dynamic_cast<ScreenDialog*>(screen->window()); dialog && dialog->isVisible()) {
        dialog->raise();
        dialog->activateWindow();
    } else if (shown == core::Shown::Modally || isOutOfReach) {
        if (index >= 0) {
            m_tabs->removeTab(index);
            disconnect(screen, nullptr, this, nullptr);
            showTabOrStartPage();
        }
        widgets::settleMnemonics(screen, {});
        (new ScreenDialog(screen, this))->open();
        return;
    } else {
        addTab(screen);
    }
    showTabOrStartPage();
    screen->setFocus();
}

void MDIForm1::addTab(core::Screen* screen)
{
    widgets::settleMnemonics(screen, menuLetters());
    m_tabs->setCurrentIndex(m_tabs->addTab(screen, {}));
    const auto name = [this, screen] {
        m_tabs->setTabText(m_tabs->indexOf(screen), nameOf(screen).replace(u'&', u"&&"_s)); // no mnemonic
        showHead();
    };
    name();
    connect(screen, &QWidget::windowTitleChanged, this, name);
    connect(screen, &core::Screen::headChanged, this, name);
    connect(
        screen, &core::Screen::closeRequested, this, [this, screen] { closeTab(m_tabs->indexOf(screen)); });
}

// One name in tab and title. Where two screens share a title each has its own.
QString MDIForm1::nameOf(const core::Screen* screen) const
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        const auto* other = qobject_cast<core::Screen*>(m_tabs->widget(i));
        if (other && other != screen && other->frameTitle() == screen->frameTitle())
            return screen->windowTitle();
    }
    return screen->frameTitle();
}

core::Screen* MDIForm1::screenInFront() const
{
    return qobject_cast<core::Screen*>(m_tabs->currentWidget());
}

void MDIForm1::bringForward(core::Screen* screen)
{
    if (const int index = m_tabs->indexOf(screen); index >= 0)
        m_tabs->setCurrentIndex(index);
    else
        screen->window()->activateWindow();
}

/// The letters that open the menus, whatever screen is in front.
QString MDIForm1::menuLetters() const
{
    QString letters;
    for (const QAction* menu : menuBar()->actions())
        letters += widgets::mnemonicOf(menu->text());
    return letters.remove(QChar());
}

void MDIForm1::closeTab(int index)
{
    auto* screen = qobject_cast<core::Screen*>(m_tabs->widget(index));
    if (!screen || !screen->mayClose())
        return;
    m_tabs->removeTab(index);
    m_context->screens.unload(screen->objectName());
    showTabOrStartPage();
}

void MDIForm1::showTabOrStartPage()
{
    const bool empty = m_tabs->count() == 0;
    m_pages->setCurrentWidget(empty ? static_cast<QWidget*>(m_startPage) : m_tabs);
    showHead();
}

void MDIForm1::showHead()
{
    const core::Screen* screen = screenInFront();
    const QString title = screen ? nameOf(screen) : QString();
    const QString program = tr("Orvane Contacts");
    setWindowTitle(title.startsWith(program) ? title
            : title.isEmpty()                ? program
                                             : title + u" - "_s + program);
    m_positionPane->setText(screen ? screen->position() : QString());
}

void MDIForm1::showToday()
{
    m_datePane->setText(jet::formatDate(
        m_context->services.clock.today(), core::datePattern(m_context->shared.NationalMode)));
}

void MDIForm1::showNotice(const QString& text, const QString& actionText, std::function<void()> action)
{
    m_notice->showNotice(text, actionText, std::move(action));
}

void MDIForm1::showContact(qint64 id)
{
    if (auto* view = m_context->screens.load<core::ContactScreen>(u"FullView")) {
        view->showContact(id);
        m_context->screens.show(u"FullView");
    }
}

void MDIForm1::deleteInFront()
{
    if (QAction* tool = deletingTool(screenInFront()))
        tool->trigger();
}

bool MDIForm1::perform(const core::Action& action)
{
    return m_performer->perform(action);
}
bool MDIForm1::canPerform(const core::Action& action) const
{
    return m_performer->canPerform(action);
}

void MDIForm1::dropDown(const QString& page)
{
    if (QMenu* menu = m_tools->page(page))
        menu->popup(QCursor::pos());
}

void MDIForm1::toggleLook(bool dark)
{
    widgets::apply(*qApp, dark ? widgets::Look::Dark : widgets::Look::Light);
    windowState().rememberLook(dark);
}

void MDIForm1::showWhatIsToCome(bool shown)
{
    m_tools->showWhatIsToCome(shown);
    m_listBar->showWhatIsToCome(shown);
    m_startPage->showWhatIsToCome(shown);
    windowState().rememberShowingAll(shown);
}

WindowState MDIForm1::windowState() const
{
    return WindowState(QDir(m_context->services.drive.programFolder()).filePath(u"window.ini"_s));
}

void MDIForm1::rememberWindow() const
{
    windowState().rememberWindow(*this);
    QStringList forms;
    for (int i = 0; i < m_tabs->count(); ++i)
        forms << m_tabs->widget(i)->objectName();
    const core::Screen* inFront = screenInFront();
    windowState().rememberScreens(forms, inFront ? inFront->objectName() : QString());
}

// Those that a tool opens; others need somebody who tells them what to show.
void MDIForm1::openLastScreens()
{
    const auto opens = [](const core::Command& command, const QString& form) {
        const auto* open = std::get_if<core::OpenScreen>(&command.action);
        return open && open->form == form && open->page.isEmpty();
    };
    const auto commands = core::toolCommands();
    const WindowState state = windowState();
    for (const QString& form : state.screens()) {
        const auto command
            = std::ranges::find_if(commands, [&](const core::Command& each) { return opens(each, form); });
        if (command != commands.end() && !m_context->screens.find(form))
            perform(command->action);
    }
    if (core::Screen* inFront = m_context->screens.find(state.screenInFront()))
        bringForward(inFront);
}

void MDIForm1::closeEvent(QCloseEvent* event)
{
    if (!m_context->screens.mayCloseAll()) {
        event->ignore();
        return;
    }
    rememberWindow();
    event->accept();
    m_context->services.shell.endProgram();
}

} // namespace shell
