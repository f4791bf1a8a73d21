#pragma once

#include "anniversaries/list/day_list.h"
#include "anniversaries/wishes/send_wish.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"

class QBoxLayout;
class QPushButton;
class QRadioButton;
class QSplitter;
class QTabBar;

namespace core {
class ContactTools;
class ToolSet;
} // namespace core

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace anniversaries {

class CopyPanel;
class DayDetail;
class MonthPanel;
class TimedWishPanel;

/// All birthdays, or all anniversaries, of the book in calendar order, beside a month. From here wishes are
/// sent, and days copied to the scheduler.
class frmbday : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit frmbday(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void openPage(const QString& page) override; ///< "Birthday" or "Anniversary"
    bool isTouched() const override;
    void bookChanged() override;
    void vocabulariesChanged() override;
    /// Opens the panel that copies days to the scheduler; in the short list there is none.
    void beginCopy();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* layOutList();
    QWidget* layOutFilters();
    QWidget* layOutSide();
    QWidget* layOutFoot();
    QPushButton* toolButton(const QString& name, const QString& text, QStringView tool);
    void settleSide();
    void connectTools();
    void connectControls();

    void showView(const ListView& view);
    void showDepth();
    void showEmptyText();
    void followFilter();
    void viewAll();
    void rowChanged();
    void goToDay(QDate day);
    void copyEnded();
    Wish currentWish() const;
    void sendLetter();
    void timeWishOfRow();
    void print();
    void exportGrid();
    void popUpMenu(const QPoint& at);

    core::ToolSet* m_tools;
    core::ContactTools* m_contactTools;
    widgets::HeadingGrid* FGBday;
    DayList* m_list;
    QTabBar* SSActiveTabs1;
    QTabBar* ssTabMerge;
    QRadioButton* OptAll;
    QRadioButton* Opt60;
    widgets::FilledCombo* DBCcat;
    widgets::FilledCombo* DBCPriority;
    QWidget* m_categoryFilter = nullptr;
    MonthPanel* m_month;
    DayDetail* m_detail;
    CopyPanel* Frame7;
    TimedWishPanel* famTimedEmails;
    QSplitter* m_splitter;
    QWidget* m_side = nullptr; ///< month, current day and what can be done with it
    QBoxLayout* m_sideLayout = nullptr;
    bool m_isRead = false;
};

} // namespace anniversaries
