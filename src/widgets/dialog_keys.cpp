#include "widgets/dialog_keys.h"

#include <QKeyEvent>
#include <QPushButton>

namespace widgets {

bool answerDialogKey(const QKeyEvent* event, const QWidget* dialog, const std::function<void()>& accept,
    const std::function<void()>& cancel)
{
    switch (event->key()) {
    case Qt::Key_Escape: cancel(); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(dialog->focusWidget()))
            button->click();
        else
            accept();
        return true;
    default: return false;
    }
}

} // namespace widgets
