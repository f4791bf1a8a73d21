#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace jet {
class Database;
}

namespace core {

/// A copy of the data database: `Orvanedata-2026-06-15.dll`, a second one of the day with `-2`. Or one that
/// was made just before many contacts were deleted: `Orvanedata-2026-06-15-before-deletion-143005.dll`.
///
/// Which is newer is told by a number in the copy itself, since the clock of a computer may be wrong and a
/// name can be changed. Copies of earlier versions have no number; they count as the oldest, in the order of
/// names.
struct Backup {
    QString path;
    qint64 number = 0;
    QDateTime made; ///< by the clock of that time
    bool beforeDeletion = false;
    int contacts = 0;
    qint64 bytes = 0;
    QString content; ///< a fingerprint of the book that was copied
};

enum class BackupResult {
    Made,
    NotNeeded, ///< nothing was changed since the last copy
    Failed, ///< no room, no right to write; nothing was changed
    BookUnsound, ///< the copy shows damage; it stands beside the backups as `Orvanedata-damaged-...`
};

/// Copies the book to the folder if it holds anything else than the last copy. The last ten stay, of one day
/// the first and the last ones, and the last of each month. Other files in the folder are never touched. The
/// whole book is read, so this is best done when the person looks at something already; a thread of its own
/// needs a Database of its own.
BackupResult backUpIfChanged(jet::Database& database, const QString& folder, const QDateTime& now);

/// Copies the book before a deletion that the person may regret. The rotation of the others leaves these
/// copies alone; of their own the last five stay. False when there is no sound copy: then nothing should be
/// deleted.
bool keepBeforeDeletion(jet::Database& database, const QString& folder, const QDateTime& now);

/// The copies that look complete, newest first.
QList<Backup> listBackups(const QString& folder);
/// The newest copy that proves sound when it is read as a whole.
std::optional<Backup> lastGoodBackup(const QString& folder);
/// What a person chooses a backup by: when it was made, how many contacts are in it, its size.
QString describedBackup(const Backup& backup);
/// The newest copy of a book that showed damage; empty when there is none.
QString damagedCopy(const QString& folder);

/// Keeps a copy that no rotation removes, named by the version that the book had.
bool keepBeforeUpgrade(jet::Database& database, const QString& folder, int version);

struct Restored {
    bool ok = false;
    QString keptFile; ///< where the file that was there before lies now; empty when there was none
    QString reason; ///< why it failed, for a person to read
    explicit operator bool() const { return ok; }
};

/// Puts a copy in the place of the data file, in one step. The file that was there, with its log, stays
/// beside it under a name with the time. When anything fails the data file is as it was. No database may be
/// open on it.
Restored restore(const QString& backup, const QString& dataFile, const QDateTime& now);

} // namespace core
