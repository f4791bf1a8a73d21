#pragma once

#include "core/tool.h"

#include <QHash>
#include <QObject>

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace core {

class Screens;

/// The tools of a screen: an action a row of a table, in tool bars and menus by its places. A tool whose
/// screen is not there is disabled and says so; one that just opens a form does it by itself.
class ToolSet : public QObject {
    Q_OBJECT

public:
    /// The rows have to live as long as the program.
    ToolSet(Screens& screens, const ToolTable& table, QWidget* screen);

    QAction* action(QStringView id) const;
    QToolBar* makeToolBar(QWidget* parent) const;
    QMenu* makeMenu(const QString& name, QWidget* parent, int place = Tool::Menu) const;
    /// For a bar or menu that has other tools too: those of `without` are left out.
    void addTo(QToolBar* bar, const QStringList& without = {}) const;
    void addTo(QMenu* menu, const QStringList& without = {}, int place = Tool::Menu) const;

Q_SIGNALS:
    void triggered(const core::Tool& tool); ///< other than one that just opens a form

private:
    void addAction(Screens& screens, const Tool& tool, const char* translationContext, QWidget* screen);

    std::span<const Tool> m_tools;
    QHash<QString, QAction*> m_actions;
};

} // namespace core
