#pragma once

#include "core/context.h"

#include <QObject>
#include <QSet>

namespace shell {

/// A statement that fails is skipped without a word; but when the file can not be written, the person is
/// told, once for each cause. A save that a person made tells it itself, each time. A write that waits for
/// another program lets the window live.
class StorageNotice : public QObject {
    Q_OBJECT

public:
    explicit StorageNotice(core::Context& context, QObject* parent = nullptr);

Q_SIGNALS:
    void damageFound();

private:
    void hear(const jet::Failure& failure);
    void tell(const jet::Failure& failure);

    core::Context& m_context;
    QSet<int> m_told; ///< causes
    bool m_isPending = false;
};

} // namespace shell
