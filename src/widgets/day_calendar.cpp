#include "widgets/day_calendar.h"

#include "widgets/theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include <cmath>

using namespace Qt::StringLiterals;

namespace widgets {

namespace {

constexpr int kWeeks = 6;
constexpr int kRowsOfMonth = kWeeks + 2; ///< with its title and the days of the week
constexpr int kGap = 10;

struct Pair {
    const char* light;
    const char* dark;
};
constexpr Pair kColors[] = {{"#f7b2ae", "#8c2f39"}, {"#fbdcae", "#7a5416"}, {"#b5d7f5", "#1f5583"},
    {"#bfe6c3", "#2b6636"}, {"#dcc6f0", "#5d3a80"}, {"#f3c6df", "#7d3562"}};

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

int rowOf(QDate day)
{
    const QDate first(day.year(), day.month(), 1);
    const int ahead = (first.dayOfWeek() - QLocale().firstDayOfWeek() + 7) % 7;
    return (day.day() - 1 + ahead) / 7;
}

int columnOf(QDate day)
{
    return (day.dayOfWeek() - QLocale().firstDayOfWeek() + 7) % 7;
}

} // namespace

DayCalendar::DayCalendar(Span span, QWidget* parent)
    : QWidget(parent)
    , m_span(span)
    , m_back(new QToolButton(this))
    , m_ahead(new QToolButton(this))
    , m_now(new QToolButton(this))
    , m_title(new QLabel(this))
{
    m_dayStyles.fill(-1);
    setFocusPolicy(Qt::StrongFocus);
    const bool isYear = span == Span::Year;
    const auto button = [this](QToolButton* one, const QString& name, const QString& says) {
        one->setObjectName(name);
        one->setAccessibleName(says);
        one->setToolTip(says);
        one->setAutoRaise(true);
        one->setFocusPolicy(Qt::NoFocus);
    };
    button(m_back, u"calendarBack"_s, isYear ? tr("The year before") : tr("The month before"));
    button(m_ahead, u"calendarAhead"_s, isYear ? tr("The next year") : tr("The next month"));
    button(m_now, u"calendarToday"_s, tr("Go to today"));
    m_back->setArrowType(Qt::LeftArrow);
    m_ahead->setArrowType(Qt::RightArrow);
    m_now->setText(tr("Today"));
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setTextFormat(Qt::PlainText);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    connect(m_back, &QToolButton::clicked, this, [this] { turnBy(-1); });
    connect(m_ahead, &QToolButton::clicked, this, [this] { turnBy(1); });
    connect(m_now, &QToolButton::clicked, this, [this] { choose(m_today); });
    setAccessibleName(isYear ? tr("Calendar of the year") : tr("Calendar of the month"));
}

void DayCalendar::setToday(QDate today)
{
    m_today = today;
    if (!m_selected.isValid())
        setSelectedDate(today);
    update();
}

void DayCalendar::setStyles(const QStringList& names)
{
    Q_ASSERT(names.size() <= int(std::size(kColors)));
    m_styles = names;
    clearDays();
}

QColor DayCalendar::styleColor(int style, const QPalette& palette)
{
    const Pair& color = kColors[size_t(style) % std::size(kColors)];
    return QColor(QLatin1StringView(isDark(palette) ? color.dark : color.light));
}

void DayCalendar::setMonthStyles(const QStringList& names)
{
    m_monthStyles = names;
    update();
}

void DayCalendar::clearDays()
{
    m_dayStyles.fill(-1);
    update();
}

void DayCalendar::setDayStyle(int month, int day, const QString& style)
{
    if (month < 1 || month > 12 || day < 1 || day > kDays)
        return;
    m_dayStyles[size_t((month - 1) * kDays + day - 1)] = static_cast<signed char>(m_styles.indexOf(style));
    update();
}

QString DayCalendar::styleOf(int month, int day) const
{
    if (month < 1 || month > 12 || day < 1 || day > kDays)
        return {};
    return m_styles.value(m_dayStyles[size_t((month - 1) * kDays + day - 1)]);
}

void DayCalendar::setSelectedDate(QDate date)
{
    if (!date.isValid() || !isInRange(date))
        return;
    m_selected = date;
    turnTo(date);
    describe();
    update();
}

void DayCalendar::setRange(QDate first, QDate last)
{
    m_from = first;
    m_to = last;
    placeHead();
}

bool DayCalendar::isInRange(QDate date) const
{
    return date.isValid() && date.year() > 0 && date.year() < 10000 && (!m_from.isValid() || date >= m_from)
        && (!m_to.isValid() || date <= m_to);
}

void DayCalendar::turnTo(QDate date)
{
    const QDate first(date.year(), m_span == Span::Month ? date.month() : 1, 1);
    if (first == m_first)
        return;
    m_first = first;
    placeHead();
    update();
    Q_EMIT pageShown(first);
}

// The same day of the other page, or the nearest one that can be chosen.
void DayCalendar::turnBy(int pages)
{
    const QDate base = m_selected.isValid() ? m_selected : m_first;
    QDate date = m_span == Span::Month ? base.addMonths(pages) : base.addYears(pages);
    if (m_from.isValid() && date < m_from)
        date = m_from;
    if (m_to.isValid() && date > m_to)
        date = m_to;
    choose(date);
}

void DayCalendar::choose(QDate date)
{
    if (!isInRange(date))
        return;
    setSelectedDate(date);
    Q_EMIT dateSelected(date);
}

// What a reader of the screen says.
void DayCalendar::describe()
{
    const QString style = styleOf(m_selected.month(), m_selected.day());
    const QString day = QLocale().toString(m_selected, QLocale::LongFormat);
    setAccessibleDescription(style.isEmpty() ? day : day + u", "_s + style);
}

void DayCalendar::placeHead()
{
    if (!m_first.isValid())
        return;
    const QDate next = m_span == Span::Month ? m_first.addMonths(1) : m_first.addYears(1);
    m_back->setEnabled(isInRange(m_first.addDays(-1)));
    m_ahead->setEnabled(isInRange(next));
    const int high = m_back->sizeHint().height();
    const int nowWidth = m_now->sizeHint().width();
    m_back->setGeometry(0, 0, high, high);
    m_ahead->setGeometry(width() - high, 0, high, high);
    m_now->setGeometry(width() - high - nowWidth - 2, 0, nowWidth, high);
    const int room = qMax(0, width() - 2 * high - nowWidth - 2);
    const QString year = QString::number(m_first.year());
    const auto ofMonth = [&](QLocale::FormatType format) {
        return QLocale().standaloneMonthName(m_first.month(), format) + u' ' + year;
    };
    QString title = m_span == Span::Month ? ofMonth(QLocale::LongFormat) : year;
    if (m_span == Span::Month && m_title->fontMetrics().horizontalAdvance(title) > room)
        title = ofMonth(QLocale::ShortFormat);
    m_title->setText(title);
    m_title->setGeometry(high, 0, room, high);
}

QSize DayCalendar::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int wide = 7 * (metrics.horizontalAdvance(u"00"_s) + 4);
    const int high = kRowsOfMonth * (metrics.height() + 1);
    if (m_span == Span::Month)
        return {qMax(wide, 200), high + m_back->sizeHint().height()};
    return {4 * wide + 3 * kGap, 3 * high + 2 * kGap + m_back->sizeHint().height()};
}

QSize DayCalendar::sizeHint() const
{
    return minimumSizeHint() * 1.25;
}

// As many beside one another as leaves the months nearest to a square.
int DayCalendar::columns(const QSizeF& size) const
{
    if (m_span == Span::Month)
        return 1;
    int best = 4;
    double least = 1e9;
    for (const int count : {3, 4, 6}) {
        const double wide = size.width() / count;
        const double high = size.height() / (12.0 / count);
        const double off = std::abs(std::log(wide / qMax(1.0, high)));
        if (off < least) {
            least = off;
            best = count;
        }
    }
    return best;
}

QRectF DayCalendar::body() const
{
    return QRectF(rect()).adjusted(0, m_back->height() + 4, 0, 0);
}

QRectF DayCalendar::monthRect(const QRectF& where, int index) const
{
    const int across = columns(where.size());
    const int down = months() / across;
    const double wide = (where.width() - (across - 1) * kGap) / across;
    const double high = (where.height() - (down - 1) * kGap) / down;
    return {where.x() + (index % across) * (wide + kGap), where.y() + (index / across) * (high + kGap), wide,
        high};
}

QRectF DayCalendar::dayRect(const QRectF& month, QDate day) const
{
    const double wide = month.width() / 7;
    const double high = month.height() / kRowsOfMonth;
    return {month.x() + columnOf(day) * wide, month.y() + (rowOf(day) + 2) * high, wide, high};
}

QDate DayCalendar::dateAt(const QPointF& point) const
{
    for (int index = 0; index < months(); ++index) {
        const QRectF month = monthRect(body(), index);
        if (!month.contains(point))
            continue;
        const QDate first = m_first.addMonths(index);
        for (QDate day = first; day.month() == first.month(); day = day.addDays(1)) {
            if (dayRect(month, day).contains(point))
                return day;
        }
    }
    return {};
}

void DayCalendar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < months(); ++index)
        paintMonth(painter, monthRect(body(), index), m_first.addMonths(index), palette());
}

void DayCalendar::print(QPainter& painter, const QRectF& where) const
{
    QPalette onPaper(Qt::white);
    onPaper.setColor(QPalette::Base, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        onPaper.setColor(role, Qt::black);
    onPaper.setColor(QPalette::PlaceholderText, Qt::darkGray);
    onPaper.setColor(QPalette::Highlight, Qt::black);
    for (int index = 0; index < months(); ++index)
        paintMonth(painter, monthRect(where, index), m_first.addMonths(index), onPaper);
}

void DayCalendar::paintMonth(
    QPainter& painter, const QRectF& where, QDate first, const QPalette& palette) const
{
    const double high = where.height() / kRowsOfMonth;
    const double wide = where.width() / 7;
    const QFont usual = painter.font();
    if (m_span == Span::Year) {
        const QRectF title(where.x(), where.y(), where.width(), high - 1);
        if (!monthStyle(first.month()).isEmpty()) {
            QColor band = styleColor(first.month() - 1, palette);
            band.setAlpha(90);
            painter.setPen(Qt::NoPen);
            painter.setBrush(band);
            painter.drawRoundedRect(title, 3, 3);
        }
        QFont bold = usual;
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(palette.color(QPalette::Text));
        painter.drawText(title, Qt::AlignCenter, QLocale().standaloneMonthName(first.month()));
        painter.setFont(usual);
    }
    painter.setPen(palette.color(QPalette::PlaceholderText));
    const int letters = painter.fontMetrics().horizontalAdvance(u"Mon"_s) <= wide ? 2 : 1;
    for (int column = 0; column < 7; ++column) {
        const int weekday = (QLocale().firstDayOfWeek() - 1 + column) % 7 + 1;
        painter.drawText(QRectF(where.x() + column * wide, where.y() + high, wide, high), Qt::AlignCenter,
            QLocale().standaloneDayName(weekday, QLocale::ShortFormat).left(letters));
    }
    for (QDate day = first; day.month() == first.month() && day.isValid(); day = day.addDays(1))
        paintDay(painter, dayRect(where, day), day, palette);
}

void DayCalendar::paintDay(QPainter& painter, const QRectF& cell, QDate day, const QPalette& palette) const
{
    const QRectF inner = cell.adjusted(1, 1, -1, -1);
    const int style = m_dayStyles[size_t((day.month() - 1) * kDays + day.day() - 1)];
    painter.setPen(Qt::NoPen);
    if (style >= 0) {
        painter.setBrush(styleColor(style, palette));
        painter.drawRoundedRect(inner, 3, 3);
    }
    painter.setBrush(Qt::NoBrush);
    if (day == m_today) {
        painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 1, Qt::DotLine));
        painter.drawRoundedRect(inner, 3, 3);
    }
    if (day == m_selected) {
        painter.setPen(QPen(palette.color(QPalette::Highlight), hasFocus() ? 2.5 : 1.5));
        painter.drawRoundedRect(inner.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    painter.setPen(palette.color(isInRange(day) ? QPalette::Text : QPalette::PlaceholderText));
    painter.drawText(cell, Qt::AlignCenter, QString::number(day.day()));
}

void DayCalendar::mousePressEvent(QMouseEvent* event)
{
    const QDate day = event->button() == Qt::LeftButton ? dateAt(event->position()) : QDate();
    if (day.isValid())
        choose(day);
    else
        QWidget::mousePressEvent(event);
}

void DayCalendar::keyPressEvent(QKeyEvent* event)
{
    if (!m_selected.isValid() || (event->modifiers() & ~(Qt::KeypadModifier | Qt::ControlModifier))) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool control = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_Left: return choose(m_selected.addDays(-1));
    case Qt::Key_Right: return choose(m_selected.addDays(1));
    case Qt::Key_Up: return choose(m_selected.addDays(-7));
    case Qt::Key_Down: return choose(m_selected.addDays(7));
    case Qt::Key_Home: return choose(control ? m_today : QDate(m_selected.year(), m_selected.month(), 1));
    case Qt::Key_End: return choose(QDate(m_selected.year(), m_selected.month(), m_selected.daysInMonth()));
    case Qt::Key_PageUp: return turnBy(-1);
    case Qt::Key_PageDown: return turnBy(1);
    default: QWidget::keyPressEvent(event);
    }
}

void DayCalendar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeHead();
}

void DayCalendar::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void DayCalendar::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void DayCalendar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        placeHead();
}

} // namespace widgets
