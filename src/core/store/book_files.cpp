#include "core/store/book_files.h"

#include "core/store/backups.h"
#include "jet/database.h"
#include "platform/durable_files.h"
#include "platform/storage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace core {

namespace {

using Fault = BookReport::Fault;

/// The places in the head of a database file that tell what it is and how long it must be.
constexpr int kHeadSize = 100;
constexpr int kPageSizeAt = 16;
constexpr int kChangesAt = 24;
constexpr int kPageCountAt = 28;
constexpr int kVersionAt = 60;
constexpr int kCountValidForAt = 92;

quint32 numberAt(const QByteArray& head, int place)
{
    return qFromBigEndian<quint32>(head.constData() + place);
}

/// The file of a name in a folder without regard to case, or the name itself where there is none yet.
QString findName(const QString& folder, const QString& name)
{
    const QDir dir(folder);
    if (dir.exists(name))
        return dir.filePath(name);
    for (const QString& entry : dir.entryList(QDir::Files | QDir::Hidden)) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return dir.filePath(entry);
    }
    return dir.filePath(name);
}

void removeWithLogs(const QString& path)
{
    for (const auto& ending : {u""_s, u"-journal"_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(path + ending);
}

jet::Database::Kind kindOf(BookPart part)
{
    return part == BookPart::Data ? jet::Database::Kind::Data : jet::Database::Kind::Information;
}

} // namespace

BookFiles::BookFiles(const QString& programFolder, const QString& backupFolder)
    : m_programFolder(programFolder)
    , m_backupFolder(backupFolder)
{
}

QString BookFiles::dataFile() const
{
    return findName(m_programFolder, u"Orvanedata.dll"_s);
}
QString BookFiles::infoFile() const
{
    return findName(m_programFolder, u"Orvaneinfo.dll"_s);
}
QString BookFiles::markerFile() const
{
    return QDir(m_programFolder).filePath(u"book-was-made"_s);
}

bool BookFiles::hadABook() const
{
    return QFileInfo::exists(markerFile()) || !listBackups(m_backupFolder).isEmpty();
}

BookReport BookFiles::makeMissing(bool national)
{
    QDir().mkpath(m_programFolder);
    BookReport report;
    if (!QFileInfo::exists(infoFile()) && !makeNew(infoFile(), BookPart::Information, national))
        report = notMade(infoFile());
    if (!QFileInfo::exists(dataFile()) && !hadABook() && !makeNew(dataFile(), BookPart::Data, national))
        report = notMade(dataFile());
    // Also for a book that came here by a copy, or when the program ended between the two steps.
    if (QFileInfo::exists(dataFile()) && !QFileInfo::exists(markerFile())) {
        QSaveFile marker(markerFile());
        if (marker.open(QIODevice::WriteOnly)) {
            marker.write("An address book was made here. If it is missing, restore a backup.\n"
                         "Without this file and without backups the program starts a new, empty book.\n");
            platform::commitWhole(marker);
        }
    }
    return report;
}

BookReport BookFiles::notMade(const QString& path) const
{
    const QString folder = QDir::toNativeSeparators(m_programFolder);
    const QString text = tr("No address book could be made in the folder \"%1\": %2.")
                             .arg(folder, platform::whyNotWritable(m_programFolder));
    return {Fault::NotMade, path, text};
}

bool BookFiles::makeNewBook(bool national) const
{
    return makeNew(dataFile(), BookPart::Data, national);
}

bool BookFiles::remakeInfo(bool national) const
{
    const QString path = infoFile();
    const QString stem = QDir(m_programFolder).filePath(QFileInfo(path).completeBaseName() + u"-damaged"_s);
    QString aside = stem + u".dll"_s;
    for (int i = 2; QFileInfo::exists(aside); ++i)
        aside = u"%1-%2.dll"_s.arg(stem).arg(i);
    if (QFileInfo::exists(path) && !QFile::rename(path, aside))
        return false;
    for (const auto& ending : {u"-journal"_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(path + ending);
    return makeNew(path, BookPart::Information, national);
}

bool BookFiles::makeNew(const QString& path, BookPart part, bool national)
{
    if (QFileInfo::exists(path))
        return false;
    const QString unfinished = path + u".new"_s;
    removeWithLogs(unfinished);
    bool done = false;
    if (jet::Database::create(unfinished)) {
        jet::Database database;
        // Without a write-ahead log while it is built: the file must be whole by itself.
        done
            = database.open(unfinished, jet::Database::Kind::Information) == jet::Database::OpenResult::Opened
            && bringUpToDate(database, part);
        if (done && part == BookPart::Data && national)
            done = bool(database.execute(u"update ov_setup set [national] = true"_s));
        database.close();
    }
    done = done && platform::putInPlace(unfinished, path);
    if (!done)
        removeWithLogs(unfinished);
    return done;
}

BookReport BookFiles::openData(jet::Database& database) const
{
    const BookReport report = open(database, BookPart::Data);
    if (report)
        database.keepChanges({{u"cnt_main"_s, u"Name"_s}, {u"cntb_categories"_s, u"category1"_s},
            {u"cnt_topcities"_s, u"city"_s}});
    return report;
}
BookReport BookFiles::openInfo(jet::Database& database) const
{
    return open(database, BookPart::Information);
}

BookReport BookFiles::inspect(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const auto report = [&path](Fault fault, const QString& text) { return BookReport{fault, path, text}; };
    const auto cutShort = [&] {
        return report(Fault::CutShort,
            tr("The database \"%1\" is not complete: its end is missing. It was left as it is.").arg(shown));
    };
    QFile file(path);
    if (!file.exists())
        return report(Fault::Missing, tr("The database \"%1\" is missing.").arg(shown));
    // Reading from a pipe would wait for somebody to write to it.
    if (!QFileInfo(path).isFile())
        return report(Fault::NotADatabase,
            tr("\"%1\" is no file, so it can not be the database. It was left as it is.").arg(shown));
    if (!file.open(QIODevice::ReadOnly))
        return report(
            Fault::Damaged, tr("The database \"%1\" can not be read: %2.").arg(shown, file.errorString()));
    static const QByteArray start("SQLite format 3", 16); // with the zero that ends it
    const QByteArray head = file.read(kHeadSize);
    if (!head.startsWith(start.left(head.size())))
        return report(Fault::NotADatabase,
            tr("The file \"%1\" is not a database of Orvane Contacts. It was left as it is.").arg(shown));
    if (head.size() < kHeadSize)
        return cutShort();
    // After a crash the log beside the file may hold what the file lacks, and the engine puts it together.
    const bool logWaits
        = QFileInfo(path + u"-wal"_s).size() > 0 || QFileInfo(path + u"-journal"_s).size() > 0;
    const quint16 pageField = qFromBigEndian<quint16>(head.constData() + kPageSizeAt);
    const qint64 pageSize = pageField == 1 ? 65536 : pageField;
    const bool countIsValid = numberAt(head, kChangesAt) == numberAt(head, kCountValidForAt);
    if (!logWaits && countIsValid && file.size() < pageSize * numberAt(head, kPageCountAt))
        return cutShort();
    if (numberAt(head, kVersionAt) > quint32(kSchemaVersion))
        return report(Fault::NewerVersion,
            tr("The database \"%1\" was made by a newer version of Orvane Contacts. Install that version to "
               "open "
               "it. The file was left as it is.")
                .arg(shown));
    return {Fault::None, path, {}};
}

BookReport BookFiles::open(jet::Database& database, BookPart part) const
{
    const QString path = part == BookPart::Data ? dataFile() : infoFile();
    const QString shown = QDir::toNativeSeparators(path);
    BookReport report = inspect(path);
    if (!report)
        return report;
    const auto refuse = [&](Fault fault, const QString& text) {
        database.close();
        return BookReport{fault, path, text};
    };
    const QString mainTable = part == BookPart::Data ? u"cnt_main"_s : u"wia_cntnames"_s;
    const auto noBook = [&] {
        return refuse(Fault::NotADatabase,
            tr("The database \"%1\" holds no address book of Orvane Contacts. It was left as it is.")
                .arg(shown));
    };
    // Asked first, since to open a file with a log beside it can change it.
    if (jet::Database::isWithoutTable(path, mainTable))
        return noBook();
    database.setColumnsNeverEqualToNull(columnsNeverEqualToNull());
    switch (database.open(path, kindOf(part))) {
    case jet::Database::OpenResult::Opened: break;
    case jet::Database::OpenResult::Missing:
    case jet::Database::OpenResult::NotADatabase:
    case jet::Database::OpenResult::Failed:
        return refuse(Fault::Damaged,
            tr("The database \"%1\" is damaged and can not be opened. It was left as it is.").arg(shown));
    }
    if (!database.tables().contains(mainTable, Qt::CaseInsensitive))
        return noBook();
    const int version = database.version();
    // The number may have stood in a log that was waiting beside the file.
    if (version > kSchemaVersion)
        return refuse(Fault::NewerVersion,
            tr("The database \"%1\" was made by a newer version of Orvane Contacts. Install that version to "
               "open "
               "it. The file was left as it is.")
                .arg(shown));
    if (version == kSchemaVersion || database.isReadOnly())
        return report;
    if (!keepBeforeUpgrade(database, m_backupFolder, version))
        return refuse(Fault::NotUpgraded,
            tr("The database \"%1\" is of an older version. No copy of it could be kept in \"%2\", so it was "
               "not "
               "brought up to date.")
                .arg(shown, QDir::toNativeSeparators(m_backupFolder)));
    if (!bringUpToDate(database, part))
        return refuse(Fault::NotUpgraded,
            tr("The database \"%1\" is of an older version and could not be brought up to date. It was left "
               "as it "
               "is.")
                .arg(shown));
    return report;
}

} // namespace core
