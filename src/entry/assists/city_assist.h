#pragma once

#include "jet/database.h"

#include <QString>
#include <QStringList>

namespace entry {

/// What the city tab of the assist offers.
enum class CityScope { All, Usa, India };

struct CityScopeLists {
    QStringList countries;
    QStringList states; ///< empty when the scope has no states
    QString country; ///< the one country of the scope; empty for all
};

/// The countries and states to choose from. `mainOnly` leaves the main countries, for the scope "all".
CityScopeLists cityScopeLists(jet::Database& info, CityScope scope, bool mainOnly);

struct CityChoice {
    QString country; ///< or "All"
    QString state; ///< or "All", or empty
    bool mainOnly = false;
    bool nationalMode = false;
};

/// The statement of the city list.
QString cityListSql(const CityChoice& choice);

/// The names of the other tabs.
QString firstNamesSql(bool nationalMode);
QString lastNamesSql(bool nationalMode);
QString companiesSql(bool nationalMode);

/// The first names that suit a spouse: of the other sex, all when the sex tells nothing.
QString spouseNamesSql(const QString& sex, bool nationalMode);
QString genderSql(const QString& firstName);

} // namespace entry
