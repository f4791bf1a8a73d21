#pragma once

#include "anniversaries/summary/birth_counts.h"
#include "core/screen.h"

class QLabel;
class QTabBar;

namespace core {
class ToolSet;
}

namespace widgets {
class BarChart;
class HeadingGrid;
} // namespace widgets

namespace anniversaries {

/// How many birthdays each sign and each month has, as numbers and as bars.
class FrmBirthSum : public core::Screen {
    Q_OBJECT

public:
    explicit FrmBirthSum(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

private:
    void layOut();
    CountBy shownBy() const;
    void showCounts();
    void printChart();

    QTabBar* m_tabs;
    QLabel* m_total;
    widgets::HeadingGrid* Grid1;
    widgets::BarChart* m_chart;
    core::ToolSet* m_tools;
    core::ToolSet* m_listTools;
};

} // namespace anniversaries
