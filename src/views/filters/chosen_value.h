#pragma once

#include <QString>

namespace views {

/// What stands first in every list of values, and means that any value will do.
inline constexpr QStringView kAll = u"All";

/// "All", in any case, and blanks are no condition.
inline bool isChosen(const QString& value)
{
    return !value.trimmed().isEmpty() && value.compare(kAll, Qt::CaseInsensitive) != 0;
}

} // namespace views
