#pragma once

#include <QString>

/// The statements that find codes by places and places by codes, in the home country and in the world.
namespace telephone {

enum class CodeKind { Telephone, Pin };

namespace home {

QString codesSql(CodeKind kind);
QString statesSql();
/// @param state "All" or blank for the cities of all states
QString citiesSql(const QString& state);
QString cityFactsSql(const QString& city);
QString placesOfCodeSql(CodeKind kind, const QString& code);

} // namespace home

namespace world {

QString codesSql(CodeKind kind);
QString countriesSql();
QString statesSql(); ///< of all countries
QString citiesSql(); ///< of all states

// What is narrowed down by a country; "All" or blank stands for all of them.
QString statesOfSql(const QString& country);
QString citiesOfCountrySql(const QString& country);
QString citiesOfStateSql(const QString& state);

QString countryCodeSql(const QString& country);
QString countryOfStateSql(const QString& state);
QString cityFactsSql(const QString& city);
QString countryOfCitySql(const QString& city);
QString placesOfCodeSql(const QString& code);
QString countryOfIdSql(const QString& id);
QString countriesOfPinSql(const QString& form);

} // namespace world

} // namespace telephone
