#include "formats/rtf_text.h"

namespace formats {

QByteArray rtfText(QStringView text)
{
    QByteArray rtf;
    rtf.reserve(text.size());
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        if (code == u'\n') {
            rtf += "\\line ";
        } else if (code == u'\t') {
            rtf += "\\tab ";
        } else if (code == u'\\' || code == u'{' || code == u'}') {
            rtf += '\\';
            rtf += static_cast<char>(code);
        } else if (code >= 0x80) {
            // The number is signed in this format.
            rtf += "\\u" + QByteArray::number(static_cast<qint16>(code)) + '?';
        } else if (code >= 0x20) {
            rtf += static_cast<char>(code);
        }
    }
    return rtf;
}

} // namespace formats
