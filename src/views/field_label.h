#pragma once

class QLabel;
class QString;
class QWidget;

namespace views {

/// The label that the form kit made for a field of that name.
QLabel* fieldLabel(const QWidget* page, const QString& field);
/// Gives the field another label, also for those who have it read to them.
void showFieldLabel(const QWidget* page, const QString& field, const QString& text);

/// What the full view calls the first and the second work address. The other screens count them the other way
/// round, so each says which one it is there.
QString workTitle(int number);

} // namespace views
