#pragma once

#include "core/contact_names.h"
#include "entry/form/form_values.h"

#include <optional>

namespace entry {

enum class Refusal { AllBlank, NoNameView, NeitherNameNorCompany };

/// What the person is told, for translation in the context "entry".
const char* refusalText(Refusal refusal);

/// What the checks of a save need of a form.
core::NameParts namePartsOf(const FormValues& values);

/// Why a form can not be saved, in the order of the checks; nothing when it can.
std::optional<Refusal> refusalOfSave(const FormValues& values);
/// A change is checked again, and more narrowly: only the two views of first and last name are taken.
std::optional<Refusal> refusalOfEdit(const FormValues& values);

} // namespace entry
