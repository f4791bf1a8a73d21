#include "formats/vcard_lines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr int maxNameLength = 255;
constexpr int maxParameters = 100;
constexpr int maxParameterValues = 1000;
constexpr int maxLineBytes = 75;

bool isNameCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'-'
        || c == u'_';
}

bool isName(QStringView text)
{
    return !text.isEmpty() && text.size() <= maxNameLength
        && std::all_of(text.begin(), text.end(), isNameCharacter);
}

/// A caret hides what a parameter value could not hold: the quote, the line end, the caret itself.
QString decodeCarets(QStringView text)
{
    QString decoded;
    decoded.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = text[i] == u'^' && i + 1 < text.size() ? text[i + 1] : QChar();
        if (next == u'n' || next == u'\'' || next == u'^') {
            decoded += next == u'n' ? u'\n' : next == u'\'' ? u'"' : u'^';
            ++i;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

QString encodeParameter(const QString& value)
{
    QString encoded;
    bool quoted = false;
    for (const QChar c : value) {
        if (c == u'^')
            encoded += u"^^"_s;
        else if (c == u'"')
            encoded += u"^'"_s;
        else if (c == u'\n')
            encoded += u"^n"_s;
        else if (c.category() != QChar::Other_Control || c == u'\t')
            encoded += c;
        quoted = quoted || QStringView(u",;:").contains(c);
    }
    return quoted ? u'"' + encoded + u'"' : encoded;
}

/// The parameters and the value of one line, read from left to right.
class LineReader {
public:
    explicit LineReader(QStringView line)
        : m_line(line)
    {
    }

    std::optional<VCardLine> read()
    {
        VCardLine line;
        QStringView name = word();
        if (peek() == u'.') {
            if (!isName(name))
                return std::nullopt;
            line.group = name.toString();
            ++m_at;
            name = word();
        }
        if (!isName(name))
            return std::nullopt;
        line.name = name.toString().toUpper();
        while (peek() == u';') {
            ++m_at;
            std::optional<VCardParameter> parameter = readParameter();
            if (!parameter || line.parameters.size() == maxParameters)
                return std::nullopt;
            line.parameters.push_back(std::move(*parameter));
        }
        if (peek() != u':')
            return std::nullopt;
        line.value = m_line.mid(m_at + 1).toString();
        return line;
    }

private:
    QChar peek() const { return m_at < m_line.size() ? m_line[m_at] : QChar(); }

    QStringView word()
    {
        const qsizetype start = m_at;
        while (m_at < m_line.size() && isNameCharacter(m_line[m_at]))
            ++m_at;
        return m_line.mid(start, m_at - start);
    }

    std::optional<VCardParameter> readParameter()
    {
        VCardParameter parameter;
        const QStringView name = word();
        if (peek() != u'=') {
            // The older form: HOME for TYPE=HOME.
            if (!isName(name))
                return std::nullopt;
            return VCardParameter{u"TYPE"_s, {name.toString()}};
        }
        if (!isName(name))
            return std::nullopt;
        parameter.name = name.toString().toUpper();
        do {
            ++m_at;
            std::optional<QString> value = readParameterValue();
            if (!value || parameter.values.size() == maxParameterValues)
                return std::nullopt;
            parameter.values << std::move(*value);
        } while (peek() == u',');
        return parameter;
    }

    std::optional<QString> readParameterValue()
    {
        if (peek() == u'"') {
            const qsizetype end = m_line.indexOf(u'"', m_at + 1);
            if (end < 0)
                return std::nullopt;
            const QStringView quoted = m_line.mid(m_at + 1, end - m_at - 1);
            m_at = end + 1;
            return decodeCarets(quoted);
        }
        const qsizetype start = m_at;
        while (m_at < m_line.size() && !QStringView(u",;:\"").contains(m_line[m_at]))
            ++m_at;
        return decodeCarets(m_line.mid(start, m_at - start));
    }

    QStringView m_line;
    qsizetype m_at = 0;
};

} // namespace

QString VCardLine::parameter(QStringView parameterName) const
{
    for (const VCardParameter& parameter : parameters) {
        if (parameter.name == parameterName && !parameter.values.isEmpty())
            return parameter.values.first();
    }
    return {};
}

QStringList VCardLine::types() const
{
    QStringList found;
    for (const VCardParameter& parameter : parameters) {
        if (parameter.name != "TYPE"_L1)
            continue;
        // Some writers put the whole list into one pair of quotes.
        for (const QString& list : parameter.values)
            found += list.toUpper().split(u',', Qt::SkipEmptyParts);
    }
    return found;
}

QStringList unfoldVCard(QStringView text)
{
    QStringList lines;
    QString logical;
    const auto finish = [&lines, &logical] {
        if (!logical.isEmpty())
            lines << std::exchange(logical, {});
    };
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype found = text.indexOf(u'\n', at);
        const qsizetype end = found < 0 ? text.size() : found;
        QStringView line = text.mid(at, end - at);
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.startsWith(u' ') || line.startsWith(u'\t')) {
            logical += line.mid(1);
        } else {
            finish();
            logical = line.toString();
        }
        at = end + 1;
    }
    finish();
    return lines;
}

std::optional<VCardLine> parseVCardLine(QStringView line)
{
    if (line.size() > maxVCardLine)
        return std::nullopt;
    return LineReader(line).read();
}

QString writeVCardLine(const VCardLine& line)
{
    QString written = line.group.isEmpty() ? line.name : line.group + u'.' + line.name;
    for (const VCardParameter& parameter : line.parameters) {
        QStringList values;
        std::transform(
            parameter.values.begin(), parameter.values.end(), std::back_inserter(values), encodeParameter);
        written += u';' + parameter.name + u'=' + values.join(u',');
    }
    return written + u':' + line.value;
}

QByteArray foldVCardLine(QStringView line)
{
    const QByteArray bytes = line.toUtf8();
    QByteArray folded;
    folded.reserve(bytes.size() + bytes.size() / 24 + 2);
    qsizetype at = 0;
    qsizetype room = maxLineBytes;
    while (bytes.size() - at > room) {
        qsizetype end = at + room;
        while (end > at && (static_cast<unsigned char>(bytes[end]) & 0xC0) == 0x80)
            --end;
        folded += QByteArrayView(bytes).sliced(at, end - at);
        folded += "\r\n ";
        at = end;
        room = maxLineBytes - 1;
    }
    folded += QByteArrayView(bytes).sliced(at);
    return folded + "\r\n";
}

QString escapeVCardText(QStringView text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\\' || c == u',' || c == u';') {
            escaped += u'\\';
            escaped += c;
        } else if (c == u'\n' || c == u'\r') {
            escaped += u"\\n"_s;
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
        } else if (c.category() != QChar::Other_Control || c == u'\t') {
            escaped += c;
        }
    }
    return escaped;
}

QString unescapeVCardText(QStringView value)
{
    QString text;
    text.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar c = value[++i];
        text += c == u'n' || c == u'N' ? QChar(u'\n') : c;
    }
    return text;
}

QStringList splitVCardValue(QStringView value, QChar separator)
{
    QStringList parts;
    qsizetype start = 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == u'\\') {
            ++i;
        } else if (value[i] == separator) {
            parts << value.mid(start, i - start).toString();
            start = i + 1;
        }
    }
    parts << value.mid(start).toString();
    return parts;
}

} // namespace formats
