#pragma once

#include <functional>

#include <QByteArrayList>
#include <QString>

#include "platform/mail_account.h"

namespace platform {

struct SmtpLimits {
    int connectMs = 30'000;
    int answerMs = 300'000; ///< how long the server may be silent
    int totalMs = 3'600'000;
};

struct SmtpServer {
    MailAccount account;
    QString password;
    QString authorities; ///< file of those who may vouch for the server; empty for the ones of this computer
    SmtpLimits limits;
};

struct SmtpMail {
    QByteArray from;
    QByteArrayList recipients;
    QByteArray bytes; ///< lines ended by CR LF
};

enum class SmtpEnd {
    Accepted, ///< the server has it
    TryLater, ///< the server has it not, and may take it another time
    Refused, ///< the server will never take this message
    AccountFault, ///< nothing goes by this account until it is changed
    Unknown, ///< all was handed over, and the server did not say that it took it
    Stopped, ///< the server has it not, since the program ends
};

struct SmtpReply {
    SmtpEnd end = SmtpEnd::TryLater;
    QString words; ///< of the server, or of ours when it said nothing; one line
    bool wasHeard = false; ///< the server spoke, so that other messages may have more luck
};

/// What the caller does on the way. All are called on the thread of the transfer.
struct SmtpSteps {
    /// Just before the last bytes leave, after which a server could take the message. False ends the
    /// transfer, and the server has not got it.
    std::function<bool()> mayEnd;
    /// At the moment when the server has taken it.
    std::function<void()> accepted;
    /// Asked about once a second, but for the time in which the answer to the whole message is awaited.
    std::function<bool()> isStopped;
};

/// Hands a message to its server and waits for the answer: for a thread of its own. Either all recipients are
/// taken or none. The certificate of the server is always judged; the password never leaves on an open line.
SmtpReply sendBySmtp(const SmtpServer& server, const SmtpMail& mail, const SmtpSteps& steps);

} // namespace platform
