#pragma once

#include "core/screen.h"

class QAction;
class QLabel;
class QTabBar;

namespace core {
class ContactTools;
class ListPresenter;
class ToolSet;
} // namespace core

namespace widgets {
class HeadingGrid;
}

namespace anniversaries {

/// The people born in each month, as a plain list to print and to export.
class FrmBirthday : public core::Screen {
    Q_OBJECT

public:
    explicit FrmBirthday(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void connectFonts();
    void showMonth();
    void showPosition();
    void popUpMenu(const QPoint& at);

    widgets::HeadingGrid* Grid1;
    QTabBar* SSTab;
    QLabel* m_count;
    core::ToolSet* m_tools;
    core::ToolSet* m_listTools;
    core::ContactTools* m_contactTools;
    core::ListPresenter* m_list;
};

} // namespace anniversaries
