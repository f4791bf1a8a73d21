#pragma once

#include <QString>

namespace core {

/// The n-th item, from 1, of a text split on a mark; empty when there are fewer.
QString PickByComma(QStringView text, int n);
QString PickByDash(QStringView text, int n);

/// "BEFORE" is "<", "AFTER" is ">", in any case and with blanks round it; anything else is "=".
QString FormatOperator(QStringView word);

QString LeftOfLastBackslash(const QString& path); ///< the folder of a path; empty without a backslash
QString AfterLastBackslash(const QString& path); ///< the file name of a path

} // namespace core
