#pragma once

#include "letters/creator/letter_record.h"
#include "widgets/field_values.h"

namespace letters {

/// A letter that was not saved, as it is kept until its screen is opened again.
struct LetterDraft {
    LetterToKeep letter = {};
    std::optional<formats::RichText> whole = {}; ///< when it was changed by hand
    QList<Recipient> recipients = {};
    AddressType addressType = {};
    bool isAddressTyped = false; ///< one that the book does not have
};

widgets::FieldValues draftValues(const LetterDraft& draft);
/// Nothing when there is none.
std::optional<LetterDraft> draftFrom(const widgets::FieldValues& values);

} // namespace letters
