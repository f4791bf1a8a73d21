#include "core/shell/tool_actions.h"

#include "core/shell/tool_bar_table.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace shell {

ToolActions::ToolActions(const IsAvailable& isAvailable, QWidget* window)
    : QObject(window)
{
    for (const ToolGroup& group : toolGroups()) {
        auto* menu = new QMenu(QCoreApplication::translate("shell", group.caption), window);
        menu->setObjectName(u"page_"_s + group.page.toString());
        menu->setToolTipsVisible(true);
        menu->setIcon(widgets::icon(group.icon));
        m_pages.insert(group.page.toString(), menu);
        for (const Tool& tool : group.tools) {
            const QString id = tool.id.toString();
            auto* action = new QAction(QCoreApplication::translate("shell", tool.caption), window);
            action->setObjectName(id);
            action->setToolTip(QCoreApplication::translate("shell", tool.toolTip));
            action->setStatusTip(action->toolTip());
            widgets::setIcon(action, tool.icon);
            if (!tool.shortcut.isEmpty())
                action->setShortcut(QKeySequence(tool.shortcut.toString()));
            const core::Action* what = core::toolAction(tool.id);
            Q_ASSERT(what);
            action->setEnabled(isAvailable(*what));
            connect(action, &QAction::triggered, this, [this, id] { Q_EMIT triggered(id); });
            m_actions.insert(id, action);
            menu->addAction(action);
        }
    }
}

void ToolActions::showPersonalTools(bool shown)
{
    for (const QStringView id : core::personalTools()) {
        if (QAction* tool = action(id))
            tool->setVisible(shown);
    }
}

void ToolActions::showCityTools(bool nationalMode)
{
    action(u"CitypinStdI")->setVisible(true);
    for (const QStringView id : core::homeCountryTools())
        action(id)->setVisible(nationalMode);
}

} // namespace shell
