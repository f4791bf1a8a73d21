#pragma once

#include <optional>

#include <QDateTime>
#include <QHash>

#include "platform/contact_sync.h"

namespace platform {

class ContactCard;

/// The mail client's contacts as a folder with one vCard file a contact, the layout that the common
/// synchronising programs and address books of this desktop share. Damaged files and files above 1 MB are
/// passed over and never written; links are not followed.
class VdirContacts final : public MailContacts {
public:
    explicit VdirContacts(const QString& folder);

    bool add(const MailContact& contact) override;
    bool update(const QString& key, const MailChange& change) override;
    bool assignKey(const QString& item, const QString& key) override;
    bool remove(const QString& key) override;
    bool contains(const QString& key) override;
    std::vector<MailContact> list() override;
    QStringList items() override;
    std::optional<MailContact> item(const QString& item) override;

private:
    QStringList cardFiles() const;
    std::optional<ContactCard> read(const QString& file) const;
    bool write(const QString& file, const ContactCard& card);
    QString fileOf(const QString& key);
    void readKeys();
    QDateTime folderTime() const;

    QString m_folder;
    /// Which file has a key. Kept while the folder's time tells that no other program added or removed a
    /// file.
    QHash<QString, QString> m_files;
    QDateTime m_filesTime;
};

} // namespace platform
