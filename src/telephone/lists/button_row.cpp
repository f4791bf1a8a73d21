#include "telephone/lists/button_row.h"

#include "widgets/theme.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace telephone {

QHBoxLayout* rowOf(QWidget* widget)
{
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    return row;
}

QPushButton* makeButton(const QString& name, const QString& text, QStringView icon, const QString& toolTip)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    if (!icon.isEmpty())
        widgets::setIcon(button, icon);
    return button;
}

} // namespace telephone
