#pragma once

#include "core/context.h"
#include "core/tool_set.h"
#include "output/report/save_report.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QSpinBox;
class QToolBar;

namespace output {

class PageView;

/// A report as a person looks at it: its pages with a list of them, a tool bar to walk, zoom, search, print
/// and save. The pages are called "arV".
class ReportPane : public QWidget {
    Q_OBJECT

public:
    explicit ReportPane(core::Context& context, QWidget* parent = nullptr);

    /// A report without rows leaves the pane empty.
    void show(const Report& report, int page = 1);
    using QWidget::show;
    void clear();

    PageView* pages() const { return arV; }

Q_SIGNALS:
    void exitRequested();

private:
    void fillBar();
    void fillFoot();
    void addSaveMenu();
    void connectTools();
    void followPages();
    void print();
    void save(ReportFormat format);

    core::Context& m_context;
    core::ToolSet* m_tools;
    PageView* arV;
    QToolBar* m_bar; ///< above the pages
    QToolBar* m_foot; ///< below them
    QSpinBox* m_page;
    QLabel* m_pageCount;
    QLineEdit* m_find;
    QLabel* m_notFound;
};

} // namespace output
