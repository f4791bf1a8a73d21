#include "core/store/backups.h"

#include "core/store/book_files.h"
#include "jet/database.h"
#include "jet/date_text.h"
#include "platform/durable_files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int kBackupsKept = 10;
constexpr int kDeletionsKept = 5;
constexpr int kDamagedKept = 3;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(core::Backups)
};

// The note in a copy, in a table of its own, which a restore takes out again.
const QString kNote = u"OV_Copy"_s;
constexpr auto kNoteSchema = "database,table,column,type,size\n"
                             "copy,OV_Copy,number,number,\n"
                             "copy,OV_Copy,made,text,40\n"
                             "copy,OV_Copy,content,text,80\n";

constexpr QStringView kTimeOfStamp = u"HHmmss";

QString stampOf(const QDateTime& time)
{
    return jet::isoDate(time.date()) + u'-' + time.time().toString(kTimeOfStamp);
}

bool isNewer(const Backup& a, const Backup& b)
{
    if (a.number != b.number)
        return a.number > b.number;
    return a.made != b.made ? a.made > b.made : a.path > b.path;
}

/// What the file tells of itself: only its name where it is of an earlier version or can not be read.
Backup readBackup(const QFileInfo& file, const QDateTime& madeByName, bool beforeDeletion)
{
    Backup backup{file.absoluteFilePath(), 0, madeByName, beforeDeletion, 0, file.size(), {}};
    jet::Database copy;
    // As shipped rows are opened: no log is begun beside a file that is only looked at.
    if (!BookFiles::inspect(backup.path)
        || copy.open(backup.path, jet::Database::Kind::Information) != jet::Database::OpenResult::Opened)
        return backup;
    backup.contacts = int(copy.openRecordset(u"select count(id) as n from cnt_main"_s).number(u"n"));
    if (!copy.tables().contains(kNote, Qt::CaseInsensitive))
        return backup;
    const auto note = copy.openRecordset(u"select * from "_s + kNote);
    const QDateTime made = jet::dateFromIso(note.textOrEmpty(u"made")).toDateTime();
    backup.number = note.number(u"number");
    backup.made = made.isValid() ? made : madeByName;
    backup.content = note.textOrEmpty(u"content");
    return backup;
}

/// The files of exactly the names that this program gives, newest first. What is beside them is not ours.
QList<Backup> allBackups(const QString& folder)
{
    static const QRegularExpression pattern(
        u"\\AOrvanedata-([0-9]{4}-[0-9]{2}-[0-9]{2})(-[0-9]{1,4}|-before-deletion-([0-9]{6}))?\\.dll\\z"_s);
    QList<Backup> found;
    for (const QFileInfo& entry : QDir(folder).entryInfoList({u"Orvanedata-*.dll"_s}, QDir::Files)) {
        const auto match = pattern.match(entry.fileName());
        const QDate day = jet::dayOfIso(match.captured(1));
        const bool beforeDeletion = !match.captured(3).isEmpty();
        const QTime time = beforeDeletion ? QTime::fromString(match.captured(3), kTimeOfStamp) : QTime(0, 0);
        if (match.hasMatch() && day.isValid() && time.isValid() && !entry.isSymLink())
            found << readBackup(entry, QDateTime(day, time), beforeDeletion);
    }
    std::sort(found.begin(), found.end(), isNewer);
    return found;
}

bool isSound(const QString& path)
{
    jet::Database copy;
    return BookFiles::inspect(path)
        && copy.open(path, jet::Database::Kind::Information) == jet::Database::OpenResult::Opened
        && copy.checkSoundness().isEmpty() && copy.tables().contains(u"cnt_main"_s, Qt::CaseInsensitive);
}

/// The same for two copies between which nothing was stored.
QString contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray head = file.read(100);
    // The counters of changes in the head move by themselves, also when nothing was stored.
    for (const auto& [from, length] : {std::pair(24, 4), std::pair(92, 8)}) {
        if (head.size() >= from + length)
            head.replace(from, length, QByteArray(length, '\0'));
    }
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(head);
    return hash.addData(&file) ? QString::fromLatin1(hash.result().toHex()) : QString();
}

bool writeNote(const QString& path, qint64 number, const QDateTime& made, const QString& content)
{
    jet::Database copy;
    if (copy.open(path, jet::Database::Kind::Information) != jet::Database::OpenResult::Opened)
        return false;
    // A restored book may hold one, when it was put in its place by hand.
    if (copy.tables().contains(kNote, Qt::CaseInsensitive))
        copy.execute(u"drop table "_s + kNote);
    return copy.applySchema(jet::Schema::fromCsv(kNoteSchema), u"copy"_s)
        && copy.appendRows(kNote, {u"number"_s, u"made"_s, u"content"_s},
            {{QString::number(number), jet::isoDate(made.date(), made.time()), content}});
}

void takeNoteOut(const QString& path)
{
    jet::Database copy;
    if (copy.open(path, jet::Database::Kind::Information) == jet::Database::OpenResult::Opened
        && copy.tables().contains(kNote, Qt::CaseInsensitive))
        copy.execute(u"drop table "_s + kNote);
}

QStringList damagedFiles(const QString& folder)
{
    QStringList paths;
    for (const QFileInfo& entry :
        QDir(folder).entryInfoList({u"Orvanedata-damaged-*.dll"_s}, QDir::Files, QDir::Time))
        paths << entry.absoluteFilePath();
    return paths;
}

// What can be read of a damaged book is in its copy as well; each day may take more of the book away.
void keepDamaged(const QString& unchecked, const QString& folder, const QDateTime& now)
{
    const QStringList before = damagedFiles(folder);
    if (!before.isEmpty() && contentOf(before.first()) == contentOf(unchecked)) {
        QFile::remove(unchecked);
        return;
    }
    const QString path = QDir(folder).filePath(u"Orvanedata-damaged-%1.dll"_s.arg(stampOf(now)));
    if (!platform::putInPlace(unchecked, path))
        QFile::remove(unchecked);
    for (qsizetype i = kDamagedKept - 1; i < before.size(); ++i)
        QFile::remove(before[i]);
}

struct NewCopy {
    QString folder;
    QString path;
    QDateTime now;
    bool evenIfUnchanged = false;
};

BackupResult makeCopy(jet::Database& database, const NewCopy& wanted, const QList<Backup>& before)
{
    // Checked under another name, so that damage is never found under the name of a backup.
    const QString unchecked = wanted.path + u".new"_s;
    QFile::remove(unchecked);
    if (!QDir().mkpath(wanted.folder) || !database.backUpTo(unchecked))
        return BackupResult::Failed;
    const auto drop = [&unchecked](BackupResult result) {
        QFile::remove(unchecked);
        return result;
    };
    if (!isSound(unchecked)) {
        keepDamaged(unchecked, wanted.folder, wanted.now);
        return BackupResult::BookUnsound;
    }
    const QString content = contentOf(unchecked);
    const qint64 number = before.isEmpty() ? 0 : before.first().number;
    if (!wanted.evenIfUnchanged && !before.isEmpty() && before.first().content == content
        && isSound(before.first().path))
        return drop(BackupResult::NotNeeded);
    if (!writeNote(unchecked, number + 1, wanted.now, content)
        || !platform::putInPlace(unchecked, wanted.path))
        return drop(BackupResult::Failed);
    return BackupResult::Made;
}

/// Of copies in their order, newest first, those that may go.
QStringList superfluous(QList<Backup> copies)
{
    QStringList paths;
    QSet<QString> months;
    qsizetype older = 0; // of the last ten, but the last of their month
    QSet<QString> lastOfMonth;
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const QString month = jet::formatDate(copies[i].made.date(), u"yyyy-mm");
        if (months.contains(month))
            continue;
        months << month;
        lastOfMonth << copies[i].path;
        older += i >= kBackupsKept ? 1 : 0;
    }
    // First those between the first and the last of one day, so that ten starts in a day leave the days
    // before.
    const auto dayOf = [&copies](qsizetype i) { return copies[i].made.date(); };
    for (qsizetype i = copies.size() - 2; i > 0 && copies.size() > kBackupsKept + older; --i) {
        if (dayOf(i) == dayOf(i - 1) && dayOf(i) == dayOf(i + 1))
            paths << copies.takeAt(i).path;
    }
    for (qsizetype i = kBackupsKept; i < copies.size(); ++i) {
        if (!lastOfMonth.contains(copies[i].path))
            paths << copies[i].path;
    }
    return paths;
}

} // namespace

BackupResult backUpIfChanged(jet::Database& database, const QString& folder, const QDateTime& now)
{
    const QString stem = QDir(folder).filePath(u"Orvanedata-"_s + jet::isoDate(now.date()));
    QString path = stem + u".dll"_s;
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = u"%1-%2.dll"_s.arg(stem).arg(i);
    const BackupResult result = makeCopy(database, {folder, path, now}, allBackups(folder));
    if (result != BackupResult::Made)
        return result;
    QList<Backup> all = allBackups(folder);
    all.removeIf([](const Backup& backup) { return backup.beforeDeletion; });
    for (const QString& superseded : superfluous(all))
        QFile::remove(superseded);
    return BackupResult::Made;
}

bool keepBeforeDeletion(jet::Database& database, const QString& folder, const QDateTime& now)
{
    const auto pathAt = [&folder](const QDateTime& time) {
        return QDir(folder).filePath(u"Orvanedata-%1-before-deletion-%2.dll"_s.arg(
            jet::isoDate(time.date()), time.toString(kTimeOfStamp)));
    };
    QDateTime time = now;
    while (QFileInfo::exists(pathAt(time)))
        time = time.addSecs(1);
    if (makeCopy(database, {folder, pathAt(time), now, true}, allBackups(folder)) != BackupResult::Made)
        return false;
    QList<Backup> all = allBackups(folder);
    all.removeIf([](const Backup& backup) { return !backup.beforeDeletion; });
    for (qsizetype i = kDeletionsKept; i < all.size(); ++i)
        QFile::remove(all[i].path);
    return true;
}

QList<Backup> listBackups(const QString& folder)
{
    QList<Backup> found = allBackups(folder);
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

QString describedBackup(const Backup& backup)
{
    const QLocale locale;
    const QString day = locale.toString(backup.made.date(), QLocale::LongFormat);
    const QString time = locale.toString(backup.made.time(), QLocale::ShortFormat);
    const QString when = backup.beforeDeletion ? Text::tr("%1, %2, before a deletion").arg(day, time)
        : backup.number > 0                    ? Text::tr("%1, %2").arg(day, time)
                                               : day;
    const QString contacts = backup.contacts == 1
        ? Text::tr("1 contact")
        : Text::tr("%1 contacts").arg(locale.toString(backup.contacts));
    const QString size = locale.toString(double(backup.bytes) / (1024 * 1024), 'f', 1);
    return Text::tr("%1   (%2, %3 MB)").arg(when, contacts, size);
}

QString damagedCopy(const QString& folder)
{
    return damagedFiles(folder).value(0);
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
    takeNoteOut(incoming);

    const QFileInfo present(dataFile);
    const QString stem
        = present.absoluteDir().filePath(u"%1-replaced-%2"_s.arg(present.completeBaseName(), stampOf(now)));
    QString kept = stem + u".dll"_s;
    for (int i = 2; QFileInfo::exists(kept) || QFileInfo::exists(kept + u"-wal"_s); ++i)
        kept = u"%1-%2.dll"_s.arg(stem).arg(i);
    const QString log = dataFile + u"-wal"_s;
    const bool hasFile = present.exists();
    const bool hasLog = QFileInfo::exists(log);
    bool done = !hasFile || platform::keepUnderSecondName(dataFile, kept);
    done = done && (!hasLog || platform::keepUnderSecondName(log, kept + u"-wal"_s));
    // A log left beside the restored file would be played into it; from here to the next step it has its
    // second name only. The index of a log is made anew.
    const bool logMoved = done && hasLog && QFile::remove(log);
    if (done && logMoved == hasLog) {
        QFile::remove(dataFile + u"-shm"_s);
        if (platform::putInPlace(incoming, dataFile))
            return {true, hasFile ? kept : QString(), {}};
    }
    QFile::remove(incoming);
    // The second names go only when the first ones stand again.
    const bool logIsBack = !logMoved || platform::keepUnderSecondName(kept + u"-wal"_s, log);
    if (hasFile && logIsBack && QFileInfo::exists(dataFile))
        QFile::remove(kept);
    if (hasLog && logIsBack && QFileInfo::exists(log))
        QFile::remove(kept + u"-wal"_s);
    return {false, {}, failure};
}

} // namespace core
