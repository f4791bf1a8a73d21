#pragma once

#include "core/setup/city_statements.h"
#include "core/setup_panel.h"

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
class RecordList;
} // namespace widgets

namespace setup {

/// The frequent cities beside those of the world, from which they are chosen, and the default city.
class CityPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit CityPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;

private:
    void layOut();
    QWidget* layOutFrequent();
    QWidget* layOutAvailable();
    QWidget* layOutMiddle();
    void connectControls();
    CityTable scope() const;
    void scopeChanged();
    void readFrequent(const QString& current);
    void readAvailable();
    void add();
    void remove();
    void showDefault();
    void changeDefault();

    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QCheckBox* Check3 = nullptr;
    widgets::FilledCombo* m_place = nullptr;
    widgets::FilledCombo* DBCombo1 = nullptr;
    widgets::HeadingGrid* DataGrid;
    widgets::RecordList* m_available;
    QPushButton* LblAdd;
    QPushButton* CmdCityDel;
    QLabel* m_placeLabel = nullptr;
    QLabel* m_hint;
};

} // namespace setup
