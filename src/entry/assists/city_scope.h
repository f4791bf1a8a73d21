#pragma once

#include "entry/assists/city_assist.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace entry {

/// The choice of the cities to list: a scope, a country of it, a state of that. It reads its lists when it is
/// told to fill.
class CityScopePanel : public QWidget {
    Q_OBJECT

public:
    enum class MainCities { Offered, NotOffered };

    CityScopePanel(
        jet::Database& info, const QString& indiaCaption, MainCities mainCities, QWidget* parent = nullptr);

    /// Of all its countries, and nothing is read yet.
    void select(CityScope scope);
    void fill();
    bool isFilled() const { return m_filled; }

    QString country() const;
    CityChoice choice(bool nationalMode) const;

Q_SIGNALS:
    /// Other cities are to be listed.
    void changed();
    /// A person chose a scope; empty for all countries.
    void scopeChosen(const QString& country);

private:
    void layOut(MainCities mainCities);

    jet::Database& m_info;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QRadioButton* Option3;
    QCheckBox* chkType;
    QComboBox* cboCountry;
    QComboBox* cboState;
    CityScope m_scope = CityScope::All;
    bool m_filled = false;
};

} // namespace entry
