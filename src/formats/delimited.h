#pragma once

#include <QByteArray>
#include <QStringList>

/// Rows of texts as lines of a file that other programs take apart again.
namespace formats {

/// What stands in front of a UTF-8 file, so that programs do not take it for the code page.
inline constexpr char utf8Mark[] = "\xEF\xBB\xBF";

/// A line of comma-separated values in UTF-8, ended by CR LF. A value with a comma, a quote, a line break or
/// a blank at an end stands in quotes, and so it comes back letter for letter. That goes for one that begins
/// with "=", "+", "-" or "@" as well: a mark in front of it would make "+91 98..." another number for all the
/// programs that are no spreadsheet.
QByteArray csvLine(const QStringList& values);
/// The same piece by piece: the caller puts the "," between the values.
void appendCsvValue(QByteArray& line, QStringView value);
void endCsvLine(QByteArray& line);

/// The same with tabs between and nothing in quotes; a tab or a line break within a value is written as a
/// blank. Without its line end.
QString tabbedLine(const QStringList& values);

} // namespace formats
