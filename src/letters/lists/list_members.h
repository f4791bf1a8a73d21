#pragma once

#include "jet/database.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace letters {

/// What became of people who were to be put into a list.
struct MembersAdded {
    bool isStored = true; ///< false when nothing was, because the book could not be written
    int added = 0;
    int known = 0; ///< were in it already, or are gone
    QStringList without
        = {}; ///< names of those who lack what the list is made of, or for whom it has no room
};

/// Puts contacts into a mailing list, which need not be there yet; nobody stands in it twice.
MembersAdded addListMembers(jet::Database& book, const QString& list, const QList<qint64>& ids);
/// Takes a person out: every row of that name in that list goes, and what stands there for the contact under
/// a name from before.
/// @param id of the contact where it is known, else 0
bool removeListMember(jet::Database& book, const QString& list, const QString& name, qint64 id);
/// How many rows the above takes away.
int rowsOfMember(jet::Database& book, const QString& list, const QString& name, qint64 id);
/// With a name that another list has, both become one, with nobody twice.
bool renameMailList(jet::Database& book, const QString& from, const QString& to);
bool deleteMailList(jet::Database& book, const QString& list);

/// The print selection: marks and unmarks contacts, which is nothing for a person to take back.
bool clearSelection(jet::Database& book);
bool selectContact(jet::Database& book, qint64 id, bool selected);
/// All for whom a bare condition holds, in one statement.
bool selectWhere(jet::Database& book, const QString& condition, jet::Way way, bool selected);
bool selectContacts(jet::Database& book, const QList<qint64>& ids, bool selected);

/// Ids for "id in (...)", in pieces that a statement takes.
QStringList idLists(const QList<qint64>& ids);

} // namespace letters
