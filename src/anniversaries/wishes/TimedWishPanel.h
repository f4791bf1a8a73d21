#pragma once

#include "anniversaries/wishes/wish_text.h"
#include "core/context.h"

#include <QFrame>

class QCheckBox;
class QLabel;

namespace core {
class Screen;
}

namespace widgets {
class DateBox;
}

namespace anniversaries {

/// The panel in which a wish gets the day on which it is to be sent. Out of sight until a wish is asked for.
class TimedWishPanel : public QFrame {
    Q_OBJECT

public:
    TimedWishPanel(core::Context& context, core::Screen* screen);

    /// Opens with the day of the wish in this year.
    void ask(const Wish& wish);
    /// Whether something was changed in it that is not kept.
    bool isTouched() const;

Q_SIGNALS:
    void closed(); ///< kept or given up

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void keep();
    void leave();
    void showDay();

    core::Context& m_context;
    core::Screen* m_screen;
    Wish m_wish;
    QDate m_offered;
    widgets::DateBox* dtpSendDate = nullptr;
    QCheckBox* chkAsk = nullptr;
    QLabel* lblTimed = nullptr;
};

} // namespace anniversaries
