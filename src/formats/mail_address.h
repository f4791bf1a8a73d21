#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QStringList>

/// Addresses of mail as people write them.
namespace formats {

/// One address, with the name that stands before it.
struct Mailbox {
    QString name{};
    QString address{};

    bool operator==(const Mailbox&) const = default;
};

/// The pieces of a line of addresses: it is parted at ";" and ",", but not within quotes or angles. Blank
/// pieces are left out.
QStringList addressPieces(QStringView line);

/// One piece as `a@b`, `Name <a@b>`, `"Name, more" <a@b>` or `a@b (Name)`; nothing when its address can not
/// be sent to, or a line end or the like stands in it. Foreign letters in the domain are written as mail has
/// them.
std::optional<Mailbox> readMailbox(QStringView piece);

struct Mailboxes {
    std::vector<Mailbox> good;
    QStringList wrong; ///< the pieces that are no addresses
};
/// "Rao, Asha <a@b>" is one person, although names with a comma want quotes.
Mailboxes readMailboxes(QStringView line);

/// How mail shows it: with the name, or the address alone where there is none.
QString writtenMailbox(const Mailbox& mailbox);

} // namespace formats
