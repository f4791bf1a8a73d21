#pragma once

#include "output/grid/grid_html.h"
#include "output/report/report.h"

namespace output {

/// How large the texts of a list are, on the screen and on paper.
enum class ListSize { VerySmall, Small, Medium, Large };

/// A list as a report: its columns as wide as they are on the screen in comparison, its headings on each
/// page, its groups with a heading each. A list that is too wide for upright paper lies across it, and one
/// that is still too wide is set smaller. All texts are read now, so the list itself may go.
/// @param heading above each page
/// @return no rows at all when it was stopped
Report listReport(
    const GridTable& grid, const QString& heading, ListSize size, const GridProgress& progress = {});

} // namespace output
