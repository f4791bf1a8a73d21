#include "views/full_view/address_source.h"

#include "core/contact_names.h"
#include "formats/card_file.h"
#include "platform/card_folder.h"
#include "platform/contact_sync.h"

#include <QHash>

#include <span>

using namespace Qt::StringLiterals;
using formats::CardFields;
using platform::MailContact;

namespace views {

namespace {

QString filled(std::initializer_list<QString> parts, const QString& between)
{
    QStringList kept;
    for (const QString& part : parts) {
        if (!part.trimmed().isEmpty())
            kept << part.trimmed();
    }
    return kept.join(between);
}

/// What a control shows of one item.
template <class Item> struct Shown {
    QStringView control;
    QString (*text)(const Item& item);
};

template <class Item> QList<ShownText> shownTexts(std::span<const Shown<Item>> table, const Item& item)
{
    QList<ShownText> texts;
    for (const Shown<Item>& row : table)
        texts << ShownText{row.control.toString(), row.text(item)};
    return texts;
}

// ---- the mail client

QString streets(const platform::MailAddress& address)
{
    return filled({address.street1, address.street2}, u"\r\n"_s);
}

QString place(const QString& first, const QString& second)
{
    return filled({first, second}, u"  -  "_s);
}

QString fullName(const MailContact& c)
{
    return c.fullName.isEmpty() ? filled({c.first, c.middle, c.last}, u" "_s) : c.fullName;
}

constexpr Shown<MailContact> kMailTexts[] = {
    {u"SSCommand8", fullName},
    {u"txtfirst",
        [](const MailContact& c) {
            return filled({c.first, c.middle, c.last}, u" "_s);
        }},
    {u"txtCat", [](const MailContact& c) { return c.categories; }},
    {u"txthadd", [](const MailContact& c) { return streets(c.home); }},
    {u"txthcity", [](const MailContact& c) { return place(c.home.city, c.home.pin); }},
    {u"txthstate", [](const MailContact& c) { return place(c.home.state, c.home.country); }},
    {u"txtwadd", [](const MailContact& c) { return streets(c.work); }},
    {u"txtwcity", [](const MailContact& c) { return place(c.work.city, c.work.pin); }},
    {u"txtwstate", [](const MailContact& c) { return place(c.work.state, c.work.country); }},
    {u"txthph1", [](const MailContact& c) { return c.homePhone1; }},
    {u"txthph2", [](const MailContact& c) { return c.homePhone2; }},
    {u"txtwph1", [](const MailContact& c) { return c.workPhone1; }},
    {u"txtwph2", [](const MailContact& c) { return c.workPhone2; }},
    {u"txtfax", [](const MailContact& c) { return c.fax; }},
    {u"txtHweb", [](const MailContact& c) { return c.homeWeb; }},
    {u"txtWweb", [](const MailContact& c) { return c.workWeb; }},
    {u"TxtUser1", [](const MailContact& c) { return c.user1; }},
    {u"TxtUser2", [](const MailContact& c) { return c.user2; }},
    {u"TxtUser3", [](const MailContact& c) { return c.user3; }},
};

class MailClientSource final : public AddressSource {
public:
    explicit MailClientSource(platform::MailContacts& contacts)
        : m_contacts(contacts)
        , m_items(contacts.items())
    {
    }

    void reload() override
    {
        m_items = m_contacts.items();
        m_labels.clear();
    }

    int count() const override { return static_cast<int>(m_items.size()); }

    QString label(int row) override
    {
        const QString item = m_items.value(row);
        const auto known = m_labels.constFind(item);
        if (known != m_labels.constEnd())
            return *known;
        const MailContact c = contact(row);
        QString label = filled({c.first, c.last}, u" "_s);
        for (const QString& next : {c.fullName, c.company, item}) {
            if (label.isEmpty())
                label = next;
        }
        m_labels.insert(item, label);
        return label;
    }

    QList<ShownText> texts(int row) override { return shownTexts<MailContact>(kMailTexts, contact(row)); }

private:
    MailContact contact(int row) const { return m_contacts.item(m_items.value(row)).value_or(MailContact()); }

    platform::MailContacts& m_contacts;
    QStringList m_items;
    QHash<QString, QString> m_labels; ///< of those whose names have been in sight
};

// ---- folders of cards

QString cardName(const CardFields& c)
{
    return c.fullName.isEmpty() ? c.name : c.fullName;
}

QString lines(const QStringList& texts)
{
    return texts.join(u"\r\n"_s);
}

constexpr Shown<CardFields> kCardTexts[] = {
    {u"txtfirst", cardName},
    {u"txtnick", [](const CardFields& c) { return c.nick; }},
    {u"txtcompany", [](const CardFields& c) { return c.company; }},
    {u"txtJobTitle", [](const CardFields& c) { return c.jobTitle; }},
    // Kept: all mail addresses of a card are shown as those of the work.
    {u"txtwemail1", [](const CardFields& c) { return lines(c.preferredEmails + c.emails); }},
    {u"TxtSpouse", [](const CardFields& c) { return c.spouse; }},
    {u"dtpBirtday", [](const CardFields& c) { return c.birthday; }},
    {u"txtWweb", [](const CardFields& c) { return c.workWeb; }},
    {u"txthph1",
        [](const CardFields& c) {
            return lines(c.mobile.isEmpty() ? c.homePhones : c.homePhones + QStringList{c.mobile});
        }},
    {u"txtwph1", [](const CardFields& c) { return lines(c.workPhones); }},
    {u"txtfax", [](const CardFields& c) { return lines(c.faxes); }},
    {u"txthadd", [](const CardFields& c) { return c.homeAddress; }},
    {u"txtwadd", [](const CardFields& c) { return c.workAddress; }},
    {u"txtbadd", [](const CardFields& c) { return c.postalAddress; }},
};

constexpr Shown<CardFields> kAddressBookTexts[] = {
    {u"txtfirst", cardName},
    {u"txthemail1", [](const CardFields& c) { return lines(c.emails); }},
    {u"txtwemail1", [](const CardFields& c) { return lines(c.preferredEmails); }},
    {u"txthph1", [](const CardFields& c) { return lines(c.homePhones); }},
    {u"txtwph1", [](const CardFields& c) { return lines(c.workPhones); }},
    {u"txtfax", [](const CardFields& c) { return lines(c.faxes); }},
};

/// A view of names stands where others have the name in the cards that this program writes.
bool isNameView(const QString& text)
{
    return core::nameViewOf(text).has_value();
}

class CardSource final : public AddressSource {
public:
    CardSource(const platform::Drive& drive, const QString& folder, std::span<const Shown<CardFields>> table)
        : m_folder(drive, folder)
        , m_table(table)
        , m_files(m_folder.files())
    {
    }

    void reload() override
    {
        m_files = m_folder.files();
        m_labels.clear();
    }

    int count() const override { return static_cast<int>(m_files.size()); }

    QString label(int row) override
    {
        const QString file = m_files.value(row);
        QString& found = m_labels[file];
        if (found.isEmpty())
            found = formats::cardLabel(m_folder.beginning(file), isNameView);
        if (found.isEmpty())
            found = formats::cardLabel(m_folder.text(file), isNameView);
        // A card without a name is there all the same.
        if (found.isEmpty())
            found = file.chopped(4);
        return found;
    }

    QList<ShownText> texts(int row) override
    {
        return shownTexts(m_table, formats::readCard(m_folder.text(m_files.value(row))));
    }

private:
    platform::CardFolder m_folder;
    std::span<const Shown<CardFields>> m_table;
    QStringList m_files;
    QHash<QString, QString> m_labels; ///< of the files whose names have been in sight
};

} // namespace

std::unique_ptr<AddressSource> mailClientSource(platform::MailContacts& contacts)
{
    return std::make_unique<MailClientSource>(contacts);
}

std::unique_ptr<AddressSource> cardFolderSource(const platform::Drive& drive, const QString& folder)
{
    return std::make_unique<CardSource>(drive, folder, kCardTexts);
}

std::unique_ptr<AddressSource> addressBookSource(const platform::Drive& drive, const QString& folder)
{
    return std::make_unique<CardSource>(drive, folder, kAddressBookTexts);
}

} // namespace views
