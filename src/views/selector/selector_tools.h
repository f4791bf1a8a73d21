#pragma once

#include "core/context.h"

#include <QHash>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace views {

/// The tools of the record selectors: the contact that is current is edited, deleted or handed to another
/// screen, found by form name, and the list is filtered. A tool whose screen is not there is disabled.
class SelectorTools : public QObject {
    Q_OBJECT

public:
    /// What the tools ask of the selector that has them.
    struct Host {
        QString callerForm; ///< to which filters are delivered
        std::function<qint64()> currentId; ///< of the contact that is current, 0 for none
        std::function<void()> beforeFilter; ///< sets the choices of the selector itself back
    };

    SelectorTools(core::Context& context, Host host, QWidget* screen);

    QAction* action(QStringView id) const;
    QToolBar* makeToolBar(QWidget* parent) const;
    QMenu* makeMenu(QWidget* parent) const; ///< "Menu"
    QMenu* makeFilterMenu(QWidget* parent) const; ///< "FilterMenu"

Q_SIGNALS:
    void contactDeleted(qint64 id);
    void simpleWanted();
    void detailsWanted();

private:
    struct ToolRow;
    static const ToolRow kTools[];

    QMenu* makeMenuOf(int place, const QString& name, QWidget* parent) const;
    /// Makes the current contact the one last chosen; says so and gives 0 when there is none.
    qint64 select();
    void askFilter(QStringView form);
    void simple(QStringView form);
    void details(QStringView form);
    void edit(QStringView form);
    void remove(QStringView form);
    void showIn(QStringView form);
    void addRecipient(QStringView form);

    core::Context& m_context;
    Host m_host;
    QHash<QString, QAction*> m_actions;
};

} // namespace views
