#include "widgets/button_key.h"

#include <QAbstractButton>
#include <QShortcut>

namespace widgets {

void setKey(QAbstractButton* button, const QKeySequence& key)
{
    if (key.isEmpty())
        return;
    // Not an action of the button, which would show a menu with it.
    auto* shortcut = new QShortcut(key, button);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
}

} // namespace widgets
