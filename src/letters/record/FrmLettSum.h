#pragma once

#include "output/counts/count_screen.h"

namespace letters {

/// How many letters there are of each direction, type, category, month and person.
class FrmLettSum : public output::CountScreen {
    Q_OBJECT

public:
    explicit FrmLettSum(core::Context& context, QWidget* parent = nullptr);

private:
    void showCounts() override;
};

} // namespace letters
