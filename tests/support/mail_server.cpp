#include "support/mail_server.h"

#include "support/disk.h"

#include <QDir>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace support {

namespace {

const QString kPython = u"/usr/bin/python3"_s; // the one that Debian's packages are for
constexpr int kStartMs = 20'000;

QString dataFile(const QString& name)
{
    return QStringLiteral(ORVANE_SOURCE_DIR "/tests/support/data/") + name;
}

} // namespace

MailServer::MailServer(Kind kind)
{
    QStringList arguments{dataFile(u"mail_server.py"_s), u"serve"_s, m_folder.path()};
    if (kind != Kind::Open)
        arguments << (kind == Kind::Tls ? u"tls"_s : u"starttls"_s) << certificate()
                  << dataFile(u"mail_server.key"_s);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(kPython, arguments);
    if (m_process.waitForReadyRead(kStartMs))
        m_port = m_process.readLine().trimmed().toInt();
}

MailServer::~MailServer()
{
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(kStartMs))
        m_process.kill();
}

QList<QJsonObject> MailServer::taken() const
{
    QList<QJsonObject> all;
    const QDir folder(m_folder.path());
    for (const QString& name : folder.entryList({u"*.json"_s}, QDir::Files, QDir::Name))
        all << QJsonDocument::fromJson(bytesOf(folder.filePath(name))).object();
    return all;
}

QStringList MailServer::subjects() const
{
    QStringList all;
    for (const QJsonObject& each : taken())
        all << each[u"subject"].toString();
    return all;
}

QString MailServer::certificate()
{
    return dataFile(u"mail_server.pem"_s);
}

QJsonObject secondOpinion(const QByteArray& message)
{
    const QTemporaryDir folder;
    QProcess reader;
    reader.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    reader.start(
        kPython, {dataFile(u"mail_server.py"_s), u"read"_s, put(folder.filePath(u"message"_s), message)});
    reader.waitForFinished(kStartMs);
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).object();
}

} // namespace support
