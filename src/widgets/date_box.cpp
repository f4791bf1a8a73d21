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
#include <array>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 12> Months{u"january", u"february", u"march", u"april", u"may", u"june",
    u"july", u"august", u"september", u"october", u"november", u"december"};
constexpr int ShortestMonth = 3;
constexpr int FirstYear = 100; ///< what is stored of an earlier one reads as a year of two digits

/// The number of an English month, written out or cut after its third letter or later; 0 when it is none.
int monthOf(QStringView word)
{
    if (word.size() < ShortestMonth)
        return 0;
    for (size_t i = 0; i < Months.size(); ++i) {
        if (Months[i].startsWith(word, Qt::CaseInsensitive))
            return static_cast<int>(i) + 1;
    }
    return word.compare(u"sept", Qt::CaseInsensitive) == 0 ? 9 : 0;
}

/// Runs of letters and runs of digits; nothing when there is anything but date punctuation between them.
QStringList pieces(QStringView text)
{
    QStringList found;
    bool inPiece = false;
    for (const QChar c : text) {
        const bool digit = c >= u'0' && c <= u'9';
        if (digit || c.isLetter()) {
            const bool sameKind = inPiece && found.constLast().back().isLetter() != digit;
            if (sameKind)
                found.last() += c;
            else
                found += QString(c);
            inPiece = true;
        } else if (c.isSpace() || c == u'-' || c == u'/' || c == u'.' || c == u',') {
            inPiece = false;
        } else {
            return {};
        }
    }
    return found;
}

std::optional<int> yearOf(const QString& digits)
{
    const int year = digits.toInt();
    if (digits.size() == 4 && year >= FirstYear)
        return year;
    if (digits.size() != 2)
        return {};
    return year < 30 ? 2000 + year : 1900 + year;
}

std::optional<QDate> dateOf(const QString& year, int month, const QString& day, QDate latest)
{
    const auto fullYear = yearOf(year);
    if (!fullYear || day.size() > 2)
        return {};
    QDate date(*fullYear, month, day.toInt());
    if (year.size() == 2 && latest.isValid() && date > latest)
        date = QDate(*fullYear - 100, month, day.toInt());
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::function<QDate()>& todaysDate()
{
    static std::function<QDate()> today = &QDate::currentDate;
    return today;
}

} // namespace

QString formatDate(QDate date, QStringView pattern)
{
    if (!date.isValid())
        return {};
    // The C locale has English months; a small m would be minutes.
    return QLocale::c().toString(date, pattern.toString().replace(u'm', u'M'));
}

std::optional<QDate> readDate(QStringView text, DateOrder order, QDate latest)
{
    const QStringList parts = pieces(text);
    if (parts.size() != 3)
        return {};

    for (int i = 0; i < 3; ++i) {
        if (!parts[i].front().isLetter())
            continue;
        const int month = monthOf(parts[i]);
        const QString& first = parts[i == 0 ? 1 : 0];
        const QString& second = parts[i == 2 ? 1 : 2];
        if (month == 0 || first.front().isLetter() || second.front().isLetter())
            return {};
        return first.size() == 4 ? dateOf(first, month, second, latest)
                                 : dateOf(second, month, first, latest);
    }

    if (parts[0].size() == 4)
        return dateOf(parts[0], parts[1].toInt(), parts[2], latest);
    if (parts[0].size() > 2 || parts[1].size() > 2)
        return {};
    QString day = parts[order == DateOrder::DayFirst ? 0 : 1];
    QString month = parts[order == DateOrder::DayFirst ? 1 : 0];
    if (month.toInt() > 12)
        std::swap(day, month);
    return dateOf(parts[2], month.toInt(), day, latest);
}

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

DateOrder DateBox::order() const
{
    return m_format.startsWith(u'd', Qt::CaseInsensitive) ? DateOrder::DayFirst : DateOrder::MonthFirst;
}

std::optional<QDate> DateBox::date() const
{
    if (m_exact && text() == formatDate(*m_exact, m_format))
        return m_exact;
    return readDate(text(), order(), todaysDate()());
}

void DateBox::setDate(const std::optional<QDate>& date)
{
    m_exact = date;
    setText(date ? formatDate(*date, m_format) : QString());
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
        widest
            = std::max(widest, fontMetrics().horizontalAdvance(formatDate(QDate(2000, month, 28), m_format)));
    return {widest + IconAndEdges, QLineEdit::minimumSizeHint().height()};
}

QString DateBox::complaint() const
{
    return tr("This is not a date. Write it like %1.").arg(formatDate(QDate(1990, 2, 1), m_format));
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
    if (const auto typed = date(); typed && formatDate(*typed, m_format) != text())
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
    calendar->setSelectedDate(date().value_or(todaysDate()()));
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
