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
        menu->setWindowTitle(menu->title());
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
            if (!isAvailable(*what) || givesRoomOnly(*what))
                m_toCome.insert(id);
            connect(action, &QAction::triggered, this, [this, id] { Q_EMIT triggered(id); });
            m_actions.insert(id, action);
            menu->addAction(action);
        }
    }
    showAndHide();
}

void ToolActions::showPersonalTools(bool shown)
{
    for (const QStringView id : core::personalTools())
        setForThisUser(id, shown);
    showAndHide();
}

void ToolActions::showCityTools(bool nationalMode)
{
    for (const QStringView id : core::homeCountryTools())
        setForThisUser(id, nationalMode);
    showAndHide();
}

void ToolActions::showWhatIsToCome(bool shown)
{
    m_showsAll = shown;
    showAndHide();
}

void ToolActions::setForThisUser(QStringView id, bool isFor)
{
    if (isFor)
        m_notForThisUser.remove(id.toString());
    else
        m_notForThisUser.insert(id.toString());
}

void ToolActions::showAndHide()
{
    const auto isLaunchPad
        = [](QStringView id) { return std::holds_alternative<core::OpenLaunchPad>(*core::toolAction(id)); };
    for (const ToolGroup& group : toolGroups()) {
        bool offersSomething = m_showsAll;
        for (const Tool& tool : group.tools) {
            const QString id = tool.id.toString();
            const bool shown = !m_notForThisUser.contains(id) && (m_showsAll || !m_toCome.contains(id));
            action(tool.id)->setVisible(shown);
            offersSomething = offersSomething || (shown && !isLaunchPad(tool.id));
        }
        for (const Tool& tool : group.tools) {
            if (isLaunchPad(tool.id) && !offersSomething)
                action(tool.id)->setVisible(false);
        }
        page(group.page)->menuAction()->setVisible(offersSomething);
    }
}

} // namespace shell
