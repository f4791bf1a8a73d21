#pragma once

#include "core/screen.h"
#include "transfer/cards/visiting_card.h"

class QLabel;
class QPlainTextEdit;

namespace transfer {

/// Shows one card of the kind that this program writes and makes a contact of it. Cards of other programs are
/// read by the import, which is one button away.
class FrmvCard : public core::Screen {
    Q_OBJECT

public:
    explicit FrmvCard(core::Context& context, QWidget* parent = nullptr);

    void load() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void open();
    void save();

    VisitingCard m_card;
    QPlainTextEdit* m_preview = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace transfer
