#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The line level of vCard 3.0 and 4.0 files, for cards of other programs: folded lines, properties with
/// groups and parameters, escaped values. Every function takes any input and needs time in proportion to its
/// length.
namespace formats {

struct VCardParameter {
    QString name; ///< in upper case
    QStringList values;
};

struct VCardLine {
    QString group;
    QString name; ///< in upper case
    std::vector<VCardParameter> parameters;
    QString value; ///< as written, with its escapes

    /// The first value of the parameter; empty without one.
    QString parameter(QStringView parameterName) const;
    /// The values of all TYPE parameters in upper case; a bare word counts as one.
    QStringList types() const;
};

/// Longest line that is parsed, in characters; a longer one counts as damaged.
inline constexpr qsizetype maxVCardLine = 4 * 1024 * 1024;

/// The logical lines of a text, folded ones joined, empty ones left out.
QStringList unfoldVCard(QStringView text);

/// Nothing when the line is no property: no colon, no name, a character that a name can't have, an open
/// quote.
std::optional<VCardLine> parseVCardLine(QStringView line);
QString writeVCardLine(const VCardLine& line);

/// One line as bytes with CR LF, folded so that no physical line is longer than 75 bytes and no character is
/// broken.
QByteArray foldVCardLine(QStringView line);

QString escapeVCardText(QStringView text);
QString unescapeVCardText(QStringView value);

/// The parts of a structured value at the separators that no backslash escapes; the parts keep their escapes.
QStringList splitVCardValue(QStringView value, QChar separator);

} // namespace formats
