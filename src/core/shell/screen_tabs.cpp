#include "core/shell/screen_tabs.h"

#include "widgets/theme.h"

#include <QMenu>
#include <QMouseEvent>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace shell {

ScreenTabs::ScreenTabs(QWidget* parent)
    : QTabWidget(parent)
    , m_list(new QToolButton(this))
{
    setObjectName(u"ScreenTabs"_s);
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setUsesScrollButtons(true);
    tabBar()->installEventFilter(this);
    m_list->setObjectName(u"cmdTabList"_s);
    m_list->setAccessibleName(tr("Open screens"));
    m_list->setToolTip(tr("Open screens"));
    m_list->setPopupMode(QToolButton::InstantPopup);
    m_list->setAutoRaise(true);
    widgets::setIcon(m_list, u"list");
    auto* menu = new QMenu(m_list);
    m_list->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &ScreenTabs::listTabs);
    m_list->hide();
}

bool ScreenTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == tabBar() && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int index = tabBar()->tabAt(mouse->position().toPoint());
        if (mouse->button() == Qt::MiddleButton && index >= 0) {
            Q_EMIT tabCloseRequested(index);
            return true;
        }
    }
    return QTabWidget::eventFilter(watched, event);
}

void ScreenTabs::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    offerList();
}

void ScreenTabs::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    offerList();
}

// A hidden widget in the corner would leave a hole in the line below the tabs.
void ScreenTabs::offerList()
{
    setCornerWidget(count() > 1 ? m_list : nullptr);
    m_list->setVisible(count() > 1);
}

void ScreenTabs::listTabs()
{
    QMenu* menu = m_list->menu();
    menu->clear();
    for (int i = 0; i < count(); ++i) {
        QAction* entry = menu->addAction(tabText(i));
        entry->setCheckable(true);
        entry->setChecked(i == currentIndex());
        connect(entry, &QAction::triggered, this, [this, screen = widget(i)] { setCurrentWidget(screen); });
    }
}

} // namespace shell
