#pragma once

#include "core/command_table.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace shell {

/// One action for each tool of the tool bar table, named by its tool id, and one menu for each page. The
/// frame hangs them into its menu bar and tool bar.
///
/// A tool whose screen is not there yet is grey, and out of sight until the person wants to see what is still
/// to come; so is a page, and the launch pad of a page, on which nothing else could be chosen.
class ToolActions : public QObject {
    Q_OBJECT

public:
    using IsAvailable = std::function<bool(const core::Action&)>;
    ToolActions(const IsAvailable& isAvailable, QWidget* window);

    QAction* action(QStringView toolId) const { return m_actions.value(toolId.toString()); }
    QMenu* page(QStringView name) const { return m_pages.value(name.toString()); }

    void showPersonalTools(bool shown);
    void showCityTools(bool nationalMode);
    void showWhatIsToCome(bool shown);

Q_SIGNALS:
    void triggered(const QString& toolId);

private:
    void setForThisUser(QStringView id, bool isFor);
    void showAndHide();

    QHash<QString, QAction*> m_actions;
    QHash<QString, QMenu*> m_pages;
    QSet<QString> m_toCome;
    QSet<QString> m_notForThisUser;
    bool m_showsAll = false;
};

} // namespace shell
