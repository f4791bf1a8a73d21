#pragma once

#include <QString>

namespace core {

/// A screen with a list that another one may have changed.
class Refreshable {
public:
    virtual ~Refreshable() = default;
    /// Reads the list again, by this statement; an empty one leaves it at the screen's own.
    virtual void refreshList(const QString& sql) = 0;
};

} // namespace core
