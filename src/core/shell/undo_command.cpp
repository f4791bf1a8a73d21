#include "core/shell/undo_command.h"

#include "core/take_back.h"
#include "widgets/theme.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace shell {

UndoCommand::UndoCommand(core::Context& context, QMenu* edit)
    : QObject(edit)
    , m_context(context)
    , m_undo(edit->addAction(tr("&Undo")))
    , m_redo(edit->addAction(tr("&Redo")))
{
    m_undo->setObjectName(u"Undo"_s);
    m_undo->setShortcut(QKeySequence::Undo);
    m_undo->setToolTip(tr("Take back the last change of the address book"));
    widgets::setIcon(m_undo, u"restore");
    m_redo->setObjectName(u"Redo"_s);
    m_redo->setShortcut(QKeySequence::Redo);
    m_redo->setToolTip(tr("Do again what was taken back"));
    connect(m_undo, &QAction::triggered, this, [this] { core::takeBack(m_context); });
    connect(
        m_redo, &QAction::triggered, this, [this] { core::takeBack(m_context, jet::StepDirection::Again); });
    // At the end of what is being done, which may be several steps and is not a moment to read in.
    m_due.setSingleShot(true);
    m_due.setInterval(0);
    connect(&m_due, &QTimer::timeout, this, &UndoCommand::tellWhatComesNext);
    m_context.data.setStepsHandler([command = QPointer(this)] {
        if (command)
            command->m_due.start();
    });
    tellWhatComesNext();
}

void UndoCommand::tellWhatComesNext()
{
    const auto tell = [](QAction* action, const std::optional<jet::ChangeStep>& change, const QString& bare,
                          const QString& named) {
        action->setEnabled(change.has_value());
        action->setText(change ? named.arg(core::described(*change).replace(u'&', u"&&"_s)) : bare);
    };
    tell(m_undo, m_context.data.lastChange(), tr("&Undo"), tr("&Undo %1"));
    tell(m_redo, m_context.data.lastUndone(), tr("&Redo"), tr("&Redo %1"));
}

} // namespace shell
