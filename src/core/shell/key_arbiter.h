#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>

class QAction;
class QWidget;

namespace shell {

/// The actions and shortcuts below a widget that would answer a key now: enabled, in sight, and with the
/// focus where they want it.
QList<QObject*> ownersOfKey(QWidget* root, const QKeySequence& key);

/// Two owners of one key would silence each other. While the screen in front has an owner of a key that the
/// frame has too, the frame's own action stands back; and when the key is pressed where the screen's owner
/// does not hear it, as in the bar at the side, the frame's action serves it all the same.
class KeyArbiter : public QObject {
    Q_OBJECT

public:
    using FrontScreen = std::function<QWidget*()>;
    KeyArbiter(FrontScreen frontScreen, QWidget* frame);

    void add(QAction* action);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void settle();
    void settleFor(const QKeySequence& key);

    FrontScreen m_frontScreen;
    QWidget* m_frame;
    QList<QAction*> m_actions;
    QTimer m_settling;
};

} // namespace shell
