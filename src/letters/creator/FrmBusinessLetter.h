#pragma once

#include "letters/creator/letter_creator.h"

namespace letters {

/// A letter of business.
class FrmBusinessLetter final : public LetterCreator {
    Q_OBJECT

public:
    explicit FrmBusinessLetter(core::Context& context, QWidget* parent = nullptr)
        : LetterCreator(context, kBusinessLetter, parent)
    {
    }
};

} // namespace letters
