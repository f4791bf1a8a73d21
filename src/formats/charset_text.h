#pragma once

#include <QByteArray>
#include <QString>

/// Bytes of other programs as text.
namespace formats {

/// Reads bytes in the character set of that name, in any spelling. Where the name is unknown or the bytes
/// don't fit it, they are UTF-8 if they can be, else Windows-1252. Never fails; control characters but for
/// line ends and tabs are left out.
QString textOfBytes(const QByteArray& bytes, const QByteArray& charset = {});

/// The bytes of a quoted-printable text without its soft line ends. What is no hexadecimal pair behind an
/// equals sign stays as it is.
QByteArray bytesOfQuotedPrintable(const QByteArray& text);

} // namespace formats
