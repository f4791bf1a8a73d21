#pragma once

#include "core/context.h"

#include <QObject>

namespace shell {

/// A statement that fails is skipped without a word; but when the disk is full or the file can not be
/// written, the person is told, once in a run.
class StorageNotice : public QObject {
    Q_OBJECT

public:
    explicit StorageNotice(core::Context& context, QObject* parent = nullptr);

private:
    void hear(const jet::Failure& failure);
    void tell(const QString& reason) const;

    core::Context& m_context;
    bool m_told = false;
};

} // namespace shell
