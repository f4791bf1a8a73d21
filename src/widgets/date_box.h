#pragma once

#include "jet/date_text.h"

#include <QDate>
#include <QLineEdit>

#include <functional>
#include <optional>

namespace widgets {

/// A date field that may be empty, with a calendar behind a button (or F4, or Alt+Down).
///
/// What was typed is never lost: a text that is no date stays, marked in red, until it is mended; leaving the
/// box says so beside it, and a form asks firstBad() before it saves. A date is shown in the box's format
/// when the field is left. Two digits for a year mean one that has been, as these are birthdays and wedding
/// days.
class DateBox : public QLineEdit {
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

    void setFormat(const QString& pattern); ///< also says whether the day or the month comes first
    QString format() const { return m_format; }

    std::optional<QDate> date() const;
    void setDate(const std::optional<QDate>& date);
    bool holdsBadText() const; ///< neither a date nor nothing
    void showCalendar();
    QSize minimumSizeHint() const override; ///< a whole date

    /// The first box of a form whose text is no date; none when there is nothing to mend.
    static DateBox* firstBad(const QWidget* form);
    /// Turns to the page of the box, takes the focus to it and says what is wrong beside it.
    void askToMend();

    /// Where the boxes have the day of today from. Untold they know none, and a year of two digits may lie
    /// ahead.
    static void setToday(std::function<QDate()> today);

Q_SIGNALS:
    void dateChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    jet::DateOrder order() const;
    void followText();
    void tidy();
    void mark();
    QString complaint() const;

    QString m_format;
    std::optional<QDate> m_exact; ///< what was set, as a two-digit year does not tell its century
    std::optional<QDate> m_last;
    bool m_wrong = false;
    QString m_toolTip; ///< its own, while the one about a wrong date is shown
};

} // namespace widgets
