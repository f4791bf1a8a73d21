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

/// How many of something there are, counted by several things: a tab each, as numbers and as bars. The list
/// and the bars can be printed.
class CountScreen : public core::Screen {
    Q_OBJECT

public:
    struct Texts {
        QString title;
        QStringList tabs;
        QString tabsName; ///< for those who do not see them
        QString gridName;
        QString chartName;
        QString empty; ///< where nothing is counted
    };
    CountScreen(core::Context& context, const Texts& texts, QWidget* parent);

    void load() override;
    void bookChanged() override { showCounts(); }

protected:
    /// A thing and how many there are of it.
    struct Row {
        QString name;
        int count = 0;
        QString percent;
    };
    /// Reads and shows what belongs to the tab in front.
    virtual void showCounts() = 0;
    int tab() const;
    /// @param headings for name, count and percent, behind an empty margin
    void showRows(QStringView headings, const QList<Row>& rows, const QString& total);

private:
    void layOut(const Texts& texts);
    void printChart();

    QTabBar* m_tabs;
    QLabel* m_total;
    widgets::HeadingGrid* Grid1;
    widgets::BarChart* m_chart;
    core::ToolSet* m_tools;
    ListTools* m_listTools;
};

} // namespace output
