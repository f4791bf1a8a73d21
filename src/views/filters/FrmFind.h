#pragma once

#include "core/screen.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace views {

struct FindTarget;

/// Find and replace over one field of the letters, the meetings, the record of mail or the mail database,
/// told by the word that the caller left in CallerForm. Whole values only. Stays open, so that one can go on.
class FrmFind : public core::Screen {
    Q_OBJECT

public:
    explicit FrmFind(core::Context& context, QWidget* parent = nullptr);

    void load() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void replace();
    void refreshCaller();
    void cancel();

    const FindTarget* m_target = nullptr;
    QComboBox* Combo1 = nullptr;
    QLineEdit* txtfind = nullptr;
    QLineEdit* txtrep = nullptr;
    QLabel* lblResult = nullptr;
};

} // namespace views
