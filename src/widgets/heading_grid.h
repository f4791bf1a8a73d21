#pragma once

#include "jet/recordset.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QList>
#include <QStringList>
#include <QTableView>

#include <functional>
#include <optional>
#include <vector>

namespace widgets {

class RowsModel;

struct Heading {
    QString text;
    int width = 0; ///< in characters

    friend bool operator==(const Heading&, const Heading&) = default;
};

/// The size of the texts in all grids, as the person chose it: 8 is that of all other texts, and a larger one
/// is as many points above it. Grids that are there change at once.
int gridFontSize();
inline constexpr int OrdinaryGridFont = 8; ///< of a grid whose texts are as large as all others
void setGridFontSize(int size);

/// Headings are one string of columns joined by "|"; a column is as wide as its text with all its blanks.
QList<Heading> parseHeadings(QStringView headings);

/// The grid of all lists: a heading string above, the rows of a recordset below, one row current.
///
/// A recordset's rows are asked for only when they come in sight. Without column names, headings and columns
/// pair off in order; blank headings in front that have no column, and a blank one over the key, are an empty
/// margin. When rows are seen first, columns become as wide as what stands in them asks for, so that names
/// are in sight; a person may change that. Columns beyond the headings are not shown but can be read by name.
/// Typing looks for a row by its first visible text; Enter and double click choose a row.
class HeadingGrid : public QTableView {
    Q_OBJECT

public:
    explicit HeadingGrid(QWidget* parent = nullptr);

    /// `columns` names the column under each heading, "" for none. Of two columns with one name the second is
    /// "name:2", here and below.
    void setHeadings(QStringView headings, const QStringList& columns = {});
    void fill(jet::Recordset rows);
    void fill(QStringView headings, jet::Recordset rows, const QStringList& columns = {});
    /// Rows that come from no recordset; the names make them readable by column, and "id" among them is the
    /// key.
    void setRows(const QList<QStringList>& rows, const QStringList& names = {});
    void clearRows();

    void hideColumn(const QString& name);
    using QTableView::hideColumn;
    /// The column that holds the key of rows that have none of their own; "id" until told otherwise.
    void setKeyColumn(const QString& name);
    /// Shows a column's values in another way: dates, ticks. No wording shows them as they are again.
    void showAs(const QString& name, std::function<QString(const QVariant&)> wording);
    /// Where nothing stands in a column, shows a wording of another one instead.
    void showEmptyAs(
        const QString& name, const QString& other, std::function<QString(const QVariant&)> wording);
    /// Shows only those rows of the recordset, which rise, until the next fill; no value shows all. The
    /// current row stays while it is shown, and nobody hears of it. Takes one pass, however many there are.
    void showOnly(std::optional<std::vector<int>> rows);
    /// What the grid was filled with last, to be read row by row without moving: its rows are source rows.
    const jet::Recordset& recordset() const;
    int sourceRow(int row) const; ///< of a row of the grid; -1 for a heading
    int rowOfSource(int sourceRow) const; ///< -1 when it is not shown
    int placeOf(int sourceRow) const; ///< among the rows that are shown, from 0; -1 when it is not
    int shownSourceRow(int place) const;
    void setCurrentSourceRow(int sourceRow); ///< unfolds its group

    /// A yes/no column that is seen as boxes, as the rows have them until the person or the program ticks.
    void setTickColumn(const QString& name);
    /// Whether a click into a box, or Space, changes its tick.
    void setMayTick(bool may) { m_mayTick = may; }
    bool isTicked(int sourceRow) const;
    /// Ticks all rows by a rule, which is asked when a row is looked at.
    void tickRows(std::function<bool(int sourceRow)> ticked);

    /// Rows of equal texts stand under a heading line that folds; "" ends it. The rows must be sorted by the
    /// column. After a fill the groups are found in steps, so that the window stays alive; until then one
    /// heading reads "!!!!!". With headings, a row of the functions below is a line of the grid, and a
    /// heading has the key 0.
    void setOutline(const QString& name);
    bool isHeading(int row) const;
    int recordCount() const; ///< rows without the headings
    void foldAll(bool folded);
    /// A text that is the same as the one above it is not painted again, as if the cells were one, when all
    /// texts to its left are the same too.
    void mergeEqual(const QStringList& names);
    void setFontSize(int points);
    /// In a place that is too narrow for all columns the widest give way, down to their headings, before the
    /// grid scrolls sideways. What is cut off can be read at the mouse.
    void letColumnsGiveWay() { m_columnsGiveWay = true; }
    void setEmptyText(const QString& text);

    int rowCount() const;
    int currentRow() const; ///< -1 when there is none
    void setCurrentRow(int row);
    qint64 currentKey() const; ///< 0 when there is no current row
    qint64 keyAt(int row) const;
    int rowOf(qint64 key) const; ///< -1 when it is not listed
    bool selectKey(qint64 key);
    QList<qint64> selectedKeys() const; ///< from top to bottom, for grids that allow several
    /// Any column of a row, shown or not.
    QString textAt(int row, const QString& column) const;
    QString currentText(const QString& column) const;

    void keyboardSearch(const QString& typed) override;

Q_SIGNALS:
    void chosen(int row);
    void currentRowChanged(int row);
    void outlineProgress(int percent);
    void tickChanged(int row); ///< by the person

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class LineDelegate;
    friend class GridContents;

    void startOutline();
    void restoreLines(int row, int top);
    bool foldKey(int key);
    void toggleTick(int row);
    void setFolded(int row, bool folded);
    friend void setGridFontSize(int size);
    void followFontSize();
    void applyWidths();
    void fitToContent();
    void fitToPlace();
    void applyHiddenColumns();
    int searchColumn() const;

    RowsModel* m_model;
    QString m_emptyText;
    QStringList m_hidden;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
    QStringList m_merged;
    QBasicTimer m_outlineTimer;
    bool m_columnsGiveWay = false;
    bool m_isFitting = false;
    QList<int> m_wantedWidths; ///< of all columns, where there is room
    bool m_mayTick = false;
    bool m_mayFit = true; ///< until the person has made a column wider or narrower
    bool m_hasFitted = false; ///< since the headings are these: columns only grow then
    bool m_isFitDue = false; ///< rows came that have not been seen yet
    bool m_isRestoring = false; ///< the same row becomes current again, on another line
};

} // namespace widgets
