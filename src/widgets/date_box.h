#pragma once

#include <QDate>
#include <QLineEdit>

#include <optional>

namespace widgets {

/// A date in one of the patterns "dd MMM-yyyy", "MMM dd-yyyy", "dd-MMM-yyyy", "dd/MMM/yyyy", "dd-MMM-yy",
/// "MMM-dd-yy", with English months in every locale; "" for an invalid date.
QString formatDate(QDate date, QStringView pattern);

/// A date as a person types it: with the month as a word in any place, as 1990-02-01, or as three numbers, of
/// which the first is the day or the month (and the other when it is over 12). Two-digit years 00 to 29 are
/// 20xx.
enum class DateOrder { DayFirst, MonthFirst };
std::optional<QDate> readDate(QStringView text, DateOrder order);

/// A date field that may be empty, with a calendar behind a button (or F4, or Alt+Down).
///
/// What was typed is never lost: a text that is no date stays, in red, and counts as no date. A date is shown
/// in the box's format when the field is left.
class DateBox : public QLineEdit {
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

    void setFormat(const QString& pattern); ///< also says whether the day or the month comes first
    QString format() const { return m_format; }

    std::optional<QDate> date() const;
    void setDate(const std::optional<QDate>& date);
    bool isValidOrEmpty() const;
    void showCalendar();

Q_SIGNALS:
    void dateChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    DateOrder order() const;
    void followText();
    void tidy();
    void mark();

    QString m_format;
    std::optional<QDate> m_exact; ///< what was set, as a two-digit year does not tell its century
    std::optional<QDate> m_last;
    bool m_wrong = false;
    QString m_toolTip; ///< its own, while the one about a wrong date is shown
};

} // namespace widgets
