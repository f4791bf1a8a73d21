#include "core/store/backups.h"

#include "core/store/book_files.h"
#include "core/store/durable_files.h"
#include "jet/database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int kBackupsKept = 10;
constexpr int kDeletionsKept = 5;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(core::Backups)
};

/// The daily copy is made at the start of a day, before anything is deleted; its time is not valid.
bool isNewer(const Backup& a, const Backup& b)
{
    return a.day != b.day ? a.day > b.day : a.time.isValid() && (!b.time.isValid() || a.time > b.time);
}

/// All files of exactly the pattern, newest first. The first group is the day, the second the time.
QList<Backup> filesOf(const QString& folder, const QRegularExpression& pattern)
{
    QList<Backup> found;
    for (const QFileInfo& entry : QDir(folder).entryInfoList({u"Orvanedata-*.dll"_s}, QDir::Files)) {
        const auto match = pattern.match(entry.fileName());
        const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
        const QTime time = QTime::fromString(match.captured(2), u"HHmmss"_s);
        const bool timeFits = match.captured(2).isEmpty() || time.isValid();
        if (match.hasMatch() && day.isValid() && timeFits && !entry.isSymLink())
            found << Backup{entry.absoluteFilePath(), day, time};
    }
    std::sort(found.begin(), found.end(), isNewer);
    return found;
}

QList<Backup> dailyFiles(const QString& folder)
{
    static const QRegularExpression pattern(u"\\AOrvanedata-([0-9]{4}-[0-9]{2}-[0-9]{2})\\.dll\\z"_s);
    return filesOf(folder, pattern);
}

QList<Backup> deletionFiles(const QString& folder)
{
    static const QRegularExpression pattern(
        u"\\AOrvanedata-([0-9]{4}-[0-9]{2}-[0-9]{2})-before-deletion-([0-9]{6})\\.dll\\z"_s);
    return filesOf(folder, pattern);
}

bool isSound(const QString& path)
{
    jet::Database copy;
    // As shipped rows are opened: no log is begun beside a file that is only looked at.
    return BookFiles::inspect(path)
        && copy.open(path, jet::Database::Kind::Information) == jet::Database::OpenResult::Opened
        && copy.checkSoundness().isEmpty() && copy.tables().contains(u"cnt_main"_s, Qt::CaseInsensitive);
}

} // namespace

namespace {

BackupResult copyTo(jet::Database& database, const QString& folder, const QString& path)
{
    // Checked under another name, so that damage is never found under the name of a backup.
    const QString unchecked = path + u".new"_s;
    QFile::remove(unchecked);
    if (!QDir().mkpath(folder) || !database.backUpTo(unchecked))
        return BackupResult::Failed;
    if (!isSound(unchecked)) {
        QFile::remove(unchecked);
        return BackupResult::BookUnsound;
    }
    if (!putInPlace(unchecked, path)) {
        QFile::remove(unchecked);
        return BackupResult::Failed;
    }
    return BackupResult::Made;
}

} // namespace

BackupResult backUpOnceADay(jet::Database& database, const QString& folder, QDate today)
{
    const QString path = QDir(folder).filePath(u"Orvanedata-"_s + today.toString(Qt::ISODate) + u".dll"_s);
    if (QFileInfo::exists(path))
        return BackupResult::NotNeeded;
    const BackupResult result = copyTo(database, folder, path);
    if (result != BackupResult::Made)
        return result;
    const QList<Backup> all = dailyFiles(folder);
    for (qsizetype i = kBackupsKept; i < all.size(); ++i) {
        // With a clock that was set back the new one may be the oldest by its name.
        if (all[i].day != today)
            QFile::remove(all[i].path);
    }
    return BackupResult::Made;
}

bool keepBeforeDeletion(jet::Database& database, const QString& folder, const QDateTime& now)
{
    const auto pathAt = [&folder](const QDateTime& time) {
        return QDir(folder).filePath(
            time.toString(u"'Orvanedata-'yyyy-MM-dd'-before-deletion-'HHmmss'.dll'"_s));
    };
    QDateTime time = now;
    // Several within one second stand in their order.
    if (const QList<Backup> before = deletionFiles(folder); !before.isEmpty()) {
        const QDateTime newest(before.first().day, before.first().time);
        if (newest >= now && newest < now.addSecs(60))
            time = newest.addSecs(1);
    }
    while (QFileInfo::exists(pathAt(time)))
        time = time.addSecs(1);
    const QString path = pathAt(time);
    if (copyTo(database, folder, path) != BackupResult::Made)
        return false;
    const QList<Backup> all = deletionFiles(folder);
    for (qsizetype i = kDeletionsKept; i < all.size(); ++i) {
        if (QFileInfo(all[i].path) != QFileInfo(path))
            QFile::remove(all[i].path);
    }
    return true;
}

QList<Backup> listBackups(const QString& folder)
{
    QList<Backup> found = dailyFiles(folder) + deletionFiles(folder);
    std::sort(found.begin(), found.end(), isNewer);
    found.removeIf([](const Backup& backup) { return !BookFiles::inspect(backup.path); });
    return found;
}

std::optional<Backup> lastGoodBackup(const QString& folder)
{
    for (const Backup& backup : listBackups(folder)) {
        if (isSound(backup.path))
            return backup;
    }
    return {};
}

bool keepBeforeUpgrade(jet::Database& database, const QString& folder, int version)
{
    const QString name = QFileInfo(database.path()).completeBaseName();
    const QString wanted = QDir(folder).filePath(u"%1-version-%2"_s.arg(name).arg(version));
    QString path = wanted + u".dll"_s;
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = u"%1-%2.dll"_s.arg(wanted).arg(i);
    return QDir().mkpath(folder) && database.backUpTo(path);
}

Restored restore(const QString& backup, const QString& dataFile, const QDateTime& now)
{
    if (!isSound(backup))
        return {false, {},
            Text::tr("The backup \"%1\" is not sound. Nothing was changed.")
                .arg(QDir::toNativeSeparators(backup))};
    const QString failure
        = Text::tr("The backup could not be copied into the folder of the book. The book is "
                   "as it was.");
    const QString incoming = dataFile + u".new"_s;
    QFile::remove(incoming);
    if (!QFile::copy(backup, incoming)) {
        QFile::remove(incoming);
        return {false, {}, failure};
    }
    QFile::setPermissions(incoming, QFile::permissions(incoming) | QFile::WriteOwner);

    const QFileInfo present(dataFile);
    const QString stem = present.absoluteDir().filePath(
        present.completeBaseName() + now.toString(u"'-replaced-'yyyy-MM-dd-HHmmss"_s));
    QString kept = stem + u".dll"_s;
    for (int i = 2; QFileInfo::exists(kept) || QFileInfo::exists(kept + u"-wal"_s); ++i)
        kept = u"%1-%2.dll"_s.arg(stem).arg(i);
    const QString log = dataFile + u"-wal"_s;
    const bool hasFile = present.exists();
    const bool hasLog = QFileInfo::exists(log);
    bool done = !hasFile || keepUnderSecondName(dataFile, kept);
    done = done && (!hasLog || keepUnderSecondName(log, kept + u"-wal"_s));
    // A log left beside the restored file would be played into it; from here to the next step it has its
    // second name only. The index of a log is made anew.
    const bool logMoved = done && hasLog && QFile::remove(log);
    if (done && logMoved == hasLog) {
        QFile::remove(dataFile + u"-shm"_s);
        if (putInPlace(incoming, dataFile))
            return {true, hasFile ? kept : QString(), {}};
    }
    QFile::remove(incoming);
    // The second names go only when the first ones stand again.
    const bool logIsBack = !logMoved || keepUnderSecondName(kept + u"-wal"_s, log);
    if (hasFile && logIsBack && QFileInfo::exists(dataFile))
        QFile::remove(kept);
    if (hasLog && logIsBack && QFileInfo::exists(log))
        QFile::remove(kept + u"-wal"_s);
    return {false, {}, failure};
}

} // namespace core
