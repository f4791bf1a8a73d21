#pragma once

#include "core/screen.h"
#include "telephone/codes/city_services.h"

class QLabel;
class QPushButton;

namespace core {
class ContactTools;
}

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace telephone {

/// The services of cities, such as police and help lines, and those of them that stand in the address book.
class FrmCityUtil : public core::Screen {
    Q_OBJECT

public:
    explicit FrmCityUtil(core::Context& context, QWidget* parent = nullptr);
    ~FrmCityUtil() override;

    void load() override;
    void bookChanged() override;

private:
    void layOut();
    QString city() const; ///< that is chosen; blank for none
    void chooseCity();
    void readServices();
    void showService(int row);
    void clickService();
    void readSaved();
    void turnSaved();
    void copyToBook();
    void call();

    SavedBy m_savedBy = SavedBy::City;
    QString m_listedCity;
    CityService m_service; ///< that is shown; without an id for none
    core::ContactTools* m_tools;
    widgets::HeadingGrid* FG1;
    widgets::HeadingGrid* FG2;
    widgets::FilledCombo* DBCity = nullptr;
    widgets::FilledCombo* DBCategory = nullptr;
    widgets::FilledCombo* DBCombo1 = nullptr;
    QPushButton* CmdCall = nullptr;
    QPushButton* SSCommand4 = nullptr;
};

} // namespace telephone
