#include "output/report/report.h"

namespace output {

SectionColors colorsOf(int colorNumber)
{
    const QColor back(colorNumber & 0xFF, (colorNumber >> 8) & 0xFF, (colorNumber >> 16) & 0xFF);
    // Relative luminance, ITU-R BT.601.
    const int light = (299 * back.red() + 587 * back.green() + 114 * back.blue()) / 1000;
    return {back == QColor(Qt::white) ? QColor() : back, light < 128 ? Qt::white : Qt::black};
}

} // namespace output
