#include "core/shell/storage_notice.h"

#include "core/save_failure.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace shell {

StorageNotice::StorageNotice(core::Context& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
{
    m_context.data.setFailureHandler([this](const jet::Failure& failure) { hear(failure); });
    // It is painted, but no key or click comes through that would begin something in the middle of a save.
    m_context.data.setWaitHandler([] {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        return true;
    });
}

void StorageNotice::hear(const jet::Failure& failure)
{
    if (!failure.isOfStorage() || !m_context.data.isOpen() || m_isPending)
        return;
    m_isPending = true;
    // Behind the save that is running, so that the box does not stop it half-way.
    QTimer::singleShot(0, this, [this, failure] { tell(failure); });
}

void StorageNotice::tell(const jet::Failure& failure)
{
    m_isPending = false;
    if (failure.cause == jet::Failure::Cause::Damaged) {
        Q_EMIT damageFound();
        return;
    }
    if (*m_context.shared.failedSaveIsTold || m_told.contains(int(failure.cause)))
        return;
    m_told << int(failure.cause);
    m_context.services.boxes.warning(
        tr("Something could not be written to the address book: %1.\n\nNothing that was stored before is "
           "lost, but what you change now may not be stored.")
            .arg(core::reasonOf(failure)),
        m_context.shared.AppTitle);
}

} // namespace shell
