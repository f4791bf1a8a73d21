#pragma once

#include "letters/creator/letter_creator.h"

namespace letters {

/// A letter to one or several.
class FrmLetter final : public LetterCreator {
    Q_OBJECT

public:
    explicit FrmLetter(core::Context& context, QWidget* parent = nullptr)
        : LetterCreator(context, kPersonalLetter, parent)
    {
    }
};

} // namespace letters
