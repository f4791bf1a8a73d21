#include "widgets/date_box.h"

#include "widgets/theme.h"
#include "widgets/tool_tip_box.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFrame>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QScreen>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

std::function<QDate()>& todaysDate()
{
    static std::function<QDate()> today = [] { return QDate(); };
    return today;
}

} // namespace

DateBox::DateBox(QWidget* parent)
    : QLineEdit(parent)
{
    setFormat(u"dd MMM-yyyy"_s);
    auto* open = addAction(icon(u"calendar"), QLineEdit::TrailingPosition);
    open->setObjectName(u"calendar"_s);
    open->setToolTip(tr("Choose a day from the calendar (F4)"));
    connect(open, &QAction::triggered, this, &DateBox::showCalendar);
    connect(this, &QLineEdit::textChanged, this, &DateBox::followText);
    connect(this, &QLineEdit::editingFinished, this, &DateBox::tidy);
}

void DateBox::setFormat(const QString& pattern)
{
    const auto shown = date();
    m_format = pattern;
    setPlaceholderText(QString(pattern).replace(u"MMM"_s, u"Mmm"_s));
    if (shown)
        setDate(shown);
    mark();
}

jet::DateOrder DateBox::order() const
{
    return m_format.startsWith(u'd', Qt::CaseInsensitive) ? jet::DateOrder::DayFirst
                                                          : jet::DateOrder::MonthFirst;
}

std::optional<QDate> DateBox::date() const
{
    if (m_exact && text() == jet::formatDate(*m_exact, m_format))
        return m_exact;
    return jet::readDate(text(), order(), todaysDate()());
}

void DateBox::setDate(const std::optional<QDate>& date)
{
    m_exact = date;
    setText(date ? jet::formatDate(*date, m_format) : QString());
    setCursorPosition(0);
}

bool DateBox::holdsBadText() const
{
    return !text().trimmed().isEmpty() && !date();
}

DateBox* DateBox::firstBad(const QWidget* form)
{
    const auto boxes = form->findChildren<DateBox*>();
    const auto bad
        = std::find_if(boxes.cbegin(), boxes.cend(), [](const DateBox* box) { return box->holdsBadText(); });
    return bad == boxes.cend() ? nullptr : *bad;
}

void DateBox::askToMend()
{
    for (QWidget* page = this; page->parentWidget(); page = page->parentWidget()) {
        auto* pages = qobject_cast<QStackedWidget*>(page->parentWidget());
        if (auto* tabs = pages ? qobject_cast<QTabWidget*>(pages->parentWidget()) : nullptr)
            tabs->setCurrentWidget(page);
        else if (pages)
            pages->setCurrentWidget(page);
    }
    setFocus();
    mark();
    showHelpBeside(this, complaint());
}

void DateBox::setToday(std::function<QDate()> today)
{
    todaysDate() = std::move(today);
}

QSize DateBox::minimumSizeHint() const
{
    ensurePolished();
    constexpr int IconAndEdges = 42;
    int widest = 0;
    for (int month = 1; month <= 12; ++month)
        widest = std::max(
            widest, fontMetrics().horizontalAdvance(jet::formatDate(QDate(2000, month, 28), m_format)));
    return {widest + IconAndEdges, QLineEdit::minimumSizeHint().height()};
}

QString DateBox::complaint() const
{
    return tr("This is not a date. Write it like %1.").arg(jet::formatDate(QDate(1990, 2, 1), m_format));
}

void DateBox::followText()
{
    // While a person types, a date is not wrong, only unfinished.
    if (!hasFocus() || !holdsBadText())
        mark();
    const auto now = date();
    if (now == m_last)
        return;
    m_last = now;
    Q_EMIT dateChanged();
}

void DateBox::tidy()
{
    if (const auto typed = date(); typed && jet::formatDate(*typed, m_format) != text())
        setDate(typed);
    mark();
}

void DateBox::mark()
{
    const bool wrong = holdsBadText();
    if (wrong && !m_wrong)
        m_toolTip = toolTip();
    if (wrong != m_wrong) {
        setToolTip(wrong ? complaint() : m_toolTip);
        if (!wrong && isVisible())
            showHelpBeside(this, {}); // what stands there is no longer so
        m_wrong = wrong;
        update();
    }
    QPalette colours;
    if (wrong)
        colours.setColor(QPalette::Text, warningColor());
    if (colours.isBrushSet(QPalette::Active, QPalette::Text) || testAttribute(Qt::WA_SetPalette))
        setPalette(colours);
}

void DateBox::showCalendar()
{
    auto* frame = new QFrame(this, Qt::Popup);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* calendar = new QCalendarWidget(frame);
    calendar->setObjectName(u"calendarOfDateBox"_s);
    calendar->setLocale(QLocale::c());
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    if (const QDate day = date().value_or(todaysDate()()); day.isValid())
        calendar->setSelectedDate(day);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(calendar);

    const auto take = [this, frame](QDate day) {
        setDate(day);
        frame->close();
    };
    connect(calendar, &QCalendarWidget::clicked, this, take);
    connect(calendar, &QCalendarWidget::activated, this, take);

    frame->adjustSize();
    QPoint place = mapToGlobal(QPoint(0, height()));
    const QRect room = screen()->availableGeometry();
    if (place.y() + frame->height() > room.bottom())
        place.setY(mapToGlobal(QPoint(0, 0)).y() - frame->height());
    place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - frame->width())));
    frame->move(place);
    frame->show();
    calendar->setFocus();
}

void DateBox::keyPressEvent(QKeyEvent* event)
{
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if ((event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier) || altDown) {
        if (!isReadOnly())
            showCalendar();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DateBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    mark();
    const bool left
        = event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (left && holdsBadText() && isVisible())
        showHelpBeside(this, complaint());
}

void DateBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!m_wrong)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(warningColor(), 1.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), 3, 3);
}

void DateBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        mark();
}

} // namespace widgets
