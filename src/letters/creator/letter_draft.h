#pragma once

#include "letters/creator/letter_text.h"
#include "widgets/field_values.h"

namespace letters {

/// A letter that was not saved, as it is kept until its screen is opened again.
struct LetterDraft {
    LetterParts parts = {};
    std::optional<formats::RichText> whole = {}; ///< when it was changed by hand
    QList<qint64> contacts = {};
    QList<Recipient> strangers = {}; ///< who are not in the book
};

widgets::FieldValues draftValues(const LetterDraft& draft);
/// Nothing when there is none.
std::optional<LetterDraft> draftFrom(const widgets::FieldValues& values);

} // namespace letters
