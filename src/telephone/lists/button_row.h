#pragma once

#include <QString>

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace telephone {

/// A row without margins, for controls that stand beside one another.
QHBoxLayout* rowOf(QWidget* widget);
/// A button of such a row; Enter elsewhere does not press it.
QPushButton* makeButton(const QString& name, const QString& text, QStringView icon, const QString& toolTip);

} // namespace telephone
