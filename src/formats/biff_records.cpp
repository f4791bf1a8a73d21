#include "formats/biff_records.h"

#include <algorithm>
#include <bit>

namespace formats::biff {

Bytes& Bytes::real(double value)
{
    const auto bits = std::bit_cast<quint64>(value);
    return u32(quint32(bits & 0xFFFFFFFF)).u32(quint32(bits >> 32));
}

Bytes& Bytes::letters(QStringView text, bool wide)
{
    for (const QChar letter : text) {
        if (wide)
            u16(letter.unicode());
        else
            u8(letter.unicode());
    }
    return *this;
}

Bytes& Bytes::shortText(QStringView text)
{
    return u8(int(text.size())).u8(isWide(text) ? 1 : 0).letters(text, isWide(text));
}

Bytes& Bytes::longText(QStringView text)
{
    return u16(int(text.size())).u8(isWide(text) ? 1 : 0).letters(text, isWide(text));
}

bool isWide(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() > 0xFF; });
}

QByteArray record(Record type, const QByteArray& content)
{
    return Bytes().u16(type).u16(int(content.size())).bytes() + content;
}

} // namespace formats::biff
