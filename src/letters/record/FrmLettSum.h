#pragma once

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

namespace output {
class ListTools;
}

namespace letters {

/// How many letters there are of each direction, type, category, month and person, as numbers and as bars.
class FrmLettSum : public core::Screen {
    Q_OBJECT

public:
    explicit FrmLettSum(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

private:
    void layOut();
    void showCounts();
    void printChart();

    QTabBar* m_tabs;
    QLabel* m_total;
    widgets::HeadingGrid* m_grid;
    widgets::BarChart* m_chart;
    core::ToolSet* m_tools;
    output::ListTools* m_listTools;
};

} // namespace letters
