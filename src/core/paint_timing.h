#pragma once

class QWidget;

namespace core {

/// With ORVANE_TIMING=1 in the environment, writes one line to standard error when the widget has been
/// painted for the first time: "orvane-timing NAME MICROSECONDS", by the computer's monotonic clock. What it
/// costs to start is measured by these lines.
void reportFirstPaint(QWidget* widget);

} // namespace core
