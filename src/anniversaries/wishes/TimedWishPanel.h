#pragma once

#include "anniversaries/wishes/wish_text.h"
#include "core/context.h"

#include <QFrame>

class QCheckBox;
class QLabel;

namespace widgets {
class DateBox;
}

namespace anniversaries {

/// The panel in which a wish gets the day on which it is to be sent. Out of sight until a wish is asked for.
class TimedWishPanel : public QFrame {
    Q_OBJECT

public:
    explicit TimedWishPanel(core::Context& context, QWidget* parent = nullptr);

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
    void close();
    void showDay();

    core::Context& m_context;
    Wish m_wish;
    QDate m_offered;
    widgets::DateBox* dtpSendDate = nullptr;
    QCheckBox* chkAsk = nullptr;
    QLabel* lblTimed = nullptr;
};

} // namespace anniversaries
