#pragma once

#include "jet/database.h"

#include <QStringList>

#include <utility>

namespace transfer {

/// One card of the kind that this program writes file by file, as the screen of visiting cards reads it: by
/// the exact start of each line and from a fixed character on.
struct VisitingCard {
    QStringList preview; ///< a line a value, the label padded to 40 characters
    QList<std::pair<QStringView, QString>> values; ///< by column, as they were met
    QString stoppedAt; ///< the line of an address with too few parts: nothing behind it was read
    bool isOfOthers = false; ///< another program's, or more than one card
};

VisitingCard readVisitingCard(QStringView text);

/// Adds the contact with all columns that a card may fill, in the order in which books have them; the others
/// stay empty. False when it was not stored.
bool addVisitingCard(jet::Database& book, const VisitingCard& card);

} // namespace transfer
