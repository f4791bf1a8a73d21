#pragma once

#include "formats/card_file.h"
#include "platform/contact_sync.h"

#include <QtGlobal>

namespace core {

/// An entry form as the "save as" dialog sees it: what stands in it, in the forms in which it can be saved.
class SaveSource {
public:
    virtual ~SaveSource() = default;

    /// Whether what was entered can be saved; where not, the person has been told why.
    virtual bool mayBeSaved() = 0;
    virtual formats::CardValues cardValues() const = 0;
    /// With the key of the stored contact, if there is one.
    virtual platform::MailContact mailContact() const = 0;
    /// Stores the contact in the book, as the form's own button does, and gives its id; 0 when it is not
    /// stored.
    virtual qint64 saveContact() = 0;
};

} // namespace core
