#pragma once

#include "core/loaded_row.h"
#include "entry/form/form_values.h"
#include "jet/recordset.h"

#include <QStringView>

#include <span>

namespace entry {

/// How a control's text becomes a column's value.
enum class Rule {
    Trimmed,
    AsTyped,
    OrUndefined, ///< blank gives "Undefined"
    Priority, ///< blank gives "2"
    Name, ///< composed by the name view
    Category1, ///< of the control, with the subcategory in the second one
    Category2, ///< the other way round
    Category1AsTyped, ///< the same two, but blank stays blank
    Category2AsTyped,
    Email, ///< the control, "@", and the second control
    Joined, ///< the control and the second one, with nothing between
    Date, ///< null without a valid date
    DateInWords, ///< the same, written as dd/MMM/yyyy
    Today,
    TodayInWords,
};

/// One assignment of a save, in the order in which it is made.
struct ColumnRow {
    QStringView column;
    QStringView control;
    Rule rule = Rule::Trimmed;
    QStringView second = {}; ///< the other control of a value that is made of two
};

struct SaveOptions {
    QString name; ///< composed
    QDate today;
    bool mergedCategory = false;
};

/// The columns of the detailed form, in the order in which books have them: for a new contact, and for one
/// that is changed.
std::span<const ColumnRow> detailedAddColumns();
std::span<const ColumnRow> detailedEditColumns();
/// Those of the brief form.
std::span<const ColumnRow> briefAddColumns();
std::span<const ColumnRow> briefEditColumns();

/// What is written to the column.
QVariant valueOf(const ColumnRow& row, const FormValues& values, const SaveOptions& options);

/// Assigns the columns one after the other; one that does not fit is skipped alone.
void assign(jet::Recordset& rows, std::span<const ColumnRow> columns, const FormValues& values,
    const SaveOptions& options);

/// What a change writes, told for each column whether the person touched a control that it is made of.
QList<core::ColumnEdit> columnEdits(std::span<const ColumnRow> columns, const FormValues& values,
    const SaveOptions& options, const core::TouchedFields& fields);

} // namespace entry
