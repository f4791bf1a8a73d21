#pragma once

#include <QByteArray>
#include <QString>

/// The pieces of which a BIFF8 stream is made: little-endian numbers, texts, records.
namespace formats::biff {

inline constexpr qsizetype maxRecord = 8224; ///< bytes, without the four of its head

enum Record : quint16 {
    Eof = 0x000A,
    DateMode = 0x0022,
    Font = 0x0031,
    Continue = 0x003C,
    Window1 = 0x003D,
    Pane = 0x0041,
    CodePage = 0x0042,
    ColInfo = 0x007D,
    BoundSheet = 0x0085,
    Xf = 0x00E0,
    Sst = 0x00FC,
    LabelSst = 0x00FD,
    Dimensions = 0x0200,
    Number = 0x0203,
    Window2 = 0x023E,
    Style = 0x0293,
    Format = 0x041E,
    Bof = 0x0809,
};

/// Bytes that are put together number by number.
class Bytes {
public:
    Bytes& u8(int value)
    {
        m_bytes += char(value);
        return *this;
    }
    Bytes& u16(int value) { return u8(value & 0xFF).u8((value >> 8) & 0xFF); }
    Bytes& u32(quint32 value) { return u16(int(value & 0xFFFF)).u16(int(value >> 16)); }
    Bytes& real(double value);
    Bytes& zeros(int count)
    {
        m_bytes += QByteArray(count, '\0');
        return *this;
    }
    /// The letters in the narrow form when all fit it, else two bytes each.
    Bytes& letters(QStringView text, bool isWide);
    Bytes& shortText(QStringView text); ///< behind a length of one byte
    Bytes& longText(QStringView text); ///< behind a length of two bytes

    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// Whether a text has letters that the narrow form lacks.
bool isWide(QStringView text);

QByteArray record(Record type, const QByteArray& content);

} // namespace formats::biff
