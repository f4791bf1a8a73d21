#pragma once

#include <memory>

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

namespace platform {

/// Lets one program at a time work on the databases of a program folder. A second one asks the first to come
/// to the front, within two seconds at most, and should then end. What a crashed program left behind blocks
/// nobody.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const QString& programFolder, QObject* parent = nullptr);
    ~SingleInstance() override;

    bool isFirst() const { return m_isFirst; }

Q_SIGNALS:
    void raiseRequested();

private:
    bool takeLock();
    bool askFirst(int waitMs) const;
    void listen();
    void readRequest();

    QString m_socketName;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_isFirst = false;
};

} // namespace platform
