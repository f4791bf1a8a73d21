#pragma once

#include <QStringList>

namespace jet {
class Database;
}

namespace views {

/// What the person calls the three fields of free meaning; those without a name of their own are numbered.
QStringList userLabels(jet::Database& data);

} // namespace views
