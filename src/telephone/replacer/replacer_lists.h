#pragma once

#include <QString>

namespace telephone {

// What the lists of the replacer show: `id`, `name`, and what is replaced.
QString codesSql();
/// The codes that begin so.
QString codesBeginningSql(const QString& begin);
QString citiesSql();
QString citiesBeginningSql(const QString& begin);
QString contactsOfCitySql(const QString& city);
/// All cities of the book, at home and at work.
QString allCitiesSql();

} // namespace telephone
