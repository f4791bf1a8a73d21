#pragma once

#include "jet/database.h"

#include <QString>

/// The person's short list of cities, and the shipped ones from which it is made.
namespace setup {

enum class CityTable { National, International };

QString frequentCitiesSql(CityTable scope);
QString placesSql(CityTable scope); ///< states of the home country, or countries
/// The cities of a state or a country, all of them without one; perhaps only the main ones.
QString availableCitiesSql(CityTable scope, const QString& place, bool mainOnly);
QString defaultCitySql();
QString citiesForDefaultSql();

enum class CityAdded { Yes, Known, Failed };
/// Puts a city behind the others of its kind.
CityAdded addFrequentCity(jet::Database& data, CityTable scope, const QString& city);
enum class CityRemoved { Yes, IsDefault, Failed };
/// Removes a row of the frequent cities; the default city stays, since there is always one.
CityRemoved removeFrequentCity(jet::Database& data, CityTable scope, int row, const QString& city);
/// Makes a city of the short list the only default; without such a city the default stays.
bool setDefaultCity(jet::Database& data, const QString& city);

} // namespace setup
