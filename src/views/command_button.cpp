#include "views/command_button.h"

#include "widgets/button_key.h"
#include "widgets/theme.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace views {

QToolButton* commandButton(const QString& name, QStringView icon, const QString& toolTip, const QString& text,
    const QKeySequence& key)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    widgets::setIcon(button, icon);
    button->setText(text);
    button->setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    widgets::setKey(button, key);
    button->setToolTip(
        key.isEmpty() ? toolTip : u"%1 (%2)"_s.arg(toolTip, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace views
