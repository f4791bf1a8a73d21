#pragma once

#include <QString>

class QAbstractItemView;
class QCalendarWidget;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

namespace widgets {
class HeadingGrid;
}

/// What a person does with a screen, by the names of its controls. A control that is out of sight or can not
/// be used ends the test, whatever the program would have made of it.
namespace support {

/// The control of that name, on the page of tabs where it stands.
QWidget* reach(const QWidget* screen, const QString& name);
void click(const QWidget* screen, const QString& name);
/// In place of what stands in the field.
void type(const QWidget* screen, const QString& name, const QString& text);
/// From the list that drops down.
void choose(const QWidget* screen, const QString& combo, const QString& value);
void clickRow(QAbstractItemView* list, int row, int column = 0);
void doubleClickRow(QAbstractItemView* list, int row, int column = 0);
/// The branch at the end of the path, and the branches on the way opened.
QTreeWidgetItem* branchOf(const QTreeWidget* tree, const QStringList& path);
QStringList textsBelow(const QTreeWidgetItem* branch);
/// The link that holds the text.
void clickLink(QTextBrowser* page, const QString& text);
void clickDay(QCalendarWidget* calendar, int day); ///< of the month that it shows

/// The keys of all rows, with commas between.
QString keysOf(const widgets::HeadingGrid* grid);
QStringList headingsOf(const widgets::HeadingGrid* grid); ///< of the columns in sight
/// Whether a label in sight holds the text.
bool isTold(const QString& text);

} // namespace support
