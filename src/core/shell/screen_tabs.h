#pragma once

#include <QTabWidget>

class QToolButton;

namespace shell {

/// The open screens of the frame as tabs. A middle click asks for a tab to be closed, as its cross does; the
/// button beside them lists all, for when they do not fit.
class ScreenTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit ScreenTabs(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void listTabs();
    void offerList();

    QToolButton* m_list;
};

} // namespace shell
