#include "widgets/heading_grid.h"

#include <QApplication>

namespace widgets {

namespace {

constexpr auto SizeProperty = "orvaneGridFont"; ///< of the application object

} // namespace

int gridFontSize()
{
    const int size = qApp->property(SizeProperty).toInt();
    return size > 0 ? size : OrdinaryGridFont;
}

void setGridFontSize(int size)
{
    if (size == gridFontSize())
        return;
    qApp->setProperty(SizeProperty, size);
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* grid = qobject_cast<HeadingGrid*>(widget))
            grid->followFontSize();
    }
}

} // namespace widgets
