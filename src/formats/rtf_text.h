#pragma once

#include <QByteArray>
#include <QStringView>

namespace formats {

/// A text as it stands in an RTF file, in ASCII: what the format has a meaning for is escaped, letters beyond
/// are written by their number with "?" for readers that know none, and "\n" is a new line of the paragraph.
QByteArray rtfText(QStringView text);

} // namespace formats
