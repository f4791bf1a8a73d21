#pragma once

#include <QByteArray>
#include <QString>

#include <sys/resource.h>

namespace support {

/// What a file holds; nothing when it can't be read.
QByteArray bytesOf(const QString& path);
/// Writes a file, and makes the folder for it; returns its path.
QString put(const QString& path, const QByteArray& bytes = "x");

/// While it lives no file can grow beyond so many bytes, as on a full disk. Rights taken from a folder would
/// not do, as root writes anywhere.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes = 4096);
    ~FullDisk();

private:
    rlimit m_before{};
};

} // namespace support
