#pragma once

#include <QString>

#include <functional>

class QPainter;
class QWidget;

namespace platform {

/// Something to be printed, page by page. Lengths are twips, 1/1440 inch.
struct PrintJob {
    QString title;
    double paperWidth = 0;
    double paperHeight = 0;
    int pages = 0;
    /// Draws a page, counted from 1, one unit a twip, the origin at the corner of the paper.
    std::function<void(QPainter& painter, int page)> paint;
};

enum class Printed {
    Yes,
    Cancelled, ///< by the person
    Failed, ///< the printer takes nothing
};

class Printer {
public:
    Printer() = default;
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;
    virtual ~Printer() = default;

    /// Asks for the printer, the pages and the copies, and prints them. Can be stopped.
    virtual Printed print(const PrintJob& job, QWidget* over) = 0;
};

} // namespace platform
