#pragma once

#include "core/loaded_row.h"
#include "widgets/field_values.h"

#include <span>

namespace views {

/// What an edit control is filled from.
struct EditSource {
    QStringView control;
    QStringView column;
};

/// The texts and dates of the edit page in the order in which they are filled; a later row of the same
/// control wins.
std::span<const EditSource> editTexts();
std::span<const EditSource> editDates();

/// What the edit page writes, column by column.
QList<core::ColumnEdit> editPageColumns(const widgets::FieldValues& page, const core::TouchedFields& fields);

} // namespace views
