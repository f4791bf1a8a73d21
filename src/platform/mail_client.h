#pragma once

#include <vector>

#include <QDateTime>
#include <QStringList>

namespace platform {

/// What became of an order to the mail client: done, or a plain sentence why not.
struct MailResult {
    QString cause; ///< empty when it was done

    explicit operator bool() const { return cause.isEmpty(); }
};

/// What the mail client gave back, or a plain sentence why it gave nothing.
template <class Value> struct MailAnswer {
    Value value{};
    QString cause; ///< empty when the value is good

    explicit operator bool() const { return cause.isEmpty(); }
};

/// A message that is being written. Addresses stand one behind the other with ";" or "," between, each alone
/// or with a name: `Asha Rao <asha@example.com>`.
struct MailItem {
    QString To{};
    QString CC{};
    QString BCC{}; ///< hidden from all who get the message
    QString Subject{};
    QString Body{};
    QString HTMLBody{}; ///< the same once more with formats; empty for a message of plain text
    QStringList Attachments{}; ///< paths of this computer

    bool operator==(const MailItem&) const = default;
};

struct MailFolder {
    QString EntryID;
    QString Name; ///< as a person reads it
    bool hasFolders = false;

    bool operator==(const MailFolder&) const = default;
};

/// What a list shows of a message that lies in a folder.
struct MailHead {
    QString EntryID; ///< stays the same for as long as the message lies in its folder
    QString SenderName; ///< the address where the sender gave no name
    QString SenderEmailAddress;
    QString To;
    QString Subject;
    QDateTime ReceivedTime; ///< of this computer's zone; invalid when the message tells none
    QString note; ///< why a message of the outbox could not be sent, in the words of the server
};

struct MailText {
    QString Body;
    QString HTMLBody;
    QStringList Attachments; ///< their names
};

/// The mail client of the person. No call waits for a server. What fails changes nothing.
class MailClient {
public:
    MailClient() = default;
    MailClient(const MailClient&) = delete;
    MailClient& operator=(const MailClient&) = delete;
    virtual ~MailClient() = default;

    /// An empty message. Fails at once where none could be kept, before a person has written one.
    virtual MailAnswer<MailItem> CreateItem() = 0;
    /// Whether all addresses can be sent to, and there is one. Names the first that can not.
    virtual MailResult ResolveAll(const MailItem& item) = 0;
    /// Puts the message into the outbox, from where it leaves by itself. Once this is done it survives the
    /// end of the program and of the power.
    virtual MailResult Send(const MailItem& item) = 0;
    /// Hands the message to the person, who looks at it and sends it.
    virtual MailResult Display(const MailItem& item) = 0;

    /// The folders within another one, or those at the top.
    virtual MailAnswer<std::vector<MailFolder>> Folders(const QString& folder = {}) = 0;
    /// The messages of a folder by their `EntryID`, the newest first. Costs one look at the folder, so a list
    /// can read the heads a few at a time.
    virtual MailAnswer<QStringList> Items(const QString& folder) = 0;
    virtual MailAnswer<MailHead> Item(const QString& EntryID) = 0;
    virtual MailAnswer<MailText> Text(const QString& EntryID) = 0;
};

} // namespace platform
