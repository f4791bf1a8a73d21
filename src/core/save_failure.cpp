#include "core/save_failure.h"

#include "platform/message_boxes.h"

#include <QCoreApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("core", text);
}

QString remedyOf(jet::Failure::Cause cause)
{
    using Cause = jet::Failure::Cause;
    switch (cause) {
    case Cause::DiskFull: return translated("Make room on the disk and save again.");
    case Cause::ReadOnly:
        return translated("See that the file and its folder may be written, and save again.");
    case Cause::Damaged: return translated("Restore a backup: Contacts, Restore from a backup.");
    case Cause::Locked: return translated("Wait until the other program is done, and save again.");
    case Cause::Storage:
    case Cause::Statement: break;
    }
    return translated("Try to save again.");
}

} // namespace

QString reasonOf(const jet::Failure& failure)
{
    using Cause = jet::Failure::Cause;
    switch (failure.cause) {
    case Cause::DiskFull: return translated("the disk is full");
    case Cause::ReadOnly: return translated("the address book can only be read");
    case Cause::Damaged: return translated("the address book is damaged");
    case Cause::Locked: return translated("another program keeps the address book to itself");
    case Cause::Storage: return translated("the file could not be written (%1)").arg(failure.reason);
    case Cause::Statement: return translated("the address book did not take it (%1)").arg(failure.reason);
    }
    return failure.reason;
}

QString savingFailed(const jet::Failure& failure)
{
    return translated("This was not stored: %1.").arg(reasonOf(failure)) + u"\n\n"_s + remedyOf(failure.cause)
        + u' ' + translated("What was stored before is not lost.");
}

void noteFailedSaveIsTold(Context& context)
{
    *context.shared.failedSaveIsTold = true;
    // Behind the notice that may have been queued by the failure itself.
    QTimer::singleShot(0, qApp, [told = context.shared.failedSaveIsTold] { *told = false; });
}

void tellFailedSave(Context& context)
{
    const auto failure = context.data.lastFailure();
    noteFailedSaveIsTold(context);
    context.services.boxes.warning(
        failure ? savingFailed(*failure) : translated("This was not stored."), context.shared.AppTitle);
}

} // namespace core
