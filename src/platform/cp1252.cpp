#include "platform/cp1252.h"

#include <algorithm>

#include <QStringDecoder>

namespace platform {

QString fromCp1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        const char16_t special = code >= 0x80 && code <= 0x9F ? cp1252Specials[code - 0x80u] : u'\0';
        return QChar(special != 0 ? special : char16_t(code));
    });
    return text;
}

QString fromUtf8OrCp1252(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    return utf8.hasError() ? fromCp1252(bytes) : text;
}

bool isInCp1252(QStringView text)
{
    const auto isPlain = [](QChar letter) { return letter.unicode() < 0x80; };
    return std::all_of(text.begin(), text.end(), isPlain) || fromCp1252(toCp1252(text)) == text;
}

QByteArray toCp1252(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* end = bytes.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t code = text[i].unicode();
        if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
            *end++ = char(code);
            continue;
        }
        const auto* special = std::find(cp1252Specials.begin(), cp1252Specials.end(), code);
        if (special != cp1252Specials.end()) {
            *end++ = char(0x80 + (special - cp1252Specials.begin()));
        } else if (code >= 0x80 && code <= 0x9F && cp1252Specials[code - 0x80u] == 0) {
            *end++ = char(code);
        } else {
            *end++ = '?';
            if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
                ++i;
        }
    }
    bytes.truncate(end - bytes.constData());
    return bytes;
}

} // namespace platform
