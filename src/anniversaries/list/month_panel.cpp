#include "anniversaries/list/month_panel.h"

#include "anniversaries/list/month_days.h"
#include "platform/clock.h"
#include "widgets/day_calendar.h"
#include "widgets/theme.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

/// A patch of the colour of a style, whatever look the program has.
class Swatch final : public QWidget {
public:
    explicit Swatch(int style)
        : m_style(style)
    {
        setFixedSize(22, 14);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(widgets::DayCalendar::styleColor(m_style, palette()));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    int m_style;
};

} // namespace

MonthPanel::MonthPanel(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , SSMonth1(new widgets::DayCalendar(widgets::DayCalendar::Span::Month))
    , SSCommand6(new QPushButton(tr("Legend")))
    , m_legend(layOutLegend())
{
    const QDate today = context.services.clock.today();
    SSMonth1->setObjectName(u"SSMonth1"_s);
    SSMonth1->setAccessibleName(tr("Birthdays and anniversaries of a month"));
    SSMonth1->setStyles(dayStyles());
    SSMonth1->setToday(today);
    SSMonth1->setRange(today, today.addMonths(1));
    SSCommand6->setObjectName(u"SSCommand6"_s);
    SSCommand6->setCheckable(true);
    SSCommand6->setAutoDefault(false);
    SSCommand6->setToolTip(tr("What the colours of the days mean"));
    widgets::setIcon(SSCommand6, u"colors");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(SSMonth1);
    connect(SSCommand6, &QPushButton::toggled, m_legend, &QWidget::setVisible);
    connect(SSMonth1, &widgets::DayCalendar::dateSelected, this, &MonthPanel::dateSelected);
}

QWidget* MonthPanel::layOutLegend()
{
    const QString texts[] = {tr("Birthday, priority 1 and 2"), tr("Birthday, priority 3 and 4"),
        tr("Anniversary, priority 1 and 2"), tr("Anniversary, priority 3 and 4")};
    auto* legend = new QFrame;
    legend->setObjectName(u"FrameLegend"_s);
    auto* row = new QHBoxLayout(legend);
    row->setContentsMargins(0, 0, 0, 0);
    for (int style = 0; style < int(std::size(texts)); ++style) {
        if (style > 0)
            row->addStretch(1);
        row->addWidget(new Swatch(style));
        row->addWidget(new QLabel(texts[style]));
    }
    row->addStretch(1);
    legend->hide();
    return legend;
}

void MonthPanel::readDays()
{
    m_read.clear();
    m_nextColumn = 0;
    m_reading.start(0, this);
}

// A column at a time, so that the window lives; the days in sight stay until all are known.
void MonthPanel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_reading.timerId())
        return QWidget::timerEvent(event);
    readColumn(dayColumns()[m_nextColumn]);
    if (++m_nextColumn < dayColumns().size())
        return;
    m_reading.stop();
    SSMonth1->clearDays();
    // On a day of several the more important ones are seen.
    for (const QStringView style : {u"Birth34", u"Birth12", u"Anniv34", u"Anniv12"}) {
        for (const StyledDay& day : std::as_const(m_read)) {
            if (day.style == style)
                SSMonth1->setDayStyle(day.month, day.day, day.style);
        }
    }
    m_read.clear();
}

void MonthPanel::readColumn(const DayColumn& column)
{
    const jet::Recordset days = m_context.data.openRecordset(daysSql(column.column));
    for (int row = 0; row < days.count(); ++row)
        m_read << StyledDay{days.valueAt(row, 0).toInt(), days.valueAt(row, 1).toInt(),
            dayStyle(column.occasion, days.textAt(row, 2))};
}

void MonthPanel::choose(QDate date)
{
    SSMonth1->setSelectedDate(date);
}

void MonthPanel::toggleLegend()
{
    SSCommand6->toggle();
}

} // namespace anniversaries
