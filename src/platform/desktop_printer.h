#pragma once

#include "platform/printer.h"

namespace platform {

/// The printers of the desktop, or a PDF file where the person chooses that.
class DesktopPrinter final : public Printer {
public:
    Printed print(const PrintJob& job, QWidget* over) override;
};

} // namespace platform
