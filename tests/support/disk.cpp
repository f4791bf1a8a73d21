#include "support/disk.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>

namespace support {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
        || file.write(bytes) != bytes.size())
        qFatal("no test file: %s", qUtf8Printable(path));
    return path;
}

FullDisk::FullDisk(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit less{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &less);
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
}

} // namespace support
