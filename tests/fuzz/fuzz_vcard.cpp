#include "formats/vcard_lines.h"

#include <cstdlib>

/// Any bytes as a card: what was read and written again must be read as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const QString& line : formats::unfoldVCard(text)) {
        const auto parsed = formats::parseVCardLine(line);
        if (!parsed)
            continue;
        parsed->types();
        for (const QString& part : formats::splitVCardValue(parsed->value, u';'))
            formats::unescapeVCardText(part);
        const auto again = formats::parseVCardLine(formats::writeVCardLine(*parsed));
        if (!again || again->name != parsed->name || again->value != parsed->value)
            std::abort();
        formats::foldVCardLine(line);
    }
    if (formats::unescapeVCardText(formats::escapeVCardText(text)).size() > text.size())
        std::abort();
    return 0;
}
