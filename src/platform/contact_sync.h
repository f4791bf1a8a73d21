#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDate>
#include <QStringList>

namespace platform {

struct MailAddress {
    QString street1;
    QString street2;
    QString city;
    QString state;
    QString pin;
    QString country;

    bool operator==(const MailAddress&) const = default;
};

/// One contact of the mail client, as far as this program reads and writes it.
struct MailContact {
    /// The link to a contact of this program, such as "17OV"; empty for one that has never been in it.
    QString key;
    /// How the mail client itself tells its items apart; given by list().
    QString item;

    QString title;
    QString first;
    QString middle;
    QString last;
    QString alternateTitle;
    QString fullName;
    QString fileAs;
    QString nick;
    QString company;
    QString jobTitle;
    QString categories; ///< with "," between

    MailAddress home;
    MailAddress work;
    MailAddress other;

    QString homePhone1;
    QString homePhone2;
    QString homePhone3;
    QString workPhone1;
    QString workPhone2;
    QString workPhone3;
    QString mobile;
    QString fax;

    QString email1;
    QString email2;
    QString email3;
    QString homeWeb;
    QString workWeb;

    QDate birthday;
    QDate anniversary;
    QString spouse;
    QString kids; ///< with "," between
    QString hobby;
    QString note;
    QString user1;
    QString user2;
    QString user3;
    QString user4;

    bool operator==(const MailContact&) const = default;
};

/// Writes what a form holds of a contact into it, and leaves the rest.
using MailChange = std::function<void(MailContact& contact)>;

/// The contacts of the mail client. A call that the client can't serve answers false and changes nothing.
class MailContacts {
public:
    MailContacts() = default;
    MailContacts(const MailContacts&) = delete;
    MailContacts& operator=(const MailContacts&) = delete;
    virtual ~MailContacts() = default;

    /// Always makes a new item, also when one has that key already.
    virtual bool add(const MailContact& contact) = 0;
    /// Changes the item with that key; false when there is none. What the change leaves stays as it is.
    virtual bool update(const QString& key, const MailChange& change) = 0;
    /// Gives an item of list() a key, and leaves all else of it.
    virtual bool assignKey(const QString& item, const QString& key) = 0;
    virtual bool remove(const QString& key) = 0;
    virtual bool contains(const QString& key) = 0;
    virtual std::vector<MailContact> list() = 0;

    /// For a list that shows a few at a time: the items in the order of list(), and one of them, nothing when
    /// it is gone or can't be read.
    virtual QStringList items() = 0;
    virtual std::optional<MailContact> item(const QString& item) = 0;
};

} // namespace platform
