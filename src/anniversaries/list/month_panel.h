#pragma once

#include "core/context.h"

#include <QWidget>

class QPushButton;

namespace widgets {
class DayCalendar;
}

namespace anniversaries {

/// The month beside the list, its days coloured by who celebrates, and what the colours mean.
class MonthPanel : public QWidget {
    Q_OBJECT

public:
    explicit MonthPanel(core::Context& context, QWidget* parent = nullptr);

    /// Reads whose days these are.
    void readDays();
    void choose(QDate date);
    void toggleLegend();
    /// Explains the colours while the person wants to see it. To be placed by the screen.
    QWidget* legend() const { return m_legend; }

Q_SIGNALS:
    void dateSelected(QDate date); ///< by the person

private:
    QWidget* layOutLegend();

    core::Context& m_context;
    widgets::DayCalendar* SSMonth1;
    QPushButton* SSCommand6;
    QWidget* m_legend;
};

} // namespace anniversaries
