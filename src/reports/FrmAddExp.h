#pragma once

#include "core/screen.h"
#include "reports/export_columns.h"

class QLabel;
class QListWidget;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace reports {

/// Exports the address book by columns that the person chooses and puts in order, as a workbook, a CSV or
/// text file or a web page. What was chosen last is remembered on this computer.
class FrmAddExp : public core::Screen {
    Q_OBJECT

public:
    explicit FrmAddExp(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    void vocabulariesChanged() override;

private:
    void layOut();
    void fillColumns();
    void fillFilters();
    QStringList chosenColumns() const;
    QStringList chosenCaptions() const;
    QStringList rememberedColumns() const;
    void rememberColumns() const;
    QString settingsFile() const;
    void tickAll(bool ticked);
    void moveColumn(int by);
    ExportFilter filter() const;
    void showSample();
    void exportBook();

    QListWidget* LstColumns;
    widgets::FilledCombo* CmbCategory = nullptr;
    widgets::FilledCombo* CmbSubCategory = nullptr;
    widgets::FilledCombo* CmbPriority = nullptr;
    widgets::HeadingGrid* FG1;
    QLabel* lblCount = nullptr;
    bool m_isFilling = false;
};

} // namespace reports
