#pragma once

#include "core/context.h"
#include "core/tool_set.h"
#include "output/grid/list_report.h"

#include <QPointer>

namespace widgets {
class HeadingGrid;
}

namespace output {

/// The size of the texts of a list, on the screen and on paper; `Medium` until it is set.
ListSize listSizeOf(const widgets::HeadingGrid* grid);
void setListSize(widgets::HeadingGrid* grid, ListSize size);

/// Shows what a list would be on paper, in the viewer of reports. The heading of each page is the title, " -
/// " and the date.
void ListPrint(core::Context& context, widgets::HeadingGrid* grid, const QString& title);
/// Saves a list by `GridXLS`.
void exportList(core::Context& context, widgets::HeadingGrid* grid, const QString& title);

/// The tools of a screen with a list: `ListPrint`, `Exports`, and `VerySmall`, `Small`, `Medium` and `Large`
/// for its texts. A screen makes one and hangs its tool bar up; all else is done here.
class ListTools : public core::ToolSet {
    Q_OBJECT

public:
    /// @param title of print and export; the title of the screen where it is empty
    ListTools(core::Context& context, widgets::HeadingGrid* grid, QWidget* screen, const QString& title = {});

private:
    void perform(QStringView id);

    core::Context& m_context;
    QPointer<widgets::HeadingGrid> m_grid;
    QString m_title;
};

/// The rows of these tools, for a screen that wants them among its own.
core::ToolTable listTools();
/// The size that a tool stands for; nothing for one of the others.
std::optional<ListSize> listSizeOfTool(QStringView id);

} // namespace output
