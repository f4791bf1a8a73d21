#pragma once

#include <QString>

namespace core {

/// The screen that dials: takes a number that need not be one of a contact. A contact is handed to it as to
/// any ContactScreen.
class NumberDialer {
public:
    virtual ~NumberDialer() = default;
    /// Ready to dial; nothing is dialled yet.
    /// @param who whom the number belongs to, a person or a city
    virtual void offerNumber(const QString& number, const QString& who) = 0;
};

} // namespace core
