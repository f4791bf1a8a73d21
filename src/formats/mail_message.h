#pragma once

#include <vector>

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include "formats/mail_address.h"

/// Messages as mail programs and servers keep and pass them: lines ended by CR LF, none longer than mail
/// allows, whatever the texts hold.
namespace formats {

struct MailAttachment {
    QString name; ///< as those who get it read it
    QByteArray type; ///< as `image/png`
    QByteArray bytes;
};

struct MailDraft {
    std::optional<Mailbox> from{};
    std::vector<Mailbox> to{};
    std::vector<Mailbox> cc{};
    std::vector<Mailbox> bcc{};
    QString subject{}; ///< line ends in it become blanks
    QString body{};
    QString htmlBody{}; ///< empty for a message of plain text
    std::vector<MailAttachment> attachments{};
    QDateTime date{};
    bool isUnsent = false; ///< a mail program that opens it offers to send it
};

/// Hidden recipients stand in the message like the others; sendable() takes them out.
QByteArray mailBytes(const MailDraft& draft);

/// A message on its way to a server.
struct SendableMail {
    QByteArrayList recipients; ///< all, hidden ones too, each once
    QByteArray bytes; ///< without a trace of the hidden ones
};
/// @param from stands in the message if it names no sender yet.
SendableMail sendable(const QByteArray& message, const Mailbox& from);

/// The beginning of a message of any origin.
struct MailTop {
    Mailbox from;
    QString to;
    QString subject;
    QDateTime date;
};
inline constexpr qint64 kMaxTopBytes = 64 * 1024;
MailTop readMailTop(const QByteArray& message);

struct MailTexts {
    QString body;
    QString htmlBody;
    QStringList attachments; ///< names
};
/// Parts that are nested deeper or are more than a person would send are left out.
MailTexts readMailTexts(const QByteArray& message);

} // namespace formats
