#pragma once

#include "anniversaries/list/month_days.h"
#include "core/context.h"

#include <QBasicTimer>
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

    /// Reads whose days these are, in the time between other events.
    void readDays();
    void choose(QDate date);
    void toggleLegend();
    /// Explains the colours while the person wants to see it, and the button for it; the screen places them.
    QWidget* legend() const { return m_legend; }
    QPushButton* legendButton() const { return SSCommand6; }

Q_SIGNALS:
    void dateSelected(QDate date); ///< by the person

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct StyledDay {
        int month;
        int day;
        QString style;
    };

    QWidget* layOutLegend();
    void readColumn(const DayColumn& column);

    core::Context& m_context;
    widgets::DayCalendar* SSMonth1;
    QPushButton* SSCommand6;
    QWidget* m_legend;
    QBasicTimer m_reading;
    size_t m_nextColumn = 0;
    QList<StyledDay> m_read; ///< so far
};

} // namespace anniversaries
