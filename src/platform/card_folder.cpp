#include "platform/card_folder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include "formats/card_file.h"
#include "platform/cp1252.h"
#include "platform/drive.h"
#include "platform/special_folders.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int maxFiles = 100'000;
constexpr qint64 beginningBytes = 4096;
// What common file systems allow for one name.
constexpr qsizetype maxNameBytes = 255;

// The old card stays whole until the new one is. Nobody waits for the disk, as a save of the book does: that
// would be hours for a whole book, and a card that the power takes away can be written again.
bool replaceFile(const QString& folder, const QString& name, const QByteArray& bytes)
{
    const QString draft = folder + u"/.card-in-writing"_s;
    QFile::remove(draft);
    QFile file(draft);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(bytes) == bytes.size()
        && file.flush();
    file.close();
    std::error_code failure;
    if (written) {
        std::filesystem::rename(QFile::encodeName(draft).constData(),
            QFile::encodeName(folder + u'/' + name).constData(), failure);
        written = !failure;
    }
    if (!written)
        QFile::remove(draft);
    return written;
}

} // namespace

CardFolder::CardFolder(const Drive& drive, QStringView folder)
    : m_drive(drive)
    , m_path(folder.toString())
    , m_local(folder.isEmpty() ? QString() : drive.local(folder))
{
}

QStringList CardFolder::files() const
{
    QStringList files;
    if (m_local.isEmpty())
        return files;
    QDirIterator entries(m_local, {u"*.vcf"_s}, QDir::Files | QDir::NoSymLinks);
    while (entries.hasNext() && files.size() < maxFiles) {
        entries.next();
        files << entries.fileName();
    }
    std::sort(files.begin(), files.end(), [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order == 0 ? a < b : order < 0;
    });
    return files;
}

QString CardFolder::text(const QString& file) const
{
    const QByteArray all = bytes(file, formats::maxCardBytes + 1);
    return all.size() > formats::maxCardBytes ? QString() : fromUtf8OrCp1252(all);
}

QString CardFolder::beginning(const QString& file) const
{
    QByteArray start = bytes(file, beginningBytes);
    // The last line may be cut off.
    if (start.size() == beginningBytes)
        start.truncate(start.lastIndexOf('\n') + 1);
    return fromUtf8OrCp1252(start);
}

QByteArray CardFolder::bytes(const QString& file, qint64 most) const
{
    const QString path = m_local + u'/' + file;
    const QFileInfo info(path);
    // Only a plain file: a pipe under that name would block.
    QFile card(path);
    if (m_local.isEmpty() || info.isSymLink() || !info.isFile() || !card.open(QIODevice::ReadOnly))
        return {};
    return card.read(most);
}

CardFolder::Written CardFolder::write(const QString& name, const QStringList& lines)
{
    const QString file = name + u".vcf"_s;
    if (!Drive::isLegalName(file) || QFile::encodeName(file).size() > maxNameBytes)
        return Written::BadName;
    if (!makeReady())
        return Written::Failed;
    const QString spelling = m_spellings.value(file.toLower(), file);
    if (!replaceFile(m_local, spelling, toCp1252(lines.join("\r\n"_L1) + u"\r\n"_s)))
        return Written::Failed;
    m_spellings.insert(file.toLower(), spelling);
    return Written::Yes;
}

// The folder is looked at once and not for every file, which for a whole book would take hours.
bool CardFolder::makeReady()
{
    if (m_ready)
        return true;
    if (m_path.isEmpty() || !m_drive.ensureFolder(m_path))
        return false;
    m_local = m_drive.local(m_path);
    QDirIterator entries(m_local, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        QString& spelling = m_spellings[entry.toLower()];
        if (spelling.isEmpty() || entry < spelling)
            spelling = entry;
    }
    m_ready = true;
    return true;
}

QString addressBookFolder(const SpecialFolders& folders)
{
    const QString data = folders.SpecialFolderPath(csidlApplicationData);
    return data.isEmpty() ? QString() : data + u"\\Address Book"_s;
}

} // namespace platform
