#include "platform/text_file.h"

#include <QFile>
#include <QFileInfo>

#include "platform/cp1252.h"
#include "platform/drive.h"
#include "platform/storage.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qint64 maxTextSize = 64 * 1024 * 1024;

std::optional<QByteArray> readBytes(const QString& localPath)
{
    // Only a plain file: a pipe or a device under that name could block or never end.
    QFile file(localPath);
    if (!QFileInfo(localPath).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(maxTextSize + 1);
    if (bytes.size() > maxTextSize || file.error() != QFileDevice::NoError)
        return std::nullopt;
    return bytes;
}

} // namespace

std::optional<QString> readText(const QString& localPath)
{
    const auto bytes = readBytes(localPath);
    return bytes ? std::optional(fromCp1252(*bytes).replace("\r\n"_L1, "\n"_L1)) : std::nullopt;
}

std::optional<QString> readForeignText(const QString& localPath)
{
    const auto bytes = readBytes(localPath);
    return bytes ? std::optional(fromUtf8OrCp1252(*bytes)) : std::nullopt;
}

std::optional<QString> readText(const Drive& drive, QStringView path)
{
    return readText(drive.local(path));
}

bool writeText(const QString& localPath, QStringView text)
{
    if (localPath.isEmpty())
        return false;
    QString lines = text.toString();
    lines.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').replace("\n"_L1, "\r\n"_L1);
    QSaveFile file(localPath);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(toCp1252(lines));
    return commitWhole(file);
}

bool writeText(const Drive& drive, QStringView path, QStringView text)
{
    return writeText(drive.local(path), text);
}

TextFileWriter::TextFileWriter(const QString& localPath)
    : m_file(localPath)
{
    if (!localPath.isEmpty())
        m_file.open(QIODevice::WriteOnly);
}

bool TextFileWriter::writeLine(QStringView text)
{
    const QByteArray bytes = toCp1252(text) + "\r\n";
    return m_file.write(bytes) == bytes.size() && m_file.error() == QFileDevice::NoError;
}

bool TextFileWriter::commit()
{
    return commitWhole(m_file);
}

QString TextFileWriter::whyNot() const
{
    return whyNotReplaced(m_file.fileName());
}

} // namespace platform
