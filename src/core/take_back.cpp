#include "core/take_back.h"

#include "core/frame.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

namespace core {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("core::takeBack", text);
}

} // namespace

QString described(const jet::ChangeStep& change)
{
    if (!change.name.isEmpty())
        return change.name;
    const QString label = change.label.simplified();
    const QString first = !label.isEmpty()                            ? label
        : change.table.compare(u"cnt_main", Qt::CaseInsensitive) == 0 ? translated("a contact without a name")
                                                                      : translated("an entry of the set-up");
    const QString who
        = change.rows > 1 ? translated("%1 and %2 more").arg(first).arg(change.rows - 1) : first;
    switch (change.kind) {
    case jet::ChangeStep::Kind::Added: return translated("adding %1").arg(who);
    case jet::ChangeStep::Kind::Deleted: return translated("deleting %1").arg(who);
    case jet::ChangeStep::Kind::Changed: return translated("changing %1").arg(who);
    }
    return {};
}

void takeBack(Context& context, jet::StepDirection direction, qint64 onlyStep)
{
    using jet::StepDirection;
    using jet::TakenBack;
    const bool isBack = direction == StepDirection::Back;
    const auto change = isBack ? context.data.lastChange() : context.data.lastUndone();
    if (!change || (onlyStep != 0 && change->id != onlyStep))
        return;
    const auto refuse
        = [&](const QString& text) { context.services.boxes.warning(text, context.shared.AppTitle); };
    switch (isBack ? context.data.undoLastChange() : context.data.redoLastChange()) {
    case TakenBack::Nothing: return;
    case TakenBack::NotWritten: return tellFailedSave(context);
    case TakenBack::NotKept:
        return refuse(
            translated("This can not be taken back (%1): there was no room on the disk to keep what "
                       "it changed. A backup copy may still have it.")
                .arg(described(*change)));
    case TakenBack::ChangedSince:
        return refuse(translated("This can not be taken back (%1): it has been changed since.")
                          .arg(described(*change)));
    case TakenBack::Done: break;
    }
    context.screens.tellBookChanged();
    const auto other = isBack ? StepDirection::Again : StepDirection::Back;
    context.frame.showNotice(
        (isBack ? translated("Undone: %1") : translated("Done again: %1")).arg(described(*change)),
        isBack ? translated("Redo") : translated("Undo"),
        [&context, other, id = change->id] { takeBack(context, other, id); });
}

} // namespace core
