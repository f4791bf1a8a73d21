#include "formats/delimited.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

bool isEdge(QChar letter)
{
    return letter == u' ' || letter == u'\t';
}

} // namespace

// One pass and no copy: an export of a whole book comes here more than a million times.
void appendCsvValue(QByteArray& line, QStringView value)
{
    if (value.isEmpty())
        return;
    const qsizetype begin = line.size();
    line.resize(begin + 3 * value.size());
    char* const start = line.data() + begin;
    char* at = start;
    bool needsQuotes = isEdge(value.front()) || isEdge(value.back());
    for (const QChar letter : value) {
        const char16_t code = letter.unicode();
        if (code >= 0x80 || code == u'"') {
            at = nullptr;
            break;
        }
        needsQuotes |= code == u',' || code == u'\r' || code == u'\n';
        *at++ = static_cast<char>(code);
    }
    if (at && !needsQuotes) {
        line.resize(begin + (at - start));
        return;
    }
    line.resize(begin);
    QByteArray bytes = value.toUtf8();
    needsQuotes |= std::any_of(bytes.begin(), bytes.end(),
        [](char byte) { return byte == ',' || byte == '"' || byte == '\r' || byte == '\n'; });
    line += needsQuotes ? '"' + bytes.replace('"', "\"\"") + '"' : bytes;
}

QByteArray csvLine(const QStringList& values)
{
    QByteArray line;
    for (const QString& value : values) {
        if (&value != &values.front())
            line += ',';
        appendCsvValue(line, value);
    }
    endCsvLine(line);
    return line;
}

void endCsvLine(QByteArray& line)
{
    // A line of one empty value would be no row.
    if (line.isEmpty())
        line = "\"\"";
    line += "\r\n";
}

QString tabbedLine(const QStringList& values)
{
    QStringList cells;
    for (QString value : values)
        cells << value.replace(u"\r\n"_s, u" "_s)
                     .replace(u'\n', u' ')
                     .replace(u'\r', u' ')
                     .replace(u'\t', u' ');
    return cells.join(u'\t');
}

} // namespace formats
