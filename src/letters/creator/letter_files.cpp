#include "letters/creator/letter_files.h"

#include "formats/rtf_writer.h"
#include "platform/drive.h"
#include "platform/durable_files.h"
#include "platform/storage.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace letters {

QString localPath(const platform::Drive& drive, const QString& path)
{
    return QDir::isAbsolutePath(path) ? path : drive.local(path);
}

LetterFolder::LetterFolder(const platform::Drive& drive, const QString& folder)
    : m_drive(drive)
    , m_folder(localPath(drive, folder))
{
}

// The names that lie there are read once: a folder may hold the letters of years.
QString LetterFolder::freeName(const QString& reader)
{
    if (m_taken.isEmpty()) {
        const QStringList there = QDir(m_folder).entryList(QDir::Files | QDir::Dirs | QDir::Hidden);
        for (const QString& name : there)
            m_taken.insert(name.toCaseFolded());
    }
    const QString stem = platform::Drive::safeFileName(reader.simplified());
    QString name = stem + u".rtf"_s;
    for (int number = 2; m_taken.contains(name.toCaseFolded()); ++number)
        name = u"%1 (%2).rtf"_s.arg(stem).arg(number);
    m_taken.insert(name.toCaseFolded());
    return name;
}

QString LetterFolder::write(const QString& reader, const QByteArray& bytes)
{
    if (m_folder.isEmpty() || !QDir().mkpath(m_folder)) {
        m_whyNot = platform::whyNotWritable(m_folder);
        return {};
    }
    const QString path = m_folder + u'/' + freeName(reader);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !platform::commitWhole(file)
        || !platform::syncToDisk(path)) {
        m_whyNot = platform::whyNotWritable(m_folder);
        return {};
    }
    m_written << path;
    const QString named = m_drive.named(path);
    return named.isEmpty() ? path : named;
}

void LetterFolder::settle()
{
    if (!m_written.isEmpty())
        platform::syncFolder(m_folder);
}

void LetterFolder::removeWritten()
{
    for (const QString& path : std::as_const(m_written))
        QFile::remove(path);
    m_written.clear();
}

LettersWritten writeLetterFiles(LetterFolder& folder, const QList<Recipient>& recipients,
    const std::function<formats::RichText(const Recipient&)>& letterTo, const BeforeLetter& before)
{
    LettersWritten outcome;
    for (const Recipient& to : recipients) {
        const bool goesOn = outcome.missing.isEmpty();
        if (goesOn && !before(int(outcome.readers.size()), to.name))
            outcome.stopped = true;
        if (goesOn && !outcome.stopped && !folder.write(to.name, formats::writeRtf(letterTo(to))).isEmpty())
            outcome.readers << to.name;
        else
            outcome.missing << to.name;
    }
    folder.settle();
    if (!outcome.missing.isEmpty() && !outcome.stopped)
        outcome.whyNot = folder.whyNot();
    return outcome;
}

} // namespace letters
