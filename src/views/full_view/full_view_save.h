#pragma once

#include "jet/recordset.h"

#include <QDate>

#include <functional>
#include <optional>
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

/// Reads the controls of the edit page by name.
struct EditPage {
    std::function<QString(const QString& control)> text;
    std::function<std::optional<QDate>(const QString& control)> date;
};

/// Assigns the columns that the edit page writes to a row that is being edited.
void writeEditPage(jet::Recordset& row, const EditPage& page);

} // namespace views
