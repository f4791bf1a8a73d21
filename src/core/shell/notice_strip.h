#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QToolButton;

namespace shell {

/// What was done, in one line above the status bar, with a button that takes it back or goes on from it. Goes
/// by itself after eight seconds, but not while the mouse or the focus is on it.
class NoticeStrip : public QFrame {
    Q_OBJECT

public:
    explicit NoticeStrip(QWidget* parent = nullptr);

    void showNotice(const QString& text, const QString& actionText, std::function<void()> action);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void perform();
    void leave();
    void elide();

    QString m_text;
    QLabel* m_label;
    QToolButton* m_button;
    std::function<void()> m_action;
    QTimer m_timer;
};

} // namespace shell
