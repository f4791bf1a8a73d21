#pragma once

#include "formats/card_slots.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace transfer {

/// A contact that a card would make.
struct IncomingCard {
    formats::CardContact contact; ///< its picture lies in a file of its own
    QString photoFile; ///< empty for none
    int file = 0; ///< of the files that were read
    int number = 0; ///< in its file, from 1
    QString like; ///< why it may be there already; empty for one that is new
    bool isTicked = true;
};

/// A card, or a piece of one, that does not come in.
struct LeftCard {
    QString source; ///< "friends.vcf, card 3"
    QString name;
    QString why;
};

struct IncomingCards {
    QStringList files; ///< of this computer
    std::vector<IncomingCard> cards;
    QList<LeftCard> left; ///< the first thousands of them
    int leftCount = 0;
    bool isStopped = false; ///< by the person; what was read until then is here

    QString sourceOf(int file, int number) const;
};

/// What reading needs from outside of it.
struct CardReading {
    QString photoFolder; ///< of this computer, where pictures are put until the cards are stored
    std::function<bool(const QString& file)> isPicture;
    std::function<bool(qint64 bytes)> progress; ///< read so far of all files; false stops
};

/// Reads files of cards. Whatever is in them, it ends, and no more than one card with its picture is held
/// beside the contacts that it makes.
IncomingCards readCardFiles(
    const QStringList& files, const formats::CardColumns& columns, const CardReading& reading);

/// The vCard files below a folder, in order; links are not followed.
QStringList cardFilesBelow(const QString& folder);

} // namespace transfer
