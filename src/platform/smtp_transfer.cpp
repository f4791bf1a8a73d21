#include "platform/smtp_transfer.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QUrl>

#include <curl/curl.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kMaxWords = 500;
// The message is held back by so many bytes until the caller has written down that it is on its way.
constexpr qint64 kHeldBack = 2;
// How long the end of the program waits for the answer to a message that was handed over whole.
constexpr qint64 kPatienceMs = 5000;

QString tr(const char* text)
{
    return QCoreApplication::translate("platform", text);
}

/// One transfer, as the callbacks of the library see it.
struct Transfer {
    const SmtpMail& mail;
    const SmtpSteps& steps;
    qint64 given = 0;
    bool mayEnd = false; ///< the caller has agreed to the end
    bool wasAccepted = false;
    bool wasStopped = false;
    QByteArray command{}; ///< the first word of what was last said to the server
    int code = 0; ///< of the answer to that; 0 while there is none
    bool isOver = false; ///< the answer that counts has come, or we are taking our leave
    QByteArray answer{};
    QElapsedTimer sinceStop{};
};

size_t giveBytes(char* buffer, size_t size, size_t count, void* data)
{
    auto& transfer = *static_cast<Transfer*>(data);
    const QByteArray& bytes = transfer.mail.bytes;
    const qint64 room = qint64(size * count);
    qint64 left = bytes.size() - transfer.given;
    if (left > kHeldBack) {
        left = std::min(left - kHeldBack, room);
    } else if (left > 0) {
        if (!transfer.mayEnd) {
            transfer.mayEnd = !transfer.steps.mayEnd || transfer.steps.mayEnd();
            transfer.code = 0;
            transfer.answer.clear();
        }
        if (!transfer.mayEnd)
            return CURL_READFUNC_ABORT;
        left = std::min(left, room);
    }
    std::memcpy(buffer, bytes.constData() + transfer.given, size_t(left));
    transfer.given += left;
    return size_t(left);
}

size_t takeLine(char* line, size_t size, size_t count, void* data)
{
    auto& transfer = *static_cast<Transfer*>(data);
    const QByteArray text = QByteArray(line, qsizetype(size * count)).trimmed();
    bool isNumber = false;
    const int code = text.left(3).toInt(&isNumber);
    if (!isNumber || code < 200 || code > 599 || transfer.isOver)
        return size * count;
    if (transfer.answer.isEmpty())
        transfer.answer = text;
    else if (transfer.answer.size() < kMaxWords)
        transfer.answer += ' ' + text.mid(4);
    // A "-" says that more lines follow.
    if (text.size() > 3 && text.at(3) == '-')
        return size * count;
    transfer.code = code;
    transfer.isOver = transfer.mayEnd;
    if (transfer.mayEnd && code < 300) {
        transfer.wasAccepted = true;
        if (transfer.steps.accepted)
            transfer.steps.accepted();
    }
    return size * count;
}

int hear(CURL*, curl_infotype type, char* text, size_t size, void* data)
{
    auto& transfer = *static_cast<Transfer*>(data);
    // What is said to log in is secret: only the first word of a command is looked at.
    if (type != CURLINFO_HEADER_OUT || transfer.mayEnd || transfer.isOver)
        return 0;
    const QByteArray command = QByteArray(text, qsizetype(std::min<size_t>(size, 4))).toUpper();
    transfer.isOver = command == "QUIT";
    if (transfer.isOver)
        return 0;
    transfer.command = command;
    transfer.code = 0;
    transfer.answer.clear();
    return 0;
}

int isStopped(void* data, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    auto& transfer = *static_cast<Transfer*>(data);
    if (!transfer.steps.isStopped || !transfer.steps.isStopped())
        return 0;
    if (!transfer.sinceStop.isValid())
        transfer.sinceStop.start();
    transfer.wasStopped = !transfer.mayEnd || transfer.sinceStop.elapsed() > kPatienceMs;
    return transfer.wasStopped ? 1 : 0;
}

QString ownWords(CURLcode result)
{
    switch (result) {
    case CURLE_COULDNT_RESOLVE_HOST: return tr("The name of the mail server is not known.");
    case CURLE_COULDNT_CONNECT: return tr("The mail server can not be reached.");
    case CURLE_OPERATION_TIMEDOUT: return tr("The mail server did not answer in time.");
    case CURLE_PEER_FAILED_VERIFICATION: return tr("The certificate of the mail server can not be trusted.");
    case CURLE_USE_SSL_FAILED: return tr("The mail server offers no encryption.");
    case CURLE_SSL_CONNECT_ERROR: return tr("The encryption with the mail server failed.");
    case CURLE_LOGIN_DENIED: return tr("The mail server did not accept the user and the password.");
    default: return tr("The connection to the mail server broke off.");
    }
}

bool isOfAccount(CURLcode result, const Transfer& transfer)
{
    if (result == CURLE_LOGIN_DENIED || result == CURLE_PEER_FAILED_VERIFICATION
        || result == CURLE_USE_SSL_FAILED || result == CURLE_URL_MALFORMAT)
        return true;
    // 552 is about the size of the message; all else that is said to the sender's name is about the account.
    return transfer.code >= 500 && transfer.code != 552 && !transfer.mayEnd && transfer.command != "RCPT"
        && transfer.command != "DATA";
}

SmtpReply replyOf(CURLcode result, const Transfer& transfer)
{
    SmtpReply reply;
    reply.wasHeard = transfer.code >= 400;
    const bool speaksForItself = reply.wasHeard && result != CURLE_PEER_FAILED_VERIFICATION;
    reply.words = speaksForItself ? QString::fromUtf8(transfer.answer).simplified().left(kMaxWords)
                                  : ownWords(result);
    if (transfer.wasAccepted) {
        reply.end = SmtpEnd::Accepted;
        reply.words = QString::fromUtf8(transfer.answer).simplified().left(kMaxWords);
    } else if (transfer.mayEnd && transfer.code < 400) {
        reply.end = SmtpEnd::Unknown;
    } else if (transfer.wasStopped) {
        reply.end = SmtpEnd::Stopped;
    } else if (isOfAccount(result, transfer)) {
        reply.end = SmtpEnd::AccountFault;
    } else {
        reply.end = transfer.code >= 500 ? SmtpEnd::Refused : SmtpEnd::TryLater;
    }
    return reply;
}

QByteArray addressOf(const MailAccount& account)
{
    QUrl url;
    url.setScheme(account.security == MailSecurity::Tls ? u"smtps"_s : u"smtp"_s);
    url.setHost(account.server.trimmed());
    url.setPort(account.port);
    return url.isValid() && !url.host().isEmpty() ? url.toEncoded() : QByteArray();
}

void setUp(CURL* curl, const SmtpServer& server, Transfer& transfer, const QByteArray& url)
{
    const SmtpLimits& limits = server.limits;
    curl_easy_setopt(curl, CURLOPT_URL, url.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    curl_easy_setopt(curl, CURLOPT_NETRC, long(CURL_NETRC_IGNORED));
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(curl, CURLOPT_USE_SSL,
        long(server.account.security == MailSecurity::None ? CURLUSESSL_NONE : CURLUSESSL_ALL));
    if (!server.authorities.isEmpty())
        curl_easy_setopt(curl, CURLOPT_CAINFO, server.authorities.toLocal8Bit().constData());
    if (!server.account.user.isEmpty()) {
        curl_easy_setopt(curl, CURLOPT_USERNAME, server.account.user.toUtf8().constData());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, server.password.toUtf8().constData());
    }
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, long(limits.connectMs));
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, long(limits.totalMs));
    curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT, long(std::max(1, limits.answerMs / 1000)));
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, long(std::max(1, limits.answerMs / 1000)));
    curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl, CURLOPT_INFILESIZE_LARGE, curl_off_t(transfer.mail.bytes.size()));
    curl_easy_setopt(curl, CURLOPT_READFUNCTION, giveBytes);
    curl_easy_setopt(curl, CURLOPT_READDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, takeLine);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(curl, CURLOPT_DEBUGFUNCTION, hear);
    curl_easy_setopt(curl, CURLOPT_DEBUGDATA, &transfer);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, isStopped);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &transfer);
}

} // namespace

SmtpReply sendBySmtp(const SmtpServer& server, const SmtpMail& mail, const SmtpSteps& steps)
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    const QString fault = faultOf(server.account);
    const QByteArray url = addressOf(server.account);
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    if (!fault.isEmpty() || url.isEmpty() || !curl)
        return {SmtpEnd::AccountFault, fault.isEmpty() ? tr("The mail server has no such name.") : fault};

    Transfer transfer{.mail = mail, .steps = steps};
    setUp(curl.get(), server, transfer, url);
    curl_easy_setopt(curl.get(), CURLOPT_MAIL_FROM, ('<' + mail.from + '>').constData());
    curl_slist* recipients = nullptr;
    for (const QByteArray& recipient : mail.recipients)
        recipients = curl_slist_append(recipients, ('<' + recipient + '>').constData());
    curl_easy_setopt(curl.get(), CURLOPT_MAIL_RCPT, recipients);
    const CURLcode result = curl_easy_perform(curl.get());
    const SmtpReply reply = replyOf(result, transfer);
    curl_slist_free_all(recipients);
    return reply;
}

} // namespace platform
