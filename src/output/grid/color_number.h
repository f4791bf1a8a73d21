#pragma once

#include <QByteArray>

namespace output {

/// A colour as grids and books have it: 0xBBGGRR, or with the highest bit set the number of a colour of the
/// desktop.
using ColorNumber = quint32;

/// The colour of the desktop of that number, as 0xBBGGRR; black for a number that is none.
ColorNumber systemColor(int number);

/// "#RRGGBB", in double quotes.
QByteArray htmlColor(ColorNumber color);

} // namespace output
