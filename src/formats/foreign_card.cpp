#include "formats/foreign_card.h"

#include "formats/charset_text.h"

#include <algorithm>

#include <QIODevice>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr qint64 chunkBytes = 64 * 1024;
constexpr qsizetype maxHeader = 64 * 1024;

/// Looked at for every line several times, so most are told by their first letter.
bool isFrame(const QByteArray& line, const char* word)
{
    const char first = line.isEmpty() ? ' ' : line[0];
    return (first == word[0] || first == word[0] + ('a' - 'A') || first == ' ' || first == '\t')
        && line.size() < 40 && line.simplified().replace(' ', "").compare(word, Qt::CaseInsensitive) == 0;
}

bool isBegin(const QByteArray& line)
{
    return isFrame(line, "BEGIN:VCARD");
}

bool isEnd(const QByteArray& line)
{
    return isFrame(line, "END:VCARD");
}

bool isFolded(const QByteArray& line)
{
    return line.startsWith(' ') || line.startsWith('\t');
}

/// A line that can be the middle of a picture, and no property.
bool isBase64(const QByteArray& line)
{
    return std::all_of(line.begin(), line.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+'
            || c == '/' || c == '=';
    });
}

/// Where the sign stands by which a quoted-printable line goes on in the next one; -1 when it does not.
qsizetype softEnd(const QByteArray& line)
{
    qsizetype end = line.size();
    while (end > 0 && (line[end - 1] == ' ' || line[end - 1] == '\t'))
        --end;
    return end > 0 && line[end - 1] == '=' ? end - 1 : -1;
}

/// Finds the colon that ends the names of a line, as the line grows.
class HeaderEnd {
public:
    /// -1 while there is none.
    qsizetype in(const QByteArray& line)
    {
        for (; m_end < 0 && m_seen < line.size() && m_seen < maxHeader; ++m_seen) {
            if (line[m_seen] == '"')
                m_isQuoted = !m_isQuoted;
            else if (line[m_seen] == ':' && !m_isQuoted)
                m_end = m_seen;
        }
        return m_end;
    }

private:
    qsizetype m_seen = 0;
    qsizetype m_end = -1;
    bool m_isQuoted = false;
};

enum class Encoding { None, QuotedPrintable, Base64 };

Encoding encodingOf(const QByteArray& line, qsizetype headerEnd)
{
    if (headerEnd < 0)
        return Encoding::None;
    if (line.left(headerEnd).contains(';')) {
        const QByteArray header = line.left(headerEnd).toUpper();
        if (header.contains("QUOTED-PRINTABLE"))
            return Encoding::QuotedPrintable;
        if (header.contains(";BASE64") || header.contains("ENCODING=B"))
            return Encoding::Base64;
    }
    const bool isData = qstrnicmp(line.constData() + headerEnd + 1, "data:", 5) == 0;
    return isData ? Encoding::Base64 : Encoding::None;
}

std::optional<VCardLine> parsedHeader(const QByteArray& header)
{
    const auto parse
        = [](const QByteArray& names) { return parseVCardLine(QString::fromLatin1(names) + u':'); };
    if (auto line = parse(header))
        return line;
    // Some writers put blanks behind the semicolons.
    QByteArray dense;
    bool isQuoted = false;
    for (const char c : header) {
        isQuoted = isQuoted != (c == '"');
        if (isQuoted || (c != ' ' && c != '\t'))
            dense += c;
    }
    return parse(dense);
}

constexpr QLatin1StringView encodingWords[]
    = {"QUOTED-PRINTABLE"_L1, "BASE64"_L1, "B"_L1, "8BIT"_L1, "7BIT"_L1};

bool isEncodingWord(const QString& type)
{
    return std::find(std::begin(encodingWords), std::end(encodingWords), type) != std::end(encodingWords);
}

/// A semicolon that a writer has encoded is no separator, unless it has encoded all of them.
QByteArray decodedQuotedPrintable(QByteArray value)
{
    value.replace("=5C=3B", "\\;").replace("=5c=3b", "\\;");
    if (value.contains(';'))
        value.replace("=3B", "\\;").replace("=3b", "\\;");
    return bytesOfQuotedPrintable(value);
}

bool holdsNoText(const QString& name)
{
    return name == "PHOTO"_L1 || name == "LOGO"_L1 || name == "SOUND"_L1 || name == "KEY"_L1;
}

void takeValue(ForeignProperty& property, const QByteArray& value, Encoding encoding)
{
    const QByteArray charset = property.parameter(u"CHARSET").toLatin1();
    if (encoding == Encoding::Base64) {
        const bool isUri = value.left(5).toLower() == "data:";
        const qsizetype comma = isUri ? value.left(200).indexOf(',') : -1;
        const bool isEncoded = !isUri || value.left(comma).toLower().contains(";base64");
        if (isEncoded && (!isUri || comma >= 0)) {
            property.bytes = QByteArray::fromBase64(isUri ? value.mid(comma + 1) : value);
            property.isBinary = holdsNoText(property.name);
            if (!property.isBinary)
                property.value = textOfBytes(std::exchange(property.bytes, {}), charset);
            return;
        }
    }
    property.value
        = textOfBytes(encoding == Encoding::QuotedPrintable ? decodedQuotedPrintable(value) : value, charset);
    if (property.value.contains(u'\r'))
        property.value.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

ForeignProperty propertyOf(const QByteArray& line)
{
    ForeignProperty property;
    const qsizetype headerEnd = HeaderEnd().in(line);
    auto header = headerEnd < 0 ? std::nullopt : parsedHeader(line.left(headerEnd));
    if (!header) {
        property.isUnread = true;
        property.value = textOfBytes(line);
        return property;
    }
    property.group = header->group.toUpper();
    property.name = header->name;
    for (const QString& type : header->types()) {
        if (!isEncodingWord(type))
            property.types << type;
    }
    property.parameters = std::move(header->parameters);
    for (VCardParameter& parameter : property.parameters) {
        for (QString& value : parameter.values)
            value = textOfBytes(value.toLatin1());
    }
    takeValue(property, line.mid(headerEnd + 1), encodingOf(line, headerEnd));
    return property;
}

/// Version 2.1 knows an escape for separators only. A line end is written so by many all the same, but a path
/// of a computer stays one.
QString unescapedOldText(QStringView value)
{
    QString text;
    text.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar next = value[i] == u'\\' && i + 1 < value.size() ? value[i + 1] : QChar();
        const QChar before = i > 0 ? value[i - 1] : QChar();
        if (next == u';' || next == u',' || next == u':') {
            text += next;
            ++i;
        } else if ((next == u'n' || next == u'N') && before != u':' && before != u'\\') {
            text += u'\n';
            ++i;
        } else {
            text += value[i];
        }
    }
    return text;
}

} // namespace

QString ForeignProperty::parameter(QStringView parameterName) const
{
    for (const VCardParameter& parameter : parameters) {
        if (parameter.name == parameterName && !parameter.values.isEmpty())
            return parameter.values.first();
    }
    return {};
}

QString ForeignCard::text(const ForeignProperty& property) const
{
    if (property.isUnread)
        return property.value;
    return version == "2.1"_L1 ? unescapedOldText(property.value) : unescapeVCardText(property.value);
}

QStringList ForeignCard::parts(const ForeignProperty& property, QChar separator) const
{
    QStringList parts = splitVCardValue(property.value, separator);
    for (QString& part : parts)
        part = version == "2.1"_L1 ? unescapedOldText(part) : unescapeVCardText(part);
    return parts;
}

/// The physical lines of a file, none longer than a picture may be, with one to look ahead.
class ForeignCardReader::Lines {
public:
    Lines(QIODevice& file, std::function<bool()> keepGoing, qsizetype longest)
        : m_file(file)
        , m_keepGoing(std::move(keepGoing))
        , m_longest(longest)
    {
        findEncoding();
    }

    /// Nothing at the end. What is blank is left out.
    const QByteArray* peek()
    {
        if (!m_hasAhead)
            m_hasAhead = readLine();
        return m_hasAhead ? &m_ahead : nullptr;
    }
    QByteArray take()
    {
        m_hasAhead = false;
        return std::exchange(m_ahead, {});
    }
    bool isBehindBlank() const { return m_isBehindBlank; } ///< of the one ahead
    bool isCut() const { return m_isCut; } ///< the same
    qint64 bytesRead() const { return m_bytesRead; }

private:
    void findEncoding()
    {
        fill();
        const auto startsWith = [this](const char* bytes, qsizetype count) {
            return m_buffer.startsWith(QByteArrayView(bytes, count));
        };
        if (startsWith("\xff\xfe", 2) || startsWith("B\0", 2))
            m_wide.emplace(QStringDecoder::Utf16LE);
        else if (startsWith("\xfe\xff", 2) || startsWith("\0B", 2))
            m_wide.emplace(QStringDecoder::Utf16BE);
        if (m_wide)
            m_buffer = QString(m_wide->decode(m_buffer)).toUtf8();
    }

    bool fill()
    {
        if (m_isAtEnd)
            return false;
        m_buffer = m_file.read(chunkBytes);
        m_at = 0;
        m_bytesRead += m_buffer.size();
        m_isAtEnd = m_buffer.isEmpty() || (m_keepGoing && !m_keepGoing());
        if (m_wide)
            m_buffer = QString(m_wide->decode(m_buffer)).toUtf8();
        return !m_buffer.isEmpty() && !m_isAtEnd;
    }

    bool readLine()
    {
        m_isBehindBlank = false;
        for (;;) {
            m_ahead.clear();
            m_isCut = false;
            if (!readRawLine())
                return false;
            if (m_ahead.startsWith("\xef\xbb\xbf"))
                m_ahead.remove(0, 3);
            if (m_isCut
                || std::any_of(m_ahead.begin(), m_ahead.end(), [](char c) { return c != ' ' && c != '\t'; }))
                return true;
            m_isBehindBlank = true;
        }
    }

    /// Lines end with CR LF, LF, or CR alone.
    bool readRawLine()
    {
        bool isAny = false;
        for (;;) {
            if (m_at == m_buffer.size() && !fill())
                return isAny;
            if (std::exchange(m_isBehindCr, false) && m_buffer[m_at] == '\n') {
                ++m_at;
                continue;
            }
            isAny = true;
            const char* begin = m_buffer.constData() + m_at;
            const char* stop = m_buffer.constData() + m_buffer.size();
            const char* end = std::find_if(begin, stop, [](char c) { return c == '\n' || c == '\r'; });
            append(begin, end - begin);
            m_at += end - begin;
            if (end != stop) {
                m_isBehindCr = *end == '\r';
                ++m_at;
                return true;
            }
        }
    }

    void append(const char* bytes, qsizetype count)
    {
        const qsizetype room = m_longest - m_ahead.size();
        m_ahead.append(bytes, std::min(room, count));
        m_isCut = m_isCut || count > room;
    }

    QIODevice& m_file;
    std::function<bool()> m_keepGoing;
    qsizetype m_longest;
    std::optional<QStringDecoder> m_wide;
    QByteArray m_buffer;
    qsizetype m_at = 0;
    qint64 m_bytesRead = 0;
    bool m_isAtEnd = false;
    bool m_isBehindCr = false;
    QByteArray m_ahead;
    bool m_hasAhead = false;
    bool m_isBehindBlank = false;
    bool m_isCut = false;
};

ForeignCardReader::ForeignCardReader(
    QIODevice& file, std::function<bool()> keepGoing, const CardLimits& limits)
    : m_lines(std::make_unique<Lines>(file, std::move(keepGoing), limits.binaryLine))
    , m_limits(limits)
{
}

ForeignCardReader::~ForeignCardReader() = default;

qint64 ForeignCardReader::bytesRead() const
{
    return m_lines->bytesRead();
}

std::optional<ForeignCard> ForeignCardReader::next()
{
    while (const QByteArray* line = m_lines->peek()) {
        if (isBegin(*line)) {
            m_lines->take();
            ForeignCard card;
            readCard(card);
            return card;
        }
        m_lines->take();
    }
    return std::nullopt;
}

void ForeignCardReader::readCard(ForeignCard& card)
{
    int depth = 0;
    bool isBehindAgent = false;
    qsizetype bytes = 0;
    while (const QByteArray* line = m_lines->peek()) {
        if (isBegin(*line)) {
            // A card in a card stands behind AGENT; otherwise the card before has lost its end.
            if (!isBehindAgent)
                break;
            m_lines->take();
            ++depth;
            isBehindAgent = false;
            continue;
        }
        if (isEnd(*line)) {
            m_lines->take();
            if (depth-- == 0) {
                card.hasEnd = true;
                break;
            }
            continue;
        }
        bool isCut = false;
        const QByteArray whole = logicalLine(card, &isCut);
        bytes += whole.size();
        if (bytes > m_limits.card || card.properties.size() >= size_t(m_limits.properties)) {
            card.isCut = true;
            isBehindAgent = false;
            continue;
        }
        ForeignProperty property = propertyOf(whole);
        property.depth = depth;
        property.isTooLong = isCut;
        isBehindAgent = property.name == "AGENT"_L1 && property.value.trimmed().isEmpty();
        if (property.name == "VERSION"_L1) {
            if (depth == 0)
                card.version = property.value.trimmed();
        } else if (!isBehindAgent) {
            card.properties.push_back(std::move(property));
        }
    }
    if (card.version.isEmpty())
        card.version = u"3.0"_s;
}

/// A property with all the lines that carry it on: folded ones, those behind a soft line end, those of a
/// picture that nobody has indented.
QByteArray ForeignCardReader::logicalLine(const ForeignCard& card, bool* isCut)
{
    *isCut = m_lines->isCut();
    QByteArray line = m_lines->take();
    HeaderEnd header;
    bool isHeaderKnown = header.in(line) >= 0;
    Encoding encoding = encodingOf(line, header.in(line));
    // Of a line that is cut its own end says whether it goes on, not what is kept of it.
    bool isSoft = encoding == Encoding::QuotedPrintable && softEnd(line) >= 0;
    while (const QByteArray* next = m_lines->peek()) {
        const bool isBehindBlank = m_lines->isBehindBlank();
        const bool mayGoOn = !isBehindBlank && !isBegin(*next) && !isEnd(*next);
        const bool goesOn = isSoft && mayGoOn;
        const bool isBare = encoding == Encoding::Base64 && mayGoOn && isBase64(*next);
        if (!goesOn && !isBare && !isFolded(*next))
            break;
        if (isSoft && !*isCut)
            line.truncate(softEnd(line));
        *isCut = *isCut || m_lines->isCut();
        QByteArray more = m_lines->take();
        if (!goesOn && isFolded(more)) {
            // The blank belongs to the text in the oldest version, and to the fold in the others.
            const bool keepsBlank = card.version == "2.1"_L1 && encoding == Encoding::None;
            more = keepsBlank ? ' ' + more.mid(1) : more.mid(1);
        }
        isSoft = encoding == Encoding::QuotedPrintable && softEnd(more) >= 0;
        const qsizetype most = encoding == Encoding::Base64 ? m_limits.binaryLine : m_limits.textLine;
        const qsizetype room = std::max<qsizetype>(0, most - line.size());
        *isCut = *isCut || more.size() > room;
        line += more.left(room);
        if (!isHeaderKnown && header.in(line) >= 0) {
            isHeaderKnown = true;
            encoding = encodingOf(line, header.in(line));
            isSoft = encoding == Encoding::QuotedPrintable && softEnd(line) >= 0;
        }
    }
    if (isSoft && !*isCut)
        line.truncate(softEnd(line));
    if (encoding != Encoding::Base64 && line.size() > m_limits.textLine) {
        line.truncate(m_limits.textLine);
        *isCut = true;
    }
    return line;
}

} // namespace formats
