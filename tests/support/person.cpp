#include "support/person.h"

#include "widgets/fields.h"
#include "widgets/heading_grid.h"

#include <QtTest>
#include <QtWidgets>

namespace support {

QWidget* reach(const QWidget* screen, const QString& name)
{
    auto* control = widgets::child<QWidget>(screen, name);
    for (QWidget* page = control; page; page = page->parentWidget()) {
        auto* tabs = page->parentWidget() ? qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget())
                                          : nullptr;
        if (tabs && tabs->indexOf(page) >= 0)
            tabs->setCurrentIndex(tabs->indexOf(page));
    }
    if (!control->isVisible() || !control->isEnabled())
        qFatal("out of reach: %s", qUtf8Printable(name));
    return control;
}

void click(const QWidget* screen, const QString& name)
{
    QWidget* control = reach(screen, name);
    // The mark and its words are narrower than the room that they have.
    const bool isMark = qobject_cast<QRadioButton*>(control) || qobject_cast<QCheckBox*>(control);
    QTest::mouseClick(control, Qt::LeftButton, {}, isMark ? QPoint(8, control->height() / 2) : QPoint());
}

void type(const QWidget* screen, const QString& name, const QString& text)
{
    QWidget* field = reach(screen, name);
    if (auto* combo = qobject_cast<QComboBox*>(field))
        field = combo->lineEdit();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

void choose(const QWidget* screen, const QString& name, const QString& value)
{
    auto* combo = qobject_cast<QComboBox*>(reach(screen, name));
    QTest::keyClick(combo, Qt::Key_F4);
    const int row = combo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row < 0 || !combo->view()->isVisible())
        qFatal("not in the list of %s: %s", qUtf8Printable(name), qUtf8Printable(value));
    combo->view()->setCurrentIndex(combo->model()->index(row, combo->modelColumn()));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void clickRow(QAbstractItemView* list, int row, int column)
{
    const QModelIndex index = list->model()->index(row, column);
    if (!index.isValid())
        qFatal("no row %d", row);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

void doubleClickRow(QAbstractItemView* list, int row, int column)
{
    clickRow(list, row, column);
    QTest::mouseDClick(
        list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(row, column)).center());
}

QTreeWidgetItem* branchOf(const QTreeWidget* tree, const QStringList& path)
{
    QTreeWidgetItem* branch = tree->topLevelItem(0);
    for (const QString& step : path) {
        branch->setExpanded(true);
        const qsizetype at = textsBelow(branch).indexOf(step);
        if (at < 0)
            qFatal("no branch %s", qUtf8Printable(step));
        branch = branch->child(int(at));
    }
    branch->setExpanded(true);
    return branch;
}

QStringList textsBelow(const QTreeWidgetItem* branch)
{
    QStringList texts;
    for (int i = 0; i < branch->childCount(); ++i)
        texts << branch->child(i)->text(0);
    return texts;
}

void clickLink(QTextBrowser* page, const QString& text)
{
    QTextCursor found = page->document()->find(text);
    if (found.isNull() || !found.charFormat().isAnchor())
        qFatal("no link %s in %s", qUtf8Printable(text), qUtf8Printable(page->toPlainText()));
    found.setPosition(found.selectionStart() + 2);
    page->setTextCursor(found);
    page->ensureCursorVisible();
    QTest::mouseClick(page->viewport(), Qt::LeftButton, {}, page->cursorRect(found).center());
}

void clickDay(QCalendarWidget* calendar, int day)
{
    auto* days = calendar->findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    // The month before ends in the first week.
    bool begun = false;
    for (int cell = 0; cell < 8 * days->model()->rowCount(); ++cell) {
        const QModelIndex index = days->model()->index(cell / 8, cell % 8);
        begun = begun || (index.row() > 0 && index.data().toInt() == 1);
        if (begun && index.data().toInt() == day)
            return clickRow(days, index.row(), index.column());
    }
    qFatal("no such day");
}

QString keysOf(const widgets::HeadingGrid* grid)
{
    QStringList keys;
    for (int row = 0; row < grid->rowCount(); ++row)
        keys << QString::number(grid->keyAt(row));
    return keys.join(u',');
}

QStringList headingsOf(const widgets::HeadingGrid* grid)
{
    QStringList texts;
    for (int column = 0; column < grid->model()->columnCount(); ++column) {
        if (!grid->isColumnHidden(column))
            texts << grid->model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

bool isTold(const QString& text)
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.begin(), all.end(), [&text](const QWidget* widget) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        return label && label->isVisible() && label->text().contains(text);
    });
}

} // namespace support
