#pragma once

#include "core/context.h"

#include <QObject>
#include <QTimer>

class QAction;
class QMenu;

namespace shell {

/// Undo and Redo of the Edit menu: the last changes of the address book in this run, whatever screen made
/// them. Each says what it would do, and is grey while there is nothing.
class UndoCommand : public QObject {
    Q_OBJECT

public:
    UndoCommand(core::Context& context, QMenu* edit);

private:
    void tellWhatComesNext();

    core::Context& m_context;
    QAction* m_undo;
    QAction* m_redo;
    QTimer m_due; ///< other changes than before can be taken back
};

} // namespace shell
