#include "core/tool_set.h"

#include "core/screens.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <utility>

namespace core {

namespace {

bool isAvailable(const Tool& tool, const Screens& screens)
{
    if (tool.task == ToolTask::NotYet)
        return false;
    return tool.form.isEmpty() || screens.has(tool.form)
        || (!tool.orForm.isEmpty() && screens.has(tool.orForm));
}

} // namespace

ToolSet::ToolSet(Screens& screens, const ToolTable& table, QWidget* screen)
    : QObject(screen)
    , m_tools(table.tools)
{
    for (const Tool& tool : m_tools)
        addAction(screens, tool, table.translationContext, screen);
}

void ToolSet::addAction(Screens& screens, const Tool& tool, const char* translationContext, QWidget* screen)
{
    const QString text = QCoreApplication::translate(translationContext, tool.text);
    const QString toolTip = tool.toolTip ? QCoreApplication::translate(translationContext, tool.toolTip)
                                         : QString(text).remove(u'&');
    auto* action = new QAction(text, screen);
    action->setObjectName(tool.id.toString());
    widgets::setIcon(action, tool.icon);
    const bool available = isAvailable(tool, screens);
    action->setEnabled(available);
    action->setToolTip(available ? toolTip : tr("%1\nNot available yet").arg(toolTip));
    if (tool.key != 0)
        action->setShortcut(QKeyCombination::fromCombined(tool.key));
    if (tool.key != 0 && tool.keyIn == Tool::KeyIn::Screen) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        screen->addAction(action);
    } else {
        action->setShortcutContext(Qt::WidgetShortcut);
    }
    if (tool.task == ToolTask::Open)
        connect(action, &QAction::triggered, this, [&screens, &tool] { screens.show(tool.form); });
    else
        connect(action, &QAction::triggered, this, [this, &tool] { Q_EMIT triggered(tool); });
    m_actions.insert(tool.id.toString(), action);
}

QAction* ToolSet::action(QStringView id) const
{
    QAction* found = m_actions.value(id.toString());
    Q_ASSERT_X(found, "ToolSet::action", qUtf8Printable(id.toString()));
    return found;
}

QToolBar* ToolSet::makeToolBar(QWidget* parent) const
{
    auto* bar = new QToolBar(parent);
    bar->setIconSize({20, 20});
    addTo(bar);
    widgets::letTextsGiveWay(bar);
    return bar;
}

QMenu* ToolSet::makeMenu(const QString& name, QWidget* parent, int place) const
{
    auto* menu = new QMenu(parent);
    menu->setObjectName(name);
    menu->setToolTipsVisible(true);
    addTo(menu, {}, place);
    return menu;
}

void ToolSet::addTo(QToolBar* bar, const QStringList& without) const
{
    bool isDue = false;
    for (const Tool& tool : m_tools) {
        if (!(tool.places & (Tool::Labelled | Tool::IconOnly)))
            continue;
        isDue |= (tool.places & Tool::GroupStart) != 0;
        if (without.contains(tool.id))
            continue;
        if (std::exchange(isDue, false) && !bar->actions().isEmpty())
            bar->addSeparator();
        bar->addAction(action(tool.id));
        if (tool.places & Tool::Labelled)
            static_cast<QToolButton*>(bar->widgetForAction(action(tool.id)))
                ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
}

void ToolSet::addTo(QMenu* menu, const QStringList& without, int place) const
{
    bool isDue = true;
    for (const Tool& tool : m_tools) {
        if (!(tool.places & place))
            continue;
        isDue |= (tool.places & Tool::GroupStart) != 0;
        if (without.contains(tool.id))
            continue;
        if (std::exchange(isDue, false) && !menu->isEmpty())
            menu->addSeparator();
        menu->addAction(action(tool.id));
    }
}

} // namespace core
