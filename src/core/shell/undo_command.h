#pragma once

#include "core/context.h"

#include <QObject>

class QAction;
class QMenu;

namespace shell {

/// The Edit menu of the frame: takes back the last changes of contacts in this run, whatever screen made
/// them.
class UndoCommand : public QObject {
    Q_OBJECT

public:
    UndoCommand(core::Context& context, QMenu* edit);

private:
    void tellWhatComesNext();
    void undo();

    core::Context& m_context;
    QAction* m_undo;
};

} // namespace shell
