#pragma once

#include "output/grid/grid_table.h"

#include <functional>

class QIODevice;

namespace output {

/// How many rows are done; the answer false stops the work.
using GridProgress = std::function<bool(int done)>;

/// Writes a grid as a web page in code page 1252 with all that can be seen of it: widths, colours, merged
/// cells, outlines. A character that the code page lacks is written by its number, so none is lost.
/// @param path of this computer; the file is replaced when the new one is whole
/// @return 0, or the number of the error
int WriteGridHtml(const GridTable& grid, const QString& path);

/// The same into an open device; false when it was stopped or the device takes no more.
bool writeGridHtml(const GridTable& grid, QIODevice& file, const GridProgress& progress = {});

/// The text of a cell as it stands in a page; what is empty is a blank that can be seen.
QByteArray htmlText(const QString& text);

/// Whether a text reads as a number: digits, commas, one point, a sign in front.
bool looksNumeric(QStringView text);

} // namespace output
