#include "core/shell/key_arbiter.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QSet>
#include <QShortcut>
#include <QWidget>

namespace shell {

namespace {

/// What may change who has a key: a page is turned, an action is switched on.
const QSet<QEvent::Type> kSettlingEvents{
    QEvent::KeyRelease, QEvent::Show, QEvent::Hide, QEvent::ActionChanged, QEvent::ActionAdded};

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

/// All keys that something in sight would answer, wherever the focus is.
QSet<QKeySequence> keysBelow(QWidget* root)
{
    QSet<QKeySequence> keys;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (const QWidget* widget : widgets) {
        // A menu's keys work while it is closed.
        const bool isThere
            = qobject_cast<const QMenu*>(widget) || (widget->isVisible() && widget->isEnabled());
        if (!isThere)
            continue;
        for (const QShortcut* shortcut : widget->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
            if (shortcut->isEnabled() && shortcut->context() != Qt::WidgetShortcut)
                keys << shortcut->key();
        }
        for (const QAction* action : widget->actions()) {
            if (action->isEnabled() && action->isVisible() && action->shortcutContext() != Qt::WidgetShortcut)
                keys << action->shortcut();
        }
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            keys << button->shortcut();
    }
    keys.remove({});
    return keys;
}

// Unlike taking the key away this does not change what menus show.
void standBack(QAction* action, bool isBack)
{
    const auto context = isBack ? Qt::WidgetShortcut : Qt::WindowShortcut;
    if (action->shortcutContext() != context)
        action->setShortcutContext(context);
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
    for (QAbstractButton* button : root->findChildren<QAbstractButton*>()) {
        if (button->shortcut() == key && isInPlace(button, Qt::WindowShortcut))
            owners << button;
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
    m_settling.setSingleShot(true);
    m_settling.setInterval(0);
    connect(&m_settling, &QTimer::timeout, this, &KeyArbiter::settle);
    connect(qApp, &QApplication::focusChanged, &m_settling, qOverload<>(&QTimer::start));
    // The only place that sees each key before the shortcuts are asked.
    qApp->installEventFilter(this);
}

void KeyArbiter::add(QAction* action)
{
    m_actions << action;
}

bool KeyArbiter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_frame->isActiveWindow())
        settleFor(QKeySequence(static_cast<QKeyEvent*>(event)->keyCombination()));
    else if (kSettlingEvents.contains(event->type()))
        m_settling.start();
    return false;
}

void KeyArbiter::settle()
{
    QWidget* screen = m_frontScreen();
    const QSet<QKeySequence> taken = screen ? keysBelow(screen) : QSet<QKeySequence>();
    for (QAction* action : std::as_const(m_actions))
        standBack(action, taken.contains(action->shortcut()));
}

// Now the place of the focus counts, too, and what was enabled or shown since the last time.
void KeyArbiter::settleFor(const QKeySequence& key)
{
    for (QAction* action : std::as_const(m_actions)) {
        if (action->shortcut() != key)
            continue;
        QWidget* screen = m_frontScreen();
        standBack(action, screen && !ownersOfKey(screen, key).isEmpty());
    }
}

} // namespace shell
