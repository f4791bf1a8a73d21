#pragma once

#include "core/command_table.h"

#include <QHash>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace shell {

/// One action for each tool of the tool bar table, named by its tool id, and one menu for each page. The
/// frame hangs them into its menu bar and tool bar.
class ToolActions : public QObject {
    Q_OBJECT

public:
    using IsAvailable = std::function<bool(const core::Action&)>;
    ToolActions(const IsAvailable& isAvailable, QWidget* window);

    QAction* action(QStringView toolId) const { return m_actions.value(toolId.toString()); }
    QMenu* page(QStringView name) const { return m_pages.value(name.toString()); }

    void showPersonalTools(bool shown);
    void showCityTools(bool nationalMode);

Q_SIGNALS:
    void triggered(const QString& toolId);

private:
    QHash<QString, QAction*> m_actions;
    QHash<QString, QMenu*> m_pages;
};

} // namespace shell
