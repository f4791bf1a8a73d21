#include "core/shell/undo_command.h"

#include "core/frame.h"
#include "core/screens.h"
#include "platform/message_boxes.h"
#include "widgets/theme.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

QString described(const jet::ChangeStep& change)
{
    const bool isMany = change.rows > 1;
    const QString who = isMany ? UndoCommand::tr("%1 and %2 more").arg(change.label).arg(change.rows - 1)
                               : change.label.trimmed();
    switch (change.kind) {
    case jet::ChangeStep::Kind::Added: return UndoCommand::tr("adding %1").arg(who);
    case jet::ChangeStep::Kind::Deleted: return UndoCommand::tr("deleting %1").arg(who);
    case jet::ChangeStep::Kind::Changed: return UndoCommand::tr("changing %1").arg(who);
    }
    return {};
}

} // namespace

UndoCommand::UndoCommand(core::Context& context, QMenu* edit)
    : QObject(edit)
    , m_context(context)
    , m_undo(edit->addAction(tr("&Undo")))
{
    m_undo->setObjectName(u"Undo"_s);
    m_undo->setShortcut(QKeySequence::Undo);
    m_undo->setToolTip(tr("Take back the last change of a contact"));
    widgets::setIcon(m_undo, u"restore");
    connect(edit, &QMenu::aboutToShow, this, &UndoCommand::tellWhatComesNext);
    connect(m_undo, &QAction::triggered, this, &UndoCommand::undo);
    // The shortcut works while the menu was never opened.
    connect(edit, &QMenu::aboutToHide, this, [this] { m_undo->setEnabled(true); });
}

void UndoCommand::tellWhatComesNext()
{
    const auto change = m_context.data.lastChange();
    m_undo->setEnabled(change.has_value());
    m_undo->setText(change ? tr("&Undo %1").arg(described(*change).replace(u'&', u"&&"_s)) : tr("&Undo"));
}

void UndoCommand::undo()
{
    const auto change = m_context.data.lastChange();
    if (!change)
        return;
    if (!m_context.data.undoLastChange()) {
        m_context.services.boxes.warning(
            tr("This can not be taken back: the contact has been changed since."), m_context.shared.AppTitle);
        return;
    }
    m_context.screens.tellBookChanged();
    m_context.frame.showNotice(tr("Undone: %1").arg(described(*change)));
}

} // namespace shell
