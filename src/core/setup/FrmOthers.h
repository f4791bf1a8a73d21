#pragma once

#include "core/handover/page_screen.h"
#include "core/screen.h"

class QTabWidget;

namespace widgets {
class HeadingGrid;
}

namespace core {
class SetupPanel;
}

namespace setup {

enum class ListTab;

/// The set-up of the address book: what the entry forms offer and what a new contact starts with. A tab is
/// read when it is looked at; other screens follow each change at once.
class FrmOthers : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit FrmOthers(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void openPage(const QString& page) override;
    void bookChanged() override;
    bool isTouched() const override;
    QSize sizeHint() const override; ///< as a dialog: every tab without scrolling

private:
    QWidget* listsPage(ListTab tab);
    QWidget* addresses();
    void addTab(QWidget* page, const QString& caption, QStringView icon);
    QWidget* layOutFoot();
    void watch(core::SetupPanel* panel);
    void readTab();

    QTabWidget* sstab1;
    widgets::HeadingGrid* m_addresses = nullptr;
};

} // namespace setup
