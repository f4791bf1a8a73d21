#pragma once

#include <QString>

class QWidget;

namespace platform {
class Printer;
}

namespace widgets {
class BarChart;
}

namespace output {

/// Prints bars on the upper half of a page, under a title; false when the printer could not.
bool printChart(
    platform::Printer& printer, const widgets::BarChart& chart, const QString& title, QWidget* over);

} // namespace output
