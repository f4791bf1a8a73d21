#include "formats/delimited.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

bool needsQuotes(const QString& value)
{
    if (value.isEmpty())
        return false;
    const bool hasEdge = value.front().isSpace() || value.back().isSpace();
    return hasEdge || std::any_of(value.begin(), value.end(), [](QChar letter) {
        return letter == u',' || letter == u'"' || letter == u'\r' || letter == u'\n';
    });
}

} // namespace

QByteArray csvLine(const QStringList& values)
{
    QString line;
    for (const QString& value : values) {
        if (!line.isEmpty() || &value != &values.front())
            line += u',';
        if (needsQuotes(value))
            line += u'"' + QString(value).replace(u'"', u"\"\""_s) + u'"';
        else
            line += value;
    }
    // A line of one empty value would be no row.
    if (values.size() == 1 && line.isEmpty())
        line = u"\"\""_s;
    return line.toUtf8() + "\r\n";
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
