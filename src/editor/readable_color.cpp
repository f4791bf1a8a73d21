#include "editor/readable_color.h"

#include <algorithm>
#include <cmath>

namespace editor {

namespace {

constexpr double kLeastContrast = 4.5;

double luminance(const QColor& color)
{
    const auto linear
        = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

QColor readableOn(const QColor& text, const QColor& background)
{
    QColor shown = text;
    const float step = luminance(background) < 0.2 ? 0.08F : -0.08F;
    for (float lightness = text.lightnessF(); contrast(shown, background) < kLeastContrast;) {
        lightness += step;
        if (lightness < 0 || lightness > 1)
            break;
        shown.setHslF(std::max(0.0F, text.hslHueF()), text.hslSaturationF(), lightness, text.alphaF());
    }
    return shown;
}

} // namespace editor
