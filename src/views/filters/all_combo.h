#pragma once

#include <QString>
#include <QStringList>

namespace jet {
class Database;
}

namespace widgets {
class FilledCombo;
}

namespace views {

/// "All" and the values that a statement gives; rows without a value are left out.
QStringList valuesWithAll(jet::Database& book, const QString& sql);

/// Has "All" taken whole when the combo gets the focus, so that the first letter replaces it.
void takeAllWhole(widgets::FilledCombo* combo);

} // namespace views
