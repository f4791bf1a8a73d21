#pragma once

#include "output/report/report.h"
#include "reports/address_layouts.h"

#include <span>

namespace reports {

struct ListColumn {
    const char* head;
    const char16_t* text; ///< columns of the statement in braces
    double share;
};

/// A list that is printed, by the name that commands and requests have for it.
struct ListRow {
    QStringView name;
    const char* title;
    const char16_t* sql; ///< up to the condition; "%1" is this year
    QStringView clause; ///< which rows it has; empty for all
    QStringView order;
    std::span<const ListColumn> columns;
    QStringView groupBy = {};
    bool takesFilter = true; ///< its rows are contacts
    bool isWide = false; ///< printed across the paper
};

std::span<const ListRow> listRows();
/// nullptr for a name that no list has.
const ListRow* listRow(QStringView name);

QString listSql(const ListRow& row, const QString& filter, int year);
output::Report printedList(
    const ListRow& row, std::shared_ptr<const output::ReportSource> source, const ReportHead& head);

} // namespace reports
