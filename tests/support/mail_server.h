#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace support {

/// A mail server on this computer, as data/mail_server.py describes it, for as long as this lives.
class MailServer {
public:
    enum class Kind { Open, Tls, StartTls };
    explicit MailServer(Kind kind = Kind::Open);
    ~MailServer();

    int port() const { return m_port; } ///< 0 when it could not be started
    /// What it has taken, in that order.
    QList<QJsonObject> taken() const;
    QStringList subjects() const; ///< of those
    /// Who vouches for it, when it is not an open one.
    static QString certificate();

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    int m_port = 0;
};

/// What another mail program reads in a message.
QJsonObject secondOpinion(const QByteArray& message);

} // namespace support
