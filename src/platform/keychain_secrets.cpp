#include "platform/keychain_secrets.h"

#include <qt6keychain/keychain.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const QString service = u"Orvane Contacts"_s;

} // namespace

void KeychainSecrets::read(const QString& key, Read then)
{
    auto* job = new QKeychain::ReadPasswordJob(service, this);
    job->setKey(key);
    job->setInsecureFallback(false);
    connect(job, &QKeychain::Job::finished, this, [this, job, key, then = std::move(then)] {
        const QString stored = job->error() == QKeychain::NoError ? job->textData() : QString();
        if (!stored.isEmpty())
            then(stored, PasswordPlace::SecretStore);
        else if (m_inMemory.contains(key))
            then(m_inMemory.value(key), PasswordPlace::Memory);
        else
            then({}, PasswordPlace::Nowhere);
    });
    job->start();
}

void KeychainSecrets::write(const QString& key, const QString& secret, MailAccounts::Placed then)
{
    m_inMemory.remove(key);
    const auto follow = [this, key, secret, then = std::move(then)](QKeychain::Job* job) {
        if (secret.isEmpty())
            return then(PasswordPlace::Nowhere);
        if (job->error() == QKeychain::NoError)
            return then(PasswordPlace::SecretStore);
        m_inMemory.insert(key, secret);
        then(PasswordPlace::Memory);
    };
    QKeychain::Job* job = nullptr;
    if (secret.isEmpty()) {
        job = new QKeychain::DeletePasswordJob(service, this);
    } else {
        auto* writing = new QKeychain::WritePasswordJob(service, this);
        writing->setTextData(secret);
        job = writing;
    }
    job->setKey(key);
    job->setInsecureFallback(false);
    connect(job, &QKeychain::Job::finished, this, follow);
    job->start();
}

} // namespace platform
