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
    /// The link of the stored contact to the mail client's item; empty for one that is not stored.
    virtual QString mailKey() const = 0;
    /// Writes what the form holds, as it stands now, into an item.
    virtual platform::MailChange mailChange() const = 0;
    /// Stores the contact in the book, as the form's own button does, and gives its id; 0 when it is not
    /// stored.
    virtual qint64 saveContact() = 0;
};

} // namespace core
