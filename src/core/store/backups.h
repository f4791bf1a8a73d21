#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace jet {
class Database;
}

namespace core {

/// A daily copy of the data database: `Orvanedata-2026-06-15.dll`. Or one that was made just before many
/// contacts were deleted: `Orvanedata-2026-06-15-before-deletion-143005.dll`.
struct Backup {
    QString path;
    QDate day;
    QTime time = {}; ///< only of a copy before a deletion
};

enum class BackupResult {
    Made,
    NotNeeded, ///< there is one of today
    Failed, ///< no room, no right to write; nothing was changed
    BookUnsound, ///< the copy shows damage; it was dropped, and the older backups stay
};

/// Copies the book to the folder, at most once a day, and removes what is older than the last ten daily
/// copies. Other files in the folder are never touched. The whole book is read, so this is best done when the
/// person looks at something already; a thread of its own needs a Database of its own.
BackupResult backUpOnceADay(jet::Database& database, const QString& folder, QDate today);

/// Copies the book before a deletion that the person may regret. The daily rotation leaves these copies
/// alone; of their own the last five stay. False when there is no sound copy: then nothing should be deleted.
bool keepBeforeDeletion(jet::Database& database, const QString& folder, const QDateTime& now);

/// The copies that look complete, newest first.
QList<Backup> listBackups(const QString& folder);
/// The newest copy that proves sound when it is read as a whole.
std::optional<Backup> lastGoodBackup(const QString& folder);

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
