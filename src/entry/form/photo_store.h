#pragma once

#include <QString>

namespace platform {
class Drive;
}

namespace entry {

/// Keeps a chosen picture by the rule of the settings: "Copy" and "Move" put it into the user's folder of
/// photos under a name that is free there, anything else leaves it where it is.
/// @param chosen a path of this computer
/// @return the path that the contact stores; where a copy or move fails, that of the file itself
QString storePhoto(const platform::Drive& drive, const QString& chosen, const QString& mode);

} // namespace entry
