#pragma once

#include "anniversaries/summary/birth_counts.h"
#include "output/counts/count_screen.h"

namespace anniversaries {

/// How many birthdays each sign and each month has.
class FrmBirthSum : public output::CountScreen {
    Q_OBJECT

public:
    explicit FrmBirthSum(core::Context& context, QWidget* parent = nullptr);

private:
    void showCounts() override;
};

} // namespace anniversaries
