#include "core/shell/storage_notice.h"

#include "platform/message_boxes.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace shell {

StorageNotice::StorageNotice(core::Context& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
{
    m_context.data.setFailureHandler([this](const jet::Failure& failure) { hear(failure); });
}

void StorageNotice::hear(const jet::Failure& failure)
{
    if (!failure.isOfStorage() || !m_context.data.isOpen() || m_told)
        return;
    m_told = true;
    // Behind the save that is running, so that the box does not stop it half-way.
    QTimer::singleShot(0, this, [this, reason = failure.reason] { tell(reason); });
}

void StorageNotice::tell(const QString& reason) const
{
    m_context.services.boxes.warning(
        tr("The address book could not be written: %1.\n\nWhat you entered last was not stored. Nothing that "
           "was stored "
           "before is lost. Make room on the disk, or see that the folder can be written, and save again.")
            .arg(reason),
        m_context.shared.AppTitle);
}

} // namespace shell
