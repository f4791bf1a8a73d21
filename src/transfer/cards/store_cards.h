#pragma once

#include "transfer/cards/card_files.h"

#include "jet/database.h"

#include <QDate>

#include <functional>
#include <memory>

class QTemporaryDir;

namespace platform {
class Drive;
}

namespace transfer {

struct StoreOptions {
    QDate today;
    QString priority; ///< of cards that tell none; "2" where the set-up tells none either
    bool makesSchedulerRows = false; ///< for birthdays and anniversaries, as the save of a new contact does
    /// Holds the pictures for as long as the import can be taken back and done again.
    std::shared_ptr<QTemporaryDir> photos;
    std::function<bool(int done)> progress; ///< false stops, and nothing is stored
};

struct StoredCards {
    int added = 0; ///< contacts: all that are ticked, or none
    int photosLost = 0; ///< pictures that could not be copied; their contacts are stored without
    bool isStopped = false; ///< by the person
};

/// Makes contacts of the ticked cards: all or none, durable when it returns, one step to take back. Pictures
/// are copied into the user's folder of photos.
StoredCards storeCards(jet::Database& book, const platform::Drive& drive, const formats::CardColumns& columns,
    const IncomingCards& incoming, const StoreOptions& options);

} // namespace transfer
