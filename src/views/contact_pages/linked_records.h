#pragma once

#include "jet/recordset.h"

#include <QString>

#include <span>

namespace views {

/// One list of what the book holds of a contact in another table.
struct LinkedList {
    QStringView key;
    QStringView icon;
    const char* caption; ///< for translation
    QStringView columns;
    QStringView from; ///< the tables and the condition; "%1" is the id of the contact
    QStringView order;
    QStringView headings;
    QStringView headingColumns; ///< under the headings, with "," between
    QStringView text = {}; ///< the column with the whole text of a row
    bool contacts = false; ///< its rows are contacts
    QStringView scanned = {}; ///< the id of the contacts when all of them must be read to find the rows
};

std::span<const LinkedList> linkedLists();
QString linkedSql(const LinkedList& list, qint64 id);
QString linkedCountSql(const LinkedList& list, qint64 id);
/// The same among some of the contacts only, so that a count over a large book can be made in steps.
QString linkedCountSql(const LinkedList& list, qint64 id, qint64 from, qint64 to);

/// The relatives that the contact's own row holds: relation, name, date of birth.
QList<QStringList> relativesOf(const jet::Recordset& contact, bool nationalMode);

} // namespace views
