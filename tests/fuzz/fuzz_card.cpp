#include "formats/card_file.h"

#include <cstdlib>

/// Any text as a card of this program: the label is one of the names, nothing is longer than what it came
/// from, and a name that was read is read again from the card that is written of it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const formats::CardFields fields = formats::readCard(text);
    if (fields.workAddress.size() > text.size() + 8 || fields.fullName.size() > text.size())
        std::abort();
    if (formats::cardLabel(text).size() > text.size())
        std::abort();

    formats::CardValues values;
    values.name = fields.fullName;
    values.nick = text.left(1000);
    values.first = fields.name;
    for (const QStringList& lines : {formats::contactCardLines(values), formats::enteredCardLines(values)}) {
        const QString written = lines.join(QStringLiteral("\r\n"));
        if (formats::readCard(written).fullName != fields.fullName
            || written.count(u'\n') != lines.size() - 1)
            std::abort();
    }
    return 0;
}
