#include "platform/single_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSysInfo>
#include <QThread>
#include <QUrl>

#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int wholeWaitMs = 1800;
constexpr int retryMs = 50;
constexpr qint64 longestRequest = 1024 * 1024;
constexpr auto raiseWord = "raise";
constexpr auto openWord = "open";

/// "raise", or "open" and the files behind it, on one line.
QByteArray requestFor(const QStringList& files)
{
    if (files.isEmpty())
        return QByteArray(raiseWord) + '\n';
    QByteArray request = openWord;
    for (const QString& file : files) {
        const QByteArray name = ' ' + QUrl::toPercentEncoding(file);
        if (request.size() + name.size() < longestRequest)
            request += name;
    }
    return request + '\n';
}

QString canonicalFolder(const QString& folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QDir(folder).absolutePath()) : canonical;
}

QString socketName(const QString& folder)
{
    // The home folder stands for the user: it is there in every session, and a socket's name is seen by all
    // users.
    const QByteArray identity = canonicalFolder(folder).toUtf8() + '\0' + QDir::homePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(identity, QCryptographicHash::Sha256).toHex().left(24);
    return u"orvane-"_s + QString::fromLatin1(hash);
}

bool isHeldByALivingProgram(const QLockFile& lock)
{
    qint64 pid = 0;
    QString host;
    QString name;
    if (!lock.getLockInfo(&pid, &host, &name) || host != QSysInfo::machineHostName())
        return false;
    if (::kill(pid_t(pid), 0) != 0 && errno == ESRCH)
        return false;
    // The number may have gone to another program since.
    const QString program = QFileInfo(u"/proc/%1/exe"_s.arg(pid)).symLinkTarget();
    return program.isEmpty() || QFileInfo(program).fileName().startsWith(name);
}

} // namespace

SingleInstance::SingleInstance(const QString& programFolder, QStringList files, QObject* parent)
    : QObject(parent)
    , m_files(std::move(files))
    , m_socketName(socketName(programFolder))
    , m_lock(canonicalFolder(programFolder) + u"/.orvane.lock"_s)
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::readRequest);
    // Never stale by age: a program may stay open for days.
    m_lock.setStaleLockTime(0);
    m_isFirst = takeLock();
    if (m_isFirst)
        listen();
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::takeLock()
{
    m_hasLock = m_lock.tryLock(0);
    if (m_hasLock)
        return true;
    // In a folder where no lock can be made, only the socket tells.
    if (m_lock.error() != QLockFile::LockFailedError)
        return !askFirst(retryMs);

    // The first may just be starting and not listen yet.
    const QDeadlineTimer deadline(wholeWaitMs);
    while (!deadline.hasExpired()) {
        if (askFirst(int(qMax<qint64>(1, deadline.remainingTime()))))
            return false;
        m_hasLock = m_lock.tryLock(0);
        if (m_hasLock)
            return true;
        // A lock that can't be read, or comes from a computer that has this folder no more, or from a program
        // that is dead, and no one to answer.
        if (!isHeldByALivingProgram(m_lock)) {
            QThread::msleep(retryMs);
            if (askFirst(retryMs))
                return false;
            // On a full disk, or in a folder that can't be written, it can't be replaced: that ends nobody.
            if (m_lock.removeStaleLockFile() || QFile::remove(m_lock.fileName()))
                m_hasLock = m_lock.tryLock(0);
            return m_hasLock || !askFirst(retryMs);
        }
        QThread::msleep(retryMs);
    }
    return false;
}

bool SingleInstance::askFirst(int waitMs) const
{
    QLocalSocket socket;
    socket.connectToServer(m_socketName, QIODevice::WriteOnly);
    if (!socket.waitForConnected(waitMs))
        return false;
    socket.write(requestFor(m_files));
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(waitMs)) { }
    return true;
}

void SingleInstance::listen()
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(8);
    QLocalServer::removeServer(m_socketName);
    m_server.listen(m_socketName);
}

void SingleInstance::readRequest()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        const auto read = [this, socket] {
            if (socket->canReadLine())
                answer(socket->readLine(longestRequest + 1).trimmed());
            else if (socket->bytesAvailable() <= longestRequest)
                return;
            socket->abort();
            socket->deleteLater();
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        read();
    }
}

void SingleInstance::answer(const QByteArray& request)
{
    const QList<QByteArray> words = request.split(' ');
    if (words.constFirst() == raiseWord)
        Q_EMIT raiseRequested();
    if (words.constFirst() != openWord)
        return;
    QStringList files;
    for (const QByteArray& word : words.mid(1))
        files << QUrl::fromPercentEncoding(word);
    Q_EMIT raiseRequested();
    Q_EMIT openRequested(files);
}

} // namespace platform
