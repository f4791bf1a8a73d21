#pragma once

#include "core/frame.h"
#include "core/shell/action_performer.h"

#include <QMainWindow>

#include <span>

class QDockWidget;
class QLabel;
class QMenu;
class QStackedWidget;
class QToolBar;

namespace shell {

class KeyArbiter;
class ListBar;
struct MenuRow;
class NoticeStrip;
class ScreenTabs;
class StartPage;
class ToolActions;
class WindowState;

/// The frame of the program: tool bar and menus from the tool bar table, the list bar, the status panes, and
/// the screens as tabs. Built while the splash waits; reads nothing before loadFrame().
class MDIForm1 : public QMainWindow, public core::Frame {
    Q_OBJECT

public:
    /// Made without a context, since the context holds the frame; build() completes it.
    MDIForm1();
    ~MDIForm1() override;

    void build(core::Context& context);
    /// Load: the switches, the folders, the mails that are due.
    void loadFrame();
    /// Load once more, after the book was exchanged: no screen is open any more.
    void reloadFrame();

    void place(core::Screen* screen, core::Shown shown) override;
    void bringForward(core::Screen* screen) override;
    void showNotice(
        const QString& text, const QString& actionText = {}, std::function<void()> action = {}) override;
    bool perform(const core::Action& action) override;
    bool canPerform(const core::Action& action) const override;

Q_SIGNALS:
    void firstActivated(); ///< the splash can go
    void restoreWanted();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildToolBar();
    void buildMenus();
    void buildPanes();
    void buildViewMenu(QMenu* view);
    void fillMenu(QMenu* menu, std::span<const MenuRow> rows);
    void activate();
    void dropDown(const QString& page);
    QString menuLetters() const;
    void addTab(core::Screen* screen);
    void closeTab(int index);
    void showContact(qint64 id);
    void deleteInFront();
    void openLastScreens();
    core::Screen* screenInFront() const;
    QString nameOf(const core::Screen* screen) const;
    void showTabOrStartPage();
    void showHead(); ///< title and position of the screen in front
    void showToday();
    void toggleLook(bool dark);
    void offerDueMails();
    void showWhatIsToCome(bool shown);
    void rememberWindow() const;
    WindowState windowState() const;

    core::Context* m_context = nullptr;
    ActionPerformer* m_performer = nullptr;
    ToolActions* m_tools = nullptr;
    QToolBar* SSActiveToolBars1 = nullptr;
    QDockWidget* m_listBarDock = nullptr;
    QStackedWidget* m_pages = nullptr;
    StartPage* m_startPage = nullptr;
    ScreenTabs* m_tabs = nullptr;
    NoticeStrip* m_notice = nullptr;
    ListBar* m_listBar = nullptr;
    KeyArbiter* m_keys = nullptr;
    QLabel* m_positionPane = nullptr;
    QLabel* m_datePane = nullptr;
    bool m_loaded = false;
    bool m_wasActivated = false;
    bool m_hasLastScreens = true; ///< of the last run, not yet opened again
};

} // namespace shell
