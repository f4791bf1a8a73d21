#pragma once

#include "core/screen.h"
#include "telephone/codes/place_codes_sql.h"

class QLineEdit;
class QRadioButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// Finds the telephone and pin codes of an Indian city, and the cities of such a code.
class frmstd : public core::Screen {
    Q_OBJECT

public:
    explicit frmstd(core::Context& context, QWidget* parent = nullptr);

    void load() override;

private:
    void layOut();
    CodeKind kind() const;
    void showCodes();
    void showPlaces();
    void followKind();
    void takePlace(int row);

    widgets::FilledCombo* m_state = nullptr;
    widgets::FilledCombo* DBCombo1 = nullptr;
    widgets::FilledCombo* DBCombo2 = nullptr;
    widgets::FilledCombo* DBCombo3 = nullptr;
    QLineEdit* txtstd = nullptr;
    QLineEdit* txtPin = nullptr;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    widgets::HeadingGrid* m_places;
};

} // namespace telephone
