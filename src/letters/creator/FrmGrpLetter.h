#pragma once

#include "letters/creator/letter_creator.h"

namespace letters {

/// A letter to all of a mailing list.
class FrmGrpLetter final : public LetterCreator {
    Q_OBJECT

public:
    explicit FrmGrpLetter(core::Context& context, QWidget* parent = nullptr)
        : LetterCreator(context, kGroupLetter, parent)
    {
    }
};

} // namespace letters
