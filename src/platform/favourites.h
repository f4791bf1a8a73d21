#pragma once

#include <QStringView>

namespace platform {

/// The user's list of web favourites.
class Favourites {
public:
    Favourites() = default;
    Favourites(const Favourites&) = delete;
    Favourites& operator=(const Favourites&) = delete;
    virtual ~Favourites() = default;

    /// Adds the address under the name and the suffix, in place of an older one of that name. A blank address
    /// adds nothing. True when a favourite was written.
    virtual bool AddFavourite(QStringView url, QStringView name, QStringView suffix) = 0;
};

} // namespace platform
