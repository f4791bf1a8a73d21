#pragma once

#include "core/context.h"

#include <QList>
#include <QStringList>

class QWidget;

namespace letters {

/// What became of the messages that ask people for their address.
struct UpdateMails {
    int sent = 0; ///< lie in the outbox
    bool isStopped = false; ///< by the person
    QStringList failed = {}; ///< names, each with the reason
};

/// Sends each contact a message with a page that holds what the book has, written anew for each. Shows how
/// far it is, and can be stopped.
UpdateMails sendUpdateMails(core::Context& context, const QList<qint64>& ids, QWidget* over);

} // namespace letters
