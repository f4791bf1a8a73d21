#pragma once

#include "jet/database.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <span>

/// What the creators of letters and mail offer, as the person keeps it: word lists, stored texts, phrases.
namespace letters {

enum class ListTab { Openings, LetterTexts, MailTexts, Categories, Mail, Phrases, MailDatabase };

/// How an entry goes.
enum class Removal {
    ClearColumn, ///< its row holds words of other lists as well; by one statement
    ClearRows, ///< the same, row by row that is found
    ByStatement, ///< its row goes
    ByRow, ///< of several alike just the one
};

/// One list: where it stands and the pieces of its statements as they stand round the values.
struct StoredList {
    ListTab tab;
    QStringView page; ///< the name by which other screens open it
    const char* caption;
    QStringView name; ///< of its controls: "lst", "txt" and this
    QStringView table;
    QStringView column; ///< of the entry itself
    QStringView read;
    QStringView renameTo; ///< before the new word; empty for entries of several fields
    QStringView renameFrom; ///< between the new word and the old one
    QStringView renameEnd; ///< behind the old one
    Removal removal;
    QStringView remove; ///< before the value
    QStringView removeEnd;
    QStringView kindColumn = {}; ///< tells apart the lists of one table
    QStringView kind = {};
    QStringView saveButton = {};
    QStringView deleteButton = {};
    const char* question = ""; ///< before an entry goes
    QStringView saveSound = u"save";
};

std::span<const StoredList> storedLists();

/// The values of an entry by column, in small letters.
using Entry = QHash<QString, QVariant>;
/// Which entry is meant, where several may be alike.
struct EntryPlace {
    QString value; ///< of the list's column
    qint64 key = 0; ///< of its row; 0 when words are looked up by themselves
};

/// What the list shows: its words once each, or its rows.
QString listSql(const StoredList& list);
bool hasSeveralFields(const StoredList& list);
QString renameSql(const StoredList& list, const QString& from, const QString& to);
QString removeSql(const StoredList& list, const QString& value);

/// The whole entry of a row, for lists of several fields; empty when it is gone.
Entry entryOf(jet::Database& data, const StoredList& list, qint64 key);

enum class EntryFault { None, Empty, Known };
/// Whether an entry may be stored, in place of the one that is given or as a new one.
EntryFault checkEntry(jet::Database& data, const StoredList& list, const QString& from, const QString& value);

/// Each is true when it is stored.
bool addEntry(jet::Database& data, const StoredList& list, const Entry& entry);
bool changeEntry(jet::Database& data, const StoredList& list, const EntryPlace& place, const Entry& entry);
bool removeEntry(jet::Database& data, const StoredList& list, const EntryPlace& place);

} // namespace letters
