#pragma once

#include <QString>

namespace core {

/// The pattern in which dates are shown: "dd MMM-yyyy" in the home country, otherwise "MMM dd-yyyy".
inline QString datePattern(bool nationalMode)
{
    return nationalMode ? QStringLiteral("dd MMM-yyyy") : QStringLiteral("MMM dd-yyyy");
}

/// The short pattern of the full view.
inline QString shortDatePattern(bool nationalMode)
{
    return nationalMode ? QStringLiteral("dd-MMM-yy") : QStringLiteral("MMM-dd-yy");
}

} // namespace core
