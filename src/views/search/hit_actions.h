#pragma once

#include "core/context.h"

#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace views {

/// What can be done with a contact that a search has found: each action hands it, by its id, to another
/// screen found by form name. An action whose screen is not there is disabled.
class HitActions : public QObject {
    Q_OBJECT

public:
    /// `currentId` tells the contact of the row that is current, 0 for none.
    HitActions(core::Context& context, std::function<qint64()> currentId, QWidget* screen);

    QMenu* menu() const { return m_menu; }
    /// Goes to the record: enabled when there is a screen that shows it.
    QAction* open() const { return m_open; }
    /// Makes a contact the one last chosen; false when there is none, or it has no name.
    bool select(qint64 id);

private:
    struct ActionRow;
    static const ActionRow kActions[];

    void openHit();
    void showIn(QStringView form);
    void edit(QStringView form);
    void addRecipient(QStringView form);

    core::Context& m_context;
    std::function<qint64()> m_currentId;
    QMenu* m_menu;
    QAction* m_open = nullptr;
};

} // namespace views
