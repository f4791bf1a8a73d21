#pragma once

#include "views/contact_pages/record_texts.h"

#include <memory>

namespace platform {
class Drive;
class MailContacts;
} // namespace platform

namespace views {

/// An address book other than the program's own, to be browsed: a list of names, and for one of them the
/// texts to show. What has not been asked for has not been read.
class AddressSource {
public:
    AddressSource() = default;
    AddressSource(const AddressSource&) = delete;
    AddressSource& operator=(const AddressSource&) = delete;
    virtual ~AddressSource() = default;

    virtual void reload() = 0; ///< looks again what there is
    virtual int count() const = 0;
    virtual QString label(int row) = 0;
    virtual QList<ShownText> texts(int row) = 0;
};

/// The contacts of the mail client.
std::unique_ptr<AddressSource> mailClientSource(platform::MailContacts& contacts);
/// A folder of vCard files.
std::unique_ptr<AddressSource> cardFolderSource(const platform::Drive& drive, const QString& folder);
/// The address book of the second mail client, a folder of vCard files as well; of its people the name and a
/// few ways to reach them are shown.
std::unique_ptr<AddressSource> addressBookSource(const platform::Drive& drive, const QString& folder);

} // namespace views
