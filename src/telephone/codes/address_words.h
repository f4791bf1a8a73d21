#pragma once

#include <QString>

namespace telephone {

/// Stored addresses that begin as a word. Those marked 'C' are for the home country.
QString addressWordsSql(const QString& word, bool nationalMode);
QString cityAreasSql(const QString& city);

} // namespace telephone
