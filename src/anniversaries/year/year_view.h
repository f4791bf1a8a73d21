#pragma once

#include "anniversaries/wishes/wish_text.h"
#include "anniversaries/year/year_sql.h"
#include "core/screen.h"

class QLabel;
class QPushButton;
class QSplitter;

namespace core {
class ContactTools;
class ToolSet;
} // namespace core

namespace widgets {
class DayCalendar;
class HeadingGrid;
} // namespace widgets

namespace anniversaries {

class TimedWishPanel;

/// What one view of the year has other than its twin.
struct YearVariant {
    YearKind kind;
    QStringView form;
    const char* title; ///< for translation
    QStringView help;
    QStringView heading;
    QStringView born; ///< behind the date, before the name
    QStringView letter; ///< the kind of letter
    bool byDateAtFirst; ///< the first list goes by the very date
};

/// A calendar of the year with every birthday marked, and beside it who was born on the day that is chosen
/// and under which sign.
class YearView : public core::Screen {
    Q_OBJECT

public:
    YearView(core::Context& context, const YearVariant& variant, QWidget* parent);

    void load() override;
    bool isTouched() const override;
    void bookChanged() override;

private:
    QWidget* layOutList();
    QWidget* layOutYear();
    QWidget* layOutLegend();
    void connectTools();
    void markDays();
    void listDay(QDate day);
    void toggleView();
    void fill(const QString& sql);
    QString dateColumn() const; ///< of what is listed
    void showRow();
    void tellOccasion();
    Wish currentWish() const;
    void timeWish(Occasion occasion);
    void writeLetter();
    void printYear();
    void popUpMenu(const QPoint& at);

    const YearVariant& m_variant;
    core::ToolSet* m_tools;
    core::ContactTools* m_contactTools;
    widgets::DayCalendar* SSYear1;
    widgets::HeadingGrid* Grid1;
    QSplitter* SSSplitter1;
    QLabel* lblsaka;
    QLabel* lblZodiac;
    QLabel* lblBday;
    QLabel* lblPerson;
    QLabel* lbldate;
    QPushButton* CmdView;
    TimedWishPanel* famTimedEmails;
    QString m_sql; ///< of what is listed
    bool m_showsAll = false;
};

/// Birthdays of the year.
class FormAviewbday : public YearView {
    Q_OBJECT

public:
    explicit FormAviewbday(core::Context& context, QWidget* parent = nullptr);
};

/// The year by its signs.
class FormZodiacYr : public YearView {
    Q_OBJECT

public:
    explicit FormZodiacYr(core::Context& context, QWidget* parent = nullptr);
};

} // namespace anniversaries
