#pragma once

#include <array>

#include <QByteArray>
#include <QString>

namespace platform {

/// What the bytes 0x80 to 0x9F of code page 1252 stand for: 27 characters, and 0 where the byte stands for
/// none. All other bytes are the first 256 code points.
inline constexpr std::array<char16_t, 32> cp1252Specials{0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020,
    0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0, //
    0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,
    0x017E, 0x0178};

/// A byte that stands for no character is read as the control character of its number.
QString fromCp1252(QByteArrayView bytes);
/// The text of bytes that may be either: UTF-8 when they are, otherwise the code page.
QString fromUtf8OrCp1252(const QByteArray& bytes);
/// Whether the code page has all letters of a text.
bool isInCp1252(QStringView text);
/// A character that the code page lacks becomes '?'.
QByteArray toCp1252(QStringView text);

} // namespace platform
