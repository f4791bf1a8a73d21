#pragma once

#include "core/screen.h"
#include "telephone/codes/place_codes_sql.h"

class QLabel;
class QLineEdit;
class QRadioButton;
class QTabBar;

namespace widgets {
class FilledCombo;
class HeadingGrid;
class RecordList;
} // namespace widgets

namespace telephone {

/// Finds the codes of a country and of its cities all over the world, and the places that have a code.
class Frmintstd : public core::Screen {
    Q_OBJECT

public:
    explicit Frmintstd(core::Context& context, QWidget* parent = nullptr);

    void load() override;

private:
    void layOut();
    void offerValues();
    CodeKind kind() const;
    void showTab();
    void takeListed(int row);
    void chooseCountry();
    void chooseState();
    void showCity();
    void showCountryCode(const QString& country);
    void showPlaces();
    void followKind();
    void takePlace(int row);
    QString firstText(const QString& sql) const;
    void setQuietly(widgets::FilledCombo* combo, const QString& text);

    QTabBar* SSActiveTabs1;
    widgets::RecordList* list1;
    widgets::HeadingGrid* m_places;
    widgets::FilledCombo* m_country = nullptr;
    widgets::FilledCombo* m_state = nullptr;
    widgets::FilledCombo* DBCombo1 = nullptr;
    widgets::FilledCombo* DBCombo2 = nullptr;
    widgets::FilledCombo* DBCombo3 = nullptr;
    QLineEdit* txtisd = nullptr;
    QLineEdit* txtstd = nullptr;
    QLineEdit* txtPin = nullptr;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QLabel* m_found = nullptr;
};

} // namespace telephone
