#pragma once

#include "jet/database.h"
#include "letters/lists/list_members.h"

#include <QString>

namespace letters {

/// The kinds of lists to which people can be added from anywhere.
enum class ListKind { Mail, Phone, Kitty, Party, Association };

/// A list to which people can be added, or a new mailing list.
struct PickedList {
    ListKind kind = ListKind::Mail;
    QString name = {};
    qint64 id = 0; ///< of groups that have one

    /// As it stands in the list to pick from, with the kind in front.
    QString caption() const;
    bool operator==(const PickedList&) const = default;
};

/// All lists there are, kind by kind.
QList<PickedList> pickableLists(jet::Database& book);
/// What a person calls the kind, in a sentence: "the association".
QString wordOf(ListKind kind);

/// Adds contacts that are not in the list yet. A list of telephone numbers takes the first number of each, as
/// long as it has free places.
MembersAdded addToList(jet::Database& book, const PickedList& list, const QList<qint64>& ids);

} // namespace letters
