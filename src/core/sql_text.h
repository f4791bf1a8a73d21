#pragma once

#include <QString>

namespace core {

/// A value of the book between the apostrophes of a statement: one of its own is doubled, so that a list
/// called "Bob's" is found like any other.
inline QString inQuotes(const QString& value)
{
    return QString(value).replace(u'\'', QStringLiteral("''"));
}

/// A text within the pattern of a `like`, where its letters stand for themselves.
inline QString likeText(const QString& text)
{
    QString pattern;
    for (const QChar letter : text) {
        if (letter == u'*' || letter == u'?' || letter == u'#' || letter == u'[')
            pattern += u'[' + QString(letter) + u']';
        else
            pattern += letter;
    }
    return inQuotes(pattern);
}

/// Filters start with "All"; it and a blank value mean no condition.
inline bool isAll(const QString& value)
{
    return value == u"All" || value.trimmed().isEmpty();
}

} // namespace core
