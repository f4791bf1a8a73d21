#include "platform/keychain_secrets.h"
#include "support/disk.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using platform::PasswordPlace;

/// Passwords on a desktop on which no secret store runs: kept in memory, said so, and in no file.
class KeychainSecretsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* place :
            {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(place, m_home.path().toLocal8Bit());
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    }

    void withoutAStoreTheyLiveInMemory()
    {
        {
            platform::KeychainSecrets secrets;
            QCOMPARE(read(secrets, u"a"_s), u"Nowhere "_s);
            QCOMPARE(write(secrets, u"a"_s, u"first pass"_s), u"Memory"_s);
            QCOMPARE(write(secrets, u"b"_s, u"second pass"_s), u"Memory"_s);
            QCOMPARE(read(secrets, u"a"_s), u"Memory first pass"_s);
            QCOMPARE(read(secrets, u"b"_s), u"Memory second pass"_s);
            QCOMPARE(write(secrets, u"a"_s, {}), u"Nowhere"_s);
            QCOMPARE(read(secrets, u"a"_s), u"Nowhere "_s);
        }
        platform::KeychainSecrets next;
        QCOMPARE(read(next, u"b"_s), u"Nowhere "_s);
        QDirIterator files(m_home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            QVERIFY(!support::bytesOf(files.next()).contains("pass"));
    }

private:
    static QString nameOf(PasswordPlace place)
    {
        return QStringList{u"SecretStore"_s, u"Memory"_s, u"Nowhere"_s}.value(int(place));
    }
    static QString read(platform::SecretStore& secrets, const QString& key)
    {
        QString answer;
        secrets.read(key, [&answer](const QString& secret, PasswordPlace place) {
            answer = nameOf(place) + u' ' + secret;
        });
        return QTest::qWaitFor([&answer] { return !answer.isEmpty(); }, 30'000) ? answer : u"no answer"_s;
    }
    static QString write(platform::SecretStore& secrets, const QString& key, const QString& secret)
    {
        QString answer;
        secrets.write(key, secret, [&answer](PasswordPlace place) { answer = nameOf(place); });
        return QTest::qWaitFor([&answer] { return !answer.isEmpty(); }, 30'000) ? answer : u"no answer"_s;
    }

    QTemporaryDir m_home;
};

QTEST_GUILESS_MAIN(KeychainSecretsTest)
#include "keychain_secrets_test.moc"
