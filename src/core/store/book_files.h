#pragma once

#include "core/store/book_schema.h"

#include <QCoreApplication>
#include <QString>

namespace jet {
class Database;
}

namespace core {

/// What is wrong with one database file, for the program to decide on and for a person to read.
struct BookReport {
    enum class Fault {
        None,
        Missing,
        CutShort, ///< the beginning of a database, as a broken copy or a full disk leaves it
        NotADatabase, ///< something else, or a database that is no address book
        NewerVersion, ///< made by a later version of this program
        Damaged, ///< a whole database that can not be read
        NotMade, ///< there was none yet, and none could be made
        NotUpgraded, ///< of an older version, and a copy or the change itself failed; it is as it was
    };
    Fault fault = Fault::None;
    QString file;
    QString text; ///< whole sentences that say what is wrong with which file; empty without a fault

    explicit operator bool() const { return fault == Fault::None; }
};

/// The two databases in the program's folder: made at first start, checked and brought up to date when
/// opened.
///
/// A file is built under a temporary name and gets its own when it is complete and on the disk, so there is a
/// whole database or none. A file that is there is never replaced, and one with a fault is not even written
/// to.
class BookFiles {
    Q_DECLARE_TR_FUNCTIONS(core::BookFiles)

public:
    BookFiles(const QString& programFolder, const QString& backupFolder);

    QString dataFile() const;
    QString infoFile() const;

    /// Makes the databases that are missing. The information database holds shipped rows only and is made
    /// anew at any time. The data database is made only for somebody who never had one: a book that was there
    /// and is gone must not be covered up by an empty one. national: whether this user lives in the home
    /// country.
    BookReport makeMissing(bool national);
    /// An empty book in the place of one that is gone, when the person wants that.
    bool makeNewBook(bool national) const;
    /// Puts the information database aside, whatever is wrong with it, and makes it anew.
    bool remakeInfo(bool national) const;

    /// Opens a database if it is sound, after adding what a later version of the schema has. A copy of the
    /// older file is kept in the backup folder before that.
    BookReport openData(jet::Database& database) const;
    BookReport openInfo(jet::Database& database) const;

    /// A complete new database at a path where none is yet.
    static bool makeNew(const QString& path, BookPart part, bool national);
    /// Looks at a file without opening it as a database, so nothing is written, not even a log beside it.
    static BookReport inspect(const QString& path);

private:
    BookReport open(jet::Database& database, BookPart part) const;
    bool hadABook() const;
    BookReport notMade(const QString& path) const;
    QString markerFile() const;

    QString m_programFolder;
    QString m_backupFolder;
};

} // namespace core
