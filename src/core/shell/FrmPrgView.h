#pragma once

#include "core/screen.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace shell {

/// What the program can do: every tool by subject with a line about it. What is chosen is done.
class FrmPrgView : public core::Screen {
    Q_OBJECT

public:
    explicit FrmPrgView(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    void narrow();
    void choose(QTreeWidgetItem* item);
    void showChosen();

    QLineEdit* txtSearch;
    QTreeWidget* SSTree1;
    QLabel* lblNothing;
    QPushButton* cmdOpen;
};

} // namespace shell
