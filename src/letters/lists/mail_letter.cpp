#include "letters/lists/mail_letter.h"

#include "formats/rtf_text.h"
#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace letters {

QByteArray mailLetter(const jet::Recordset& contact, QDate day, bool nationalMode)
{
    constexpr qsizetype kBlanks = 74;
    QStringList lines{QString(kBlanks, u' ') + u"........................"_s,
        jet::formatDate(day, nationalMode ? u"DD-MMM-YY"_s : u"MMM-DD-YYYY"_s), u"To"_s};
    for (const QStringView column : {u"h_add1", u"h_city", u"h_state", u"h_pin"})
        lines << contact.textOrEmpty(column);
    lines << u"Dear    "_s + contact.textOrEmpty(u"Name");
    QByteArray rtf("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Times New Roman;}}\\f0\\fs24\r\n");
    for (const QString& line : lines)
        rtf += formats::rtfText(line) + "\\par\r\n";
    return rtf + "}\r\n";
}

} // namespace letters
