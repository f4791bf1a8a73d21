#pragma once

#include <QHash>
#include <QObject>

#include "platform/secret_store.h"

namespace platform {

/// The secret store of this desktop.
class KeychainSecrets final : public QObject, public SecretStore {
    Q_OBJECT

public:
    using QObject::QObject;

    void read(const QString& key, Read then) override;
    void write(const QString& key, const QString& secret, MailAccounts::Placed then) override;

private:
    QHash<QString, QString> m_inMemory;
};

} // namespace platform
