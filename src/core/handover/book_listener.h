#pragma once

namespace core {

/// A screen that shows contacts, and reads them anew when another part of the program has changed some.
class BookListener {
public:
    virtual ~BookListener() = default;
    /// Keeps what is being entered and, where it can, the contact that is shown.
    virtual void bookChanged() = 0;
};

} // namespace core
