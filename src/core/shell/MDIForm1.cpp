#include "core/shell/MDIForm1.h"

#include "core/date_patterns.h"
#include "core/paint_timing.h"
#include "core/screens.h"
#include "core/shell/frame_settings.h"
#include "core/shell/list_bar.h"
#include "core/shell/start_page.h"
#include "core/shell/tool_actions.h"
#include "core/shell/undo_command.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/special_folders.h"
#include "widgets/date_box.h"
#include "widgets/heading_grid.h"
#include "widgets/mnemonics.h"
#include "widgets/theme.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

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

/// The menu bar: a few menus, each holding pages of the tool bar table.
struct BarMenu {
    const char* caption;
    std::initializer_list<QStringView> pages;
};
const BarMenu kBarMenus[] = {
    {QT_TRANSLATE_NOOP("shell", "&Contacts"),
        {u"ID_AddM", u"ID_AddBasic", u"ID_Edit", u"AddressBook", u"Data", u"ID_DataTransfer"}},
    {QT_TRANSLATE_NOOP("shell", "&View"),
        {u"ID_AddBook", u"ID_ViewOther", u"ID_List", u"ID_Lookup", u"BirthdayList1"}},
    {QT_TRANSLATE_NOOP("shell", "C&ommunicate"),
        {u"ID_PDialer", u"ID_PhoneDialer", u"ID_Letter", u"ID_EMails"}},
    {QT_TRANSLATE_NOOP("shell", "&Tools"),
        {u"Functions", u"OtherFunctions", u"ID_Report", u"Setup", u"Programs"}},
};

/// Short ways to the most used tools.
struct MenuItem {
    QStringView name;
    QStringView tool;
};
constexpr MenuItem kMenuItems[] = {
    {u"addbook", u"Addbook"},
    {u"blist", u"BirthdayList"},
    {u"Email", u"EMails"},
    {u"ftree", u"FamilyTree"},
    {u"Letters", u"Letters"},
    {u"Lk", u"Linked"},
    {u"pdialer", u"Phone"},
};

constexpr int kNoticeMs = 8000;

QString translated(const char* text)
{
    return QCoreApplication::translate("shell", text);
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

    auto* listBar = new ListBar(isAvailable);
    m_listBarDock = new QDockWidget(tr("Areas"), this);
    m_listBarDock->setObjectName(u"ListBarDock"_s);
    m_listBarDock->setWidget(listBar);
    m_listBarDock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    addDockWidget(Qt::LeftDockWidgetArea, m_listBarDock);
    connect(listBar, &ListBar::chosen, this, [this](const core::Action& action) { perform(action); });
    connect(m_performer, &ActionPerformer::listBarHidden, m_listBarDock, &QWidget::hide);

    m_startPage = new StartPage(isAvailable);
    connect(m_startPage, &StartPage::toolWanted, this,
        [this](const QString& id) { perform(*core::toolAction(id)); });
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(u"ScreenTabs"_s);
    m_tabs->setDocumentMode(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &MDIForm1::closeTab);
    connect(m_tabs, &QTabWidget::currentChanged, this, &MDIForm1::showHead);
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_startPage);
    m_pages->addWidget(m_tabs);
    setCentralWidget(m_pages);

    buildToolBar();
    buildMenus();
    buildPanes();
    resize(1240, 780);
    recallWindow();
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
    }
}

void MDIForm1::buildMenus()
{
    for (const BarMenu& bar : kBarMenus) {
        QMenu* menu = menuBar()->addMenu(translated(bar.caption));
        for (const QStringView page : bar.pages)
            menu->addMenu(m_tools->page(page));
    }
    QMenu* view = menuBar()->actions().at(1)->menu();
    view->addSeparator();
    QAction* listBar = m_listBarDock->toggleViewAction();
    listBar->setObjectName(u"ShowListBar"_s);
    listBar->setText(tr("&List bar"));
    view->addAction(listBar);
    QAction* dark = view->addAction(tr("&Dark colours"));
    dark->setObjectName(u"DarkLook"_s);
    dark->setCheckable(true);
    dark->setChecked(widgets::currentLook() == widgets::Look::Dark);
    connect(dark, &QAction::toggled, this, &MDIForm1::toggleLook);
    QMenu* contacts = menuBar()->actions().at(0)->menu();
    contacts->addSeparator();
    contacts->addAction(m_tools->action(u"RestoreBackup"));
    contacts->addAction(m_tools->action(u"Exit"));
    QMenu* edit = new QMenu(tr("&Edit"), this);
    new UndoCommand(*m_context, edit);
    menuBar()->insertMenu(view->menuAction(), edit);
    addGoMenu();
    QMenu* help = menuBar()->addMenu(translated("&Help"));
    for (QAction* action : m_tools->page(u"Help")->actions())
        help->addAction(action);
    help->addMenu(m_tools->page(u"ID_Inormation"));
    // Shortcuts work also while their menu was never opened.
    for (const auto& command : core::toolCommands()) {
        if (QAction* action = m_tools->action(command.id))
            addAction(action);
    }
}

void MDIForm1::addGoMenu()
{
    QMenu* go = menuBar()->addMenu(tr("&Go"));
    for (const MenuItem& item : kMenuItems) {
        const QAction* tool = m_tools->action(item.tool);
        QAction* action = go->addAction(tool->icon(), tool->text());
        action->setObjectName(item.name.toString());
        action->setEnabled(tool->isEnabled());
        connect(action, &QAction::triggered, tool, &QAction::trigger);
        connect(tool, &QAction::visibleChanged, action,
            [tool, action] { action->setVisible(tool->isVisible()); });
    }
}

void MDIForm1::buildPanes()
{
    m_positionPane = new QLabel;
    m_positionPane->setObjectName(u"PositionPane"_s);
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
    const QString key = takeDeferredKey(m_context->data);
    if (const core::Action* action = core::keyAction(key))
        perform(*action);
}

void MDIForm1::place(core::Screen* screen, core::Shown shown)
{
    if (shown == core::Shown::Modally) {
        (new ScreenDialog(screen, this))->open();
        return;
    }
    int index = m_tabs->indexOf(screen);
    if (index < 0) {
        widgets::settleMnemonics(screen, menuLetters());
        index = m_tabs->addTab(screen, screen->windowTitle());
        connect(screen, &QWidget::windowTitleChanged, m_tabs, [this, screen](const QString& title) {
            m_tabs->setTabText(m_tabs->indexOf(screen), title);
            showHead();
        });
        connect(screen, &core::Screen::closeRequested, this,
            [this, screen] { closeTab(m_tabs->indexOf(screen)); });
        connect(screen, &core::Screen::headChanged, this, &MDIForm1::showHead);
    }
    m_tabs->setCurrentIndex(index);
    showTabOrStartPage();
    screen->setFocus();
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
    const auto* screen = qobject_cast<core::Screen*>(m_tabs->currentWidget());
    const QString title = screen ? screen->frameTitle() : QString();
    setWindowTitle(title.isEmpty() ? tr("Orvane Contacts") : title + u" - "_s + tr("Orvane Contacts"));
    m_positionPane->setText(screen ? screen->position() : QString());
}

void MDIForm1::showToday()
{
    m_datePane->setText(widgets::formatDate(
        m_context->services.clock.today(), core::datePattern(m_context->shared.NationalMode)));
}

void MDIForm1::showNotice(const QString& text, const QString&, std::function<void()>)
{
    statusBar()->showMessage(text, kNoticeMs);
}

void MDIForm1::undoLastChange()
{
    findChild<QAction*>(u"Undo"_s)->trigger();
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
    QSettings(windowStateFile(), QSettings::IniFormat).setValue(u"look"_s, dark ? u"dark"_s : u"light"_s);
}

// Only how the window looks on this computer is kept here; what the program does is set in the book.
QString MDIForm1::windowStateFile() const
{
    return QDir(m_context->services.drive.programFolder()).filePath(u"window.ini"_s);
}

void MDIForm1::rememberWindow() const
{
    QSettings state(windowStateFile(), QSettings::IniFormat);
    state.setValue(u"geometry"_s, saveGeometry());
    state.setValue(u"panes"_s, saveState());
}

void MDIForm1::recallWindow()
{
    const QSettings state(windowStateFile(), QSettings::IniFormat);
    restoreGeometry(state.value(u"geometry"_s).toByteArray());
    restoreState(state.value(u"panes"_s).toByteArray());
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
