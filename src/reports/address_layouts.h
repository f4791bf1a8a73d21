#pragma once

#include "output/report/report.h"

#include <span>

namespace reports {

/// The page layouts of the address book.
enum class Layout { FullByCategory, FullByCompany, FullByFirst, FullByLast, ShortByFirst, ShortByLast };

struct LayoutRow {
    Layout layout;
    QStringView option; ///< the control that chooses it
    const char* caption;
    bool isFull;
    QStringView report; ///< its name, as other parts of the suite call it
    QStringView clause; ///< which contacts it has; empty for all
    QStringView order;
    QStringView fileStem;
    QStringView groupBy;
    bool byFirstLetter;
};

/// In the order of the options.
std::span<const LayoutRow> layoutRows();
const LayoutRow& rowOf(Layout layout);

/// The contacts of a layout. The filter has its leading word, as filter screens deliver it; what the layout
/// asks for itself comes behind.
QString layoutSql(Layout layout, const QString& filter);

/// What every report says of itself.
struct ReportHead {
    QString title;
    QString printDate;
    output::SectionColors colors;
};
output::Report addressReport(
    Layout layout, std::shared_ptr<const output::ReportSource> source, const ReportHead& head);

} // namespace reports
