#include "core/shell/key_arbiter.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

namespace shell {

namespace {

bool isInPlace(const QWidget* owner, Qt::ShortcutContext context)
{
    if (!owner || !owner->isVisible() || !owner->isEnabled())
        return false;
    const QWidget* focus = QApplication::focusWidget();
    switch (context) {
    case Qt::WidgetShortcut: return focus == owner;
    case Qt::WidgetWithChildrenShortcut: return focus && (focus == owner || owner->isAncestorOf(focus));
    case Qt::WindowShortcut: return owner->window()->isActiveWindow();
    case Qt::ApplicationShortcut: return true;
    }
    return false;
}

bool answers(const QAction* action)
{
    if (!action->isEnabled() || !action->isVisible())
        return false;
    const QObjectList places = action->associatedObjects();
    return std::any_of(places.begin(), places.end(), [action](const QObject* place) {
        return isInPlace(qobject_cast<const QWidget*>(place), action->shortcutContext());
    });
}

} // namespace

QList<QObject*> ownersOfKey(QWidget* root, const QKeySequence& key)
{
    QList<QObject*> owners;
    for (QShortcut* shortcut : root->findChildren<QShortcut*>()) {
        if (shortcut->isEnabled() && shortcut->key() == key
            && isInPlace(qobject_cast<QWidget*>(shortcut->parent()), shortcut->context()))
            owners << shortcut;
    }
    // An action need not be the child of the widget that offers it.
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (const QWidget* widget : widgets) {
        for (QAction* action : widget->actions()) {
            if (action->shortcuts().contains(key) && !owners.contains(action) && answers(action))
                owners << action;
        }
    }
    return owners;
}

KeyArbiter::KeyArbiter(FrontScreen frontScreen, QWidget* frame)
    : QObject(frame)
    , m_frontScreen(std::move(frontScreen))
    , m_frame(frame)
{
    // The only place that sees each key before the shortcuts are asked.
    qApp->installEventFilter(this);
}

void KeyArbiter::add(QAction* action)
{
    m_actions << action;
}

bool KeyArbiter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        comeBack();
        if (m_frame->isActiveWindow())
            standBack(QKeySequence(static_cast<QKeyEvent*>(event)->keyCombination()));
    } else if (event->type() == QEvent::KeyRelease) {
        comeBack();
    }
    return false;
}

void KeyArbiter::standBack(const QKeySequence& key)
{
    for (QAction* action : std::as_const(m_actions)) {
        if (!action->shortcuts().contains(key))
            continue;
        QWidget* screen = m_frontScreen();
        if (!screen || ownersOfKey(screen, key).isEmpty())
            return;
        // Unlike taking the key away this does not change what menus show.
        action->setShortcutContext(Qt::WidgetShortcut);
        m_standsBack = action;
        return;
    }
}

void KeyArbiter::comeBack()
{
    if (QAction* action = std::exchange(m_standsBack, nullptr))
        action->setShortcutContext(Qt::WindowShortcut);
}

} // namespace shell
