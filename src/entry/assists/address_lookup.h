#pragma once

#include "jet/database.h"

#include <QString>

#include <optional>

namespace entry {

/// What a city tells about an address. A column that is null says nothing and leaves the field as it is.
struct CityFacts {
    std::optional<QString> state;
    std::optional<QString> region;
    std::optional<QString> std;
    std::optional<QString> pin;
    std::optional<QString> country;
    bool inHomeCountry = false; ///< then the country goes to all address sets
};

/// Looks a city up in the table of its country; without a country the national mode chooses the table.
/// Nothing when the city is not known: state, pin and code of the address are then to be cleared.
std::optional<CityFacts> lookUpCity(
    jet::Database& info, const QString& city, const QString& country, bool nationalMode);

/// The region of a picked city, blank when null or not known; nothing when the look-up itself failed.
QString regionOfCity(jet::Database& info, const QString& city, const QString& country);
/// The full name of the state of a city in the United States.
QString fullStateOfCity(jet::Database& info, const QString& city);

} // namespace entry
