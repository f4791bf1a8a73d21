#pragma once

#include "core/screen.h"
#include "telephone/lists/phone_list_sql.h"

class QLabel;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// Writes the numbers of the telephone lists, or a part of them, to a text file that other devices read.
class FrmTelTxt : public core::Screen {
    Q_OBJECT

public:
    explicit FrmTelTxt(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;

private:
    NumberFilter filter() const;
    void readNumbers();
    void clearFilter();
    void exportNumbers();

    widgets::HeadingGrid* FG1;
    widgets::FilledCombo* cmbgcat;
    widgets::FilledCombo* cmbgcity;
    widgets::FilledCombo* cmbpriority;
    QLabel* m_count;
    QString m_sql; ///< of the list that is shown
};

} // namespace telephone
