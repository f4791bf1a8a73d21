#pragma once

#include "output/labels/label_sheet.h"

#include <QList>

namespace platform {
class Drive;
}

/// The sheets of labels that a person has measured, kept in a file of the person's own.
namespace letters {

inline constexpr int kMostOwnSheets = 200;

/// By name. What is no sheet in the file, or can not be printed on, is left out.
QList<output::LabelSheet> readOwnSheets(const platform::Drive& drive);
/// A piece of a sentence, why the sheets were not written; empty when they were. A file that could not be
/// read is kept beside the new one.
QString writeOwnSheets(const platform::Drive& drive, const QList<output::LabelSheet>& sheets);

} // namespace letters
