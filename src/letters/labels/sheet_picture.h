#pragma once

#include "output/labels/label_sheet.h"

#include <QWidget>

namespace letters {

/// A sheet of labels in small. The label at which printing begins is shown, and chosen by a click or the
/// arrow keys; those before it are used up.
class SheetPicture : public QWidget {
    Q_OBJECT

public:
    explicit SheetPicture(QWidget* parent = nullptr);

    void setSheet(const output::LabelSheet& sheet);
    void setFirstLabel(int label); ///< from 0
    int firstLabel() const { return m_first; }
    /// For a sheet that is being measured nothing is chosen.
    void setMayChoose(bool may);
    /// Where a label stands in the picture.
    QRectF labelPlace(int label) const;

    QSize sizeHint() const override { return {150, 190}; }
    QSize minimumSizeHint() const override { return {110, 140}; }

Q_SIGNALS:
    void firstLabelChosen(int label);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRectF paperPlace() const;
    int labelAt(QPointF place) const; ///< -1 beside the labels
    void choose(int label);

    output::LabelSheet m_sheet;
    int m_first = 0;
    bool m_mayChoose = true;
};

} // namespace letters
