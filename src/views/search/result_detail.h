#pragma once

#include "core/context.h"

#include <QFrame>

class QLayout;

namespace jet {
class Recordset;
}

namespace widgets {
class PictureBox;
}

namespace views {

/// The panel below a list of results, with what matters most of one contact.
class ResultDetail : public QFrame {
    Q_OBJECT

public:
    explicit ResultDetail(const platform::Drive& drive, QWidget* parent = nullptr);

    /// Shows the current row of "select * from cnt_main"; without one the panel is blank.
    void display(const jet::Recordset& contact);

private:
    QLayout* layOutTexts();

    const platform::Drive& m_drive;
    widgets::PictureBox* Picture1;
};

} // namespace views
