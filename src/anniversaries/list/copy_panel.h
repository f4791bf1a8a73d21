#pragma once

#include "anniversaries/list/day_list.h"
#include "core/context.h"

#include <QFrame>

class QLabel;
class QProgressBar;

namespace core {
class Screen;
}

namespace widgets {
class FilledCombo;
}

namespace anniversaries {

/// The panel that copies dates of the list to the scheduler: which ones, and for how many years.
class CopyPanel : public QFrame {
    Q_OBJECT

public:
    /// @param screen that shows the list
    CopyPanel(core::Context& context, DayList* list, core::Screen* screen);

    void ask();
    /// Whether something was chosen that is not copied.
    bool isTouched() const;
    void leave(); ///< what was chosen is given up

Q_SIGNALS:
    void closed(); ///< copied or given up: the ticks of the list are to be read again

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void followTimes(const QString& typed);
    void followChoice();
    void copy();
    bool copyRows(int times);

    core::Context& m_context;
    DayList* m_list;
    core::Screen* m_screen;
    bool m_hasTicked = false;
    QLabel* lblchange = nullptr;
    widgets::FilledCombo* Combo1 = nullptr;
    QProgressBar* PB1;
};

} // namespace anniversaries
