#pragma once

#include <QDate>
#include <QStringList>
#include <QWidget>

#include <array>

class QLabel;
class QToolButton;

namespace widgets {

/// Days at a glance, one month or the twelve of a year. A day may have a style, the same in every year; one
/// day is chosen. Arrows, Home, End, PageUp and PageDown walk, Ctrl+Home goes to today.
class DayCalendar : public QWidget {
    Q_OBJECT

public:
    enum class Span { Month, Year };

    explicit DayCalendar(Span span, QWidget* parent = nullptr);

    void setToday(QDate today); ///< chosen too, as long as no other day is
    /// The names of the styles, each with a colour of its own, at most six.
    void setStyles(const QStringList& names);
    /// The colour of a style by its number, for a legend; apart from one another in both looks.
    static QColor styleColor(int style, const QPalette& palette);
    /// The titles of the months get a band of these styles, one a month.
    void setMonthStyles(const QStringList& names);

    void clearDays();
    /// The style given last is the one a day has; one that was not named leaves it without.
    void setDayStyle(int month, int day, const QString& style);
    QString styleOf(int month, int day) const;
    QString monthStyle(int month) const { return m_monthStyles.value(month - 1); }

    QDate selectedDate() const { return m_selected; }
    void setSelectedDate(QDate date); ///< turns to its page and tells of that page only
    QDate firstShown() const { return m_first; } ///< of the month or year in sight
    /// Nothing can be chosen or turned to outside of it; invalid dates end it.
    void setRange(QDate first, QDate last);

    /// The page in sight, in the light look, as large as the rectangle allows.
    void print(QPainter& painter, const QRectF& where) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void dateSelected(QDate date); ///< by the person, also when it was chosen already
    void pageShown(QDate first);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    static constexpr int kDays = 31;

    int months() const { return m_span == Span::Month ? 1 : 12; }
    int columns(const QSizeF& size) const;
    QRectF body() const;
    QRectF monthRect(const QRectF& where, int index) const;
    QRectF dayRect(const QRectF& month, QDate day) const;
    QDate dateAt(const QPointF& point) const;
    void paintMonth(QPainter& painter, const QRectF& where, QDate first, const QPalette& palette) const;
    void paintDay(QPainter& painter, const QRectF& cell, QDate day, const QPalette& palette) const;
    void turnTo(QDate date);
    void turnBy(int pages);
    void choose(QDate date);
    void placeHead();
    void describe();
    bool isInRange(QDate date) const;

    Span m_span;
    QToolButton* m_back;
    QToolButton* m_ahead;
    QToolButton* m_now;
    QLabel* m_title;
    QStringList m_styles;
    QStringList m_monthStyles;
    std::array<signed char, 12 * kDays> m_dayStyles; ///< -1 for none
    QDate m_first;
    QDate m_selected;
    QDate m_today;
    QDate m_from;
    QDate m_to;
};

} // namespace widgets
