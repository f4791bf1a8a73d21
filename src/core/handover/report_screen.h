#pragma once

#include <QString>

namespace core {

/// The screen that previews reports of the address book.
class ReportScreen {
public:
    virtual ~ReportScreen() = default;
    /// A report by the name that requests have for it ("Phone List"); false when there is none of that name.
    virtual bool showReport(const QString& name) = 0;
    /// The full layout, for those of one name.
    virtual void showContactReport(const QString& name) = 0;
};

} // namespace core
