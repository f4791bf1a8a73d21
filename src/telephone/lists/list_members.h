#pragma once

#include "jet/database.h"

#include <QList>
#include <QString>

namespace telephone {

struct TaggedNumber {
    QString tag; ///< of its slot, "H1"
    QString number;
};

/// A person on the way into a telephone list.
struct NewMember {
    qint64 id = 0;
    QString name;
    QString category;
    QString city;
    QString priority;
    QList<TaggedNumber> numbers; ///< those that are wanted; blank ones do not count
};

enum class MemberAdded { Added, AlreadyThere, NoNumber, NotStored };
/// Adds a row a number, all or none, as one step.
MemberAdded addMember(jet::Database& book, const QString& list, const NewMember& member);

/// A list is there from its bare row on, before it has numbers.
bool addList(jet::Database& book, const QString& list);
/// Takes a list away with all its numbers.
bool deleteList(jet::Database& book, const QString& list);
/// Takes every row of the list with that number away, also those of other persons. Of rows without a number
/// only those of the person go.
bool deleteNumber(jet::Database& book, const QString& list, const QString& phone, qint64 person);

} // namespace telephone
