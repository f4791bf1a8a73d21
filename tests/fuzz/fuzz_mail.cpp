#include "formats/mail_message.h"

#include <cstdlib>

/// Any bytes as a message of a mail folder, and as what a person typed: reading ends, and no address and no
/// subject makes a second header line, whatever stands in it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    formats::readMailTop(bytes);
    formats::readMailTexts(bytes);
    const QString typed = QString::fromUtf8(bytes);
    formats::MailDraft draft;
    draft.to = formats::readMailboxes(typed).good;
    draft.to.push_back({QStringLiteral("Asha"), QStringLiteral("asha@example.com")});
    draft.subject = typed;
    draft.body = typed;
    const QByteArray message = formats::mailBytes(draft);
    for (const QByteArray& line : message.left(message.indexOf("\r\n\r\n")).split('\n')) {
        const bool isKnown = line.startsWith(' ') || line.startsWith('\t');
        const QByteArray name = line.left(line.indexOf(':')).toLower();
        static const QList<QByteArray> kNames{"from", "to", "subject", "date", "message-id", "mime-version",
            "content-type", "content-transfer-encoding", "user-agent"};
        if (!isKnown && !kNames.contains(name))
            std::abort();
    }
    return 0;
}
