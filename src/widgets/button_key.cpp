#include "widgets/button_key.h"

#include <QAbstractButton>
#include <QAction>

namespace widgets {

using namespace Qt::StringLiterals;

void setKey(QAbstractButton* button, const QKeySequence& key)
{
    if (key.isEmpty())
        return;
    auto* action = new QAction(button);
    action->setObjectName(u"key"_s);
    action->setShortcut(key);
    action->setAutoRepeat(false);
    // A disabled button has a disabled action, as keys of hidden and disabled widgets do not work.
    button->addAction(action);
    QObject::connect(action, &QAction::triggered, button, &QAbstractButton::click);
}

} // namespace widgets
