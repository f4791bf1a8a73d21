#include "output/grid/color_number.h"

#include <QGuiApplication>
#include <QPalette>

#include <iterator>

namespace output {

namespace {

struct DesktopColor {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};
/// By number: what the desktop calls scroll bar, desktop, caption and so on, as this toolkit has them.
constexpr DesktopColor kDesktopColors[] = {
    {QPalette::Active, QPalette::Button}, // scroll bar
    {QPalette::Active, QPalette::Dark}, // desktop
    {QPalette::Active, QPalette::Highlight}, // caption of the active window
    {QPalette::Inactive, QPalette::Window}, // of the others
    {QPalette::Active, QPalette::Window}, // menu
    {QPalette::Active, QPalette::Base}, // window
    {QPalette::Active, QPalette::Shadow}, // frame of a window
    {QPalette::Active, QPalette::WindowText}, // text of a menu
    {QPalette::Active, QPalette::Text}, // text of a window
    {QPalette::Active, QPalette::HighlightedText}, // text of the active caption
    {QPalette::Active, QPalette::Mid}, // border of the active window
    {QPalette::Inactive, QPalette::Mid}, // of the others
    {QPalette::Active, QPalette::Dark}, // behind the windows of a program
    {QPalette::Active, QPalette::Highlight}, // what is chosen
    {QPalette::Active, QPalette::HighlightedText}, // its text
    {QPalette::Active, QPalette::Button}, // face of a button
    {QPalette::Active, QPalette::Dark}, // shadow of a button
    {QPalette::Disabled, QPalette::Text}, // grey text
    {QPalette::Active, QPalette::ButtonText},
    {QPalette::Inactive, QPalette::WindowText}, // text of an inactive caption
    {QPalette::Active, QPalette::Light}, // bright edge
    {QPalette::Active, QPalette::Shadow}, // dark edge
    {QPalette::Active, QPalette::Midlight}, // soft edge
    {QPalette::Active, QPalette::ToolTipText},
    {QPalette::Active, QPalette::ToolTipBase},
};

QByteArray hexText(ColorNumber color)
{
    return QByteArray::number(color, 16).toUpper();
}

} // namespace

ColorNumber systemColor(int number)
{
    if (number < 0 || number >= int(std::size(kDesktopColors)))
        return 0;
    const DesktopColor& which = kDesktopColors[number];
    const QColor color = QGuiApplication::palette().color(which.group, which.role);
    return ColorNumber(color.red()) | ColorNumber(color.green()) << 8 | ColorNumber(color.blue()) << 16;
}

QByteArray htmlColor(ColorNumber color)
{
    QByteArray hex = hexText(color);
    if (hex.size() == 8 && hex.front() == '8')
        hex = hexText(systemColor(int(color & 0xFFFFFF)));
    hex = hex.rightJustified(6, '0').right(6);
    return "\"#" + hex.mid(4, 2) + hex.mid(2, 2) + hex.mid(0, 2) + '"';
}

} // namespace output
