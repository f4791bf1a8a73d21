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

/// The values of a combo depend on the text of another. What that one no longer has becomes "All", before
/// anybody who listens to it later reads the choices.
void followChoice(widgets::FilledCombo* combo, widgets::FilledCombo* narrowing);

/// Has "All" taken whole when the combo gets the focus, so that the first letter replaces it.
void takeAllWhole(widgets::FilledCombo* combo);

} // namespace views
