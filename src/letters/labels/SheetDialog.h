#pragma once

#include "core/context.h"
#include "output/labels/label_sheet.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace letters {

class SheetPicture;

/// The measures of a sheet of labels, as a person reads them off it, in millimetres or inches. It can be
/// stored when the labels fit on the paper.
class SheetDialog : public QDialog {
    Q_OBJECT

public:
    /// @param taken names of other sheets, which this one can not have
    SheetDialog(core::Context& context, const output::LabelSheet& sheet, const QStringList& taken,
        QWidget* parent = nullptr);

    output::LabelSheet sheet() const;
    void reject() override; ///< asks when something was changed

private:
    void layOut();
    void showSheet();
    void choosePaper(int paper);
    void chooseUnit();
    void follow();
    double unit() const; ///< in twips

    core::Context& m_context;
    output::LabelSheet m_sheet;
    bool m_isChanged = false; ///< by the person
    QStringList m_taken;
    QLineEdit* txtSheetName;
    QComboBox* cmbPaper;
    QComboBox* cmbUnit;
    QSpinBox* spnColumns;
    QSpinBox* spnRows;
    QList<QDoubleSpinBox*> m_measures; ///< in the order of the table in the source
    QLabel* lblComplaint;
    SheetPicture* m_picture;
    QDialogButtonBox* m_buttons;
    double m_shownUnit;
    bool m_isShowing = false;
};

} // namespace letters
