#pragma once

class QTabWidget;
class QToolBar;

namespace widgets {

/// In a place that is too narrow for all tools of the bar with their texts they stand there by their icons,
/// each with its text as tool tip; an icon is hit more easily than what is behind the arrow at the end.
void letTextsGiveWay(QToolBar* bar);
/// In a place that is too narrow for all tabs they have no icons; a page that is out of sight is not looked
/// for.
void letIconsGiveWay(QTabWidget* tabs);

} // namespace widgets
