#pragma once

#include <memory>

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QStringList>

namespace platform {

/// Lets one program at a time work on the databases of a program folder. A second one asks the first to come
/// to the front, within two seconds at most, hands over the files that it was to open, and should then end.
/// What a crashed program left behind blocks nobody.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    /// @param files of this computer, for the first to open
    explicit SingleInstance(const QString& programFolder, QStringList files = {}, QObject* parent = nullptr);
    ~SingleInstance() override;

    bool isFirst() const { return m_isFirst; }
    /// False when the first could not mark the folder as its own: the disk is full, or the folder can't be
    /// written. It was made sure as far as possible that no other program works there.
    bool hasLock() const { return m_hasLock; }

Q_SIGNALS:
    void raiseRequested();
    void openRequested(const QStringList& files);

private:
    bool takeLock();
    bool askFirst(int waitMs) const;
    void listen();
    void readRequest();

    void answer(const QByteArray& request);

    QStringList m_files;
    QString m_socketName;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_isFirst = false;
    bool m_hasLock = false;
};

} // namespace platform
