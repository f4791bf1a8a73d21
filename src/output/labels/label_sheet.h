#pragma once

#include "output/report/report.h"

#include <vector>

namespace output {

/// A sheet of labels as it is sold, or as a person has measured one.
struct LabelSheet {
    QString name;
    Paper paper;
    SheetLayout layout;
};

/// The sheets that the five types of labels are printed on, in their order: three of A4 and two of US Letter.
const std::vector<LabelSheet>& builtinSheets();

/// What keeps a sheet from being printed on, for a person to read: labels that overlap or leave the paper,
/// none at all, or too many. Empty when all is well.
QString sheetComplaint(const LabelSheet& sheet);

/// A page with a cross at each corner of a label and its number, to lay over a sheet before it is used.
Report testSheet(const LabelSheet& sheet);

inline constexpr double kTwipsAnInch = 1440;
inline constexpr double kTwipsAMillimetre = kTwipsAnInch / 25.4;

} // namespace output
