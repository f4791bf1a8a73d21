#include "formats/delimited.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

bool needsQuotes(const QByteArray& value)
{
    const auto isEdge = [](char byte) { return byte == ' ' || byte == '\t'; };
    if (value.isEmpty())
        return false;
    return isEdge(value.front()) || isEdge(value.back())
        || std::any_of(value.begin(), value.end(),
            [](char byte) { return byte == ',' || byte == '"' || byte == '\r' || byte == '\n'; });
}

} // namespace

QByteArray csvLine(const QStringList& values)
{
    QByteArray line;
    for (const QString& text : values) {
        QByteArray value = text.toUtf8();
        if (&text != &values.front())
            line += ',';
        if (needsQuotes(value))
            line += '"' + value.replace('"', "\"\"") + '"';
        else
            line += value;
    }
    // A line of one empty value would be no row.
    if (line.isEmpty())
        line = "\"\"";
    return line + "\r\n";
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
