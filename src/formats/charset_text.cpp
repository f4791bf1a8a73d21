#include "formats/charset_text.h"

#include <algorithm>

#include <QStringDecoder>

namespace formats {

namespace {

constexpr qsizetype maxCharsetName = 40;

/// A name that is plain, so that it can be handed to the table of character sets.
bool isCharsetName(const QByteArray& name)
{
    if (name.isEmpty() || name.size() > maxCharsetName)
        return false;
    for (const char c : name) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')
            || c == '-' || c == '_';
        if (!plain)
            return false;
    }
    return true;
}

/// Without a value when the decoder is none or the bytes are not of its kind.
bool decode(QStringDecoder decoder, const QByteArray& bytes, QString* text)
{
    if (!decoder.isValid())
        return false;
    *text = decoder.decode(bytes);
    return !decoder.hasError();
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

} // namespace

QString textOfBytes(const QByteArray& bytes, const QByteArray& charset)
{
    QString text;
    // A character that the end cuts off is one that does not fit.
    constexpr auto whole = QStringDecoder::Flag::Stateless;
    const bool isNamed
        = isCharsetName(charset) && decode(QStringDecoder(charset.constData(), whole), bytes, &text);
    if (!isNamed && !decode(QStringDecoder(QStringDecoder::Utf8, whole), bytes, &text)
        && !decode(QStringDecoder("windows-1252", whole), bytes, &text))
        text = QString::fromLatin1(bytes);
    // A mark of byte order is no letter wherever it stands, and goes by itself at the beginning of a text.
    const auto isControl = [](QChar c) {
        const bool isLow = c < u' ' || (c >= u'\x7f' && c < u'\xa0');
        return c == QChar::ByteOrderMark || (isLow && c != u'\n' && c != u'\r' && c != u'\t');
    };
    if (std::any_of(text.cbegin(), text.cend(), isControl))
        text.removeIf(isControl);
    return text;
}

QByteArray bytesOfQuotedPrintable(const QByteArray& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int high = text[i] == '=' && i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = high < 0 ? -1 : hexDigit(text[i + 2]);
        if (low < 0) {
            bytes += text[i];
        } else {
            bytes += char(high * 16 + low);
            i += 2;
        }
    }
    return bytes;
}

} // namespace formats
