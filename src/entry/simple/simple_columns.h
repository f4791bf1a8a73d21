#pragma once

#include "entry/form/contact_columns.h"
#include "entry/form/save_checks.h"
#include "formats/card_file.h"

namespace entry {

/// The columns of the simple form: those that a change writes, and what a new contact gets beside them.
std::span<const ColumnRow> simpleColumns();
std::span<const ColumnRow> simpleColumnsOfNew();

/// What a change writes: the columns of the form, and no other.
QList<core::ColumnEdit> simpleEdits(
    const FormValues& values, const SaveOptions& options, const core::TouchedFields& fields);

/// The name that is put together of what stands in the form; blank without a view of names.
QString simpleName(const FormValues& values);

/// What a card tells of the fields of the form; fields that it says nothing of are not in it.
FormValues simpleValuesOf(const formats::CardFields& card);

/// Why the form can not be saved; nothing when it can. A contact without a name could not be chosen in any
/// list.
std::optional<Refusal> refusalOfSimple(const FormValues& values);

} // namespace entry
