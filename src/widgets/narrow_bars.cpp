#include "widgets/narrow_bars.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include <utility>

namespace widgets {

namespace {

constexpr auto kOwnStyle = "styleWithRoom"; ///< of a tool button
constexpr auto kSettledFor = "settledFor"; ///< of a tool bar: its width and its tools

/// Looks anew when the bar becomes wider or narrower, or when what stands on it changes.
template <class Bar> class Narrowing final : public QObject {
public:
    Narrowing(Bar* bar, void (*settle)(Bar*))
        : QObject(bar)
        , m_bar(bar)
        , m_settle(settle)
    {
        bar->installEventFilter(this);
        // A bar of tabs may be no longer than its tabs, whatever room there is.
        if (QWidget* place = bar->parentWidget())
            place->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool result = QObject::eventFilter(watched, event);
        const auto type = event->type();
        if ((type == QEvent::Resize || type == QEvent::LayoutRequest || type == QEvent::Show)
            && !std::exchange(m_isSettling, true)) {
            m_settle(m_bar);
            m_isSettling = false;
        }
        return result;
    }

private:
    Bar* m_bar;
    void (*m_settle)(Bar*);
    bool m_isSettling = false;
};

void settleTools(QToolBar* bar)
{
    QList<std::pair<QToolButton*, Qt::ToolButtonStyle>> buttons;
    QString state = QString::number(bar->width());
    for (const QAction* tool : bar->actions())
        state += tool->isVisible() ? u'|' + tool->text() : QString(u'-');
    if (bar->property(kSettledFor).toString() == state)
        return;
    bar->setProperty(kSettledFor, state);
    for (QAction* tool : bar->actions()) {
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(tool));
        if (!button || button->icon().isNull())
            continue;
        if (!button->property(kOwnStyle).isValid())
            button->setProperty(kOwnStyle, int(button->toolButtonStyle()));
        buttons.emplace_back(button, Qt::ToolButtonStyle(button->property(kOwnStyle).toInt()));
    }
    for (const auto& [button, own] : buttons)
        button->setToolButtonStyle(own);
    // From the end, where the tools stand that are used least.
    for (auto it = buttons.crbegin(); it != buttons.crend(); ++it) {
        bar->layout()->invalidate();
        if (bar->layout()->sizeHint().width() <= bar->width())
            return;
        it->first->setToolButtonStyle(Qt::ToolButtonIconOnly);
    }
    bar->layout()->invalidate();
}

void settleTabs(QTabBar* bar)
{
    const auto* tabs = static_cast<QTabWidget*>(bar->parentWidget());
    const int ordinary = bar->style()->pixelMetric(QStyle::PM_TabBarIconSize, nullptr, bar);
    int needed = 0;
    const int taken = bar->iconSize().width();
    for (int i = 0; i < bar->count(); ++i) {
        if (bar->isTabVisible(i))
            needed += bar->tabRect(i).width() + (bar->tabIcon(i).isNull() ? 0 : ordinary - taken);
    }
    const int side = needed > tabs->width() ? 0 : ordinary;
    if (side != taken)
        bar->setIconSize({side, side});
}

} // namespace

void letTextsGiveWay(QToolBar* bar)
{
    new Narrowing<QToolBar>(bar, settleTools);
}

void letIconsGiveWay(QTabWidget* tabs)
{
    new Narrowing<QTabBar>(tabs->tabBar(), settleTabs);
}

} // namespace widgets
