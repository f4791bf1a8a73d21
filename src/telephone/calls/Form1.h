#pragma once

#include "core/screen.h"
#include "telephone/calls/call_statements.h"

class QLabel;
class QPushButton;
class QTabBar;

namespace core {
class ListPresenter;
class ToolSet;
} // namespace core

namespace widgets {
class DateBox;
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

class CallSavePanel;

/// The record of calls: all of them, by person, by month, and those that are still to be made. A call can be
/// dialled again, mended, deleted and printed.
class Form1 : public core::Screen {
    Q_OBJECT

public:
    explicit Form1(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    bool isTouched() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum Tab { kCalls, kByPerson, kByMonth, kToMake };

    void layOut();
    void connectControls();
    void connectTools();
    QStringList choices(int column) const;

    void showTab();
    void openList(const QString& sql);
    void filterBy(CallFilter filter, const widgets::FilledCombo* combo);
    void resetFilters();
    void narrow();
    void showAllDates();
    void followList();

    void callAgain();
    void editCall();
    void closeEditor();
    void finishCall();
    void deleteCall();
    void print(int report);

    core::ToolSet* m_tools;
    QTabBar* sstab1;
    widgets::HeadingGrid* FG1;
    core::ListPresenter* m_list;
    widgets::FilledCombo* Combo1 = nullptr;
    widgets::FilledCombo* CmbPurpose = nullptr;
    widgets::FilledCombo* CmbResponse = nullptr;
    widgets::DateBox* m_from = nullptr;
    widgets::DateBox* m_to = nullptr;
    QPushButton* m_show;
    QPushButton* m_allDays;
    CallSavePanel* m_editor;
    QLabel* m_count = nullptr;
    QString m_dates; ///< the condition that narrows the lists
    bool m_isResetting = false;
};

} // namespace telephone
