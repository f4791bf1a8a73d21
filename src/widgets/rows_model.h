#pragma once

#include "jet/recordset.h"
#include "widgets/heading_grid.h"
#include "widgets/row_outline.h"

#include <QAbstractTableModel>
#include <QHash>

namespace widgets {

/// The rows behind a heading grid: a recordset, or a list of texts. Texts are fetched one by one as a view
/// asks. A "source column" is one of the recordset or list, a "column" one under a heading; a "line" is what
/// a view calls a row: a row of the recordset, or the heading of a group of them.
class RowsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;
    using Wording = std::function<QString(const QVariant&)>;

    void setHeadings(QList<Heading> headings, const QStringList& columns);
    void fill(jet::Recordset rows);
    void setRows(const QList<QStringList>& rows, const QStringList& names);
    void setKeyColumn(const QString& name);
    void showAs(const QString& name, Wording wording);
    void showEmptyAs(const QString& name, const QString& other, Wording wording);

    const QList<Heading>& headings() const { return m_headings; }
    bool showsNothing(int column) const { return m_sources.value(column, -1) < 0; }
    int columnOf(const QString& name) const; ///< -1 when no heading stands over it
    QString text(int line, const QString& name) const;
    qint64 keyAt(int line) const;
    int lineOf(qint64 key) const;
    int recordCount() const; ///< of the rows that are shown

    /// Shows these rows only, rising, until the next fill; no value shows all.
    void showOnly(std::optional<std::vector<int>> rows);
    bool isNarrowed() const { return m_shown.has_value(); }
    int shownRow(int place) const; ///< the row at a place among those shown
    int placeOf(int row) const; ///< -1 for a row that is not shown
    const jet::Recordset& recordset() const { return m_recordset; }

    /// A yes/no column that is seen as boxes to tick; they begin as the rows have them.
    void setTickColumn(const QString& name);
    int tickColumn() const; ///< -1 when no heading stands over it
    bool isTicked(int row) const;
    void setTicked(int row, bool ticked);
    void tickRows(std::function<bool(int row)> ticked); ///< all, also those out of sight
    /// Whether a cell shows the same as the cell above it, and both are rows.
    bool repeatsAbove(const QModelIndex& index) const;
    /// The next row, in a circle from the given one, whose text in a column begins so; -1 when there is none.
    /// Folded groups are looked through, headings are not.
    int findRow(int column, const QString& begin, int fromRow);
    /// The row of a line; of a heading, the first one below it.
    int rowAtOrBelow(int line) const;

    // What stands in a row, for readers other than a view: whole texts, also of folded rows.
    QString recordText(int row, int column) const;
    QVariant recordValue(int row, int column) const;
    /// Text also for what a wording makes of another type, other than of a date.
    jet::ColumnType typeOf(int column) const;
    const RowOutline& outline() const { return m_outline; }

    // Groups. A fill makes one group of all rows; the steps that follow find where each text ends.
    void setOutline(const QString& name);
    bool isOutlining() const { return m_isOutlining; }
    int outlineStep(); ///< 0 to 100; with 100 the model has been reset
    int groupColumn() const; ///< the column whose texts stand in the headings; -1 without an outline
    int groupOf(int line) const; ///< -1 without an outline
    bool isHeading(int line) const;
    int headingOf(int group) const { return m_outline.headingOf(group); }
    int rowsIn(int group) const { return m_outline.rowsIn(group); }
    QString groupText(int group) const; ///< as its heading has it
    bool isFolded(int group) const { return m_outline.isFolded(group); }
    void fold(int group, bool folded);
    void foldAll(bool folded);
    int sourceRow(int line) const; ///< -1 for a heading
    int lineOfSource(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void pairOff();
    int sourceCount() const;
    int rowsInAll() const;
    int sourceOf(const QString& name) const;
    void beginOutline();
    std::vector<int> startsOfRuns() const; ///< empty when they have to be looked for
    QString headingText(int line) const;
    QString sourceText(int row, int source) const;
    qint64 sourceNumber(int row, int source) const;
    qint64 sourceKey(int row) const;
    QString shownText(int row, int source) const;
    QString wordedText(int row, int source, const Wording& wording) const;

    QList<Heading> m_headings;
    QStringList m_columns; ///< as given for the headings
    QList<int> m_sources; ///< under each heading, -1 for none
    QString m_keyColumn;
    int m_keySource = -1; ///< of the key column, or of "id"
    QString m_emptyName;
    QString m_otherName;
    int m_emptySource = -1;
    int m_otherSource = -1;
    Wording m_emptyWording;
    QHash<QString, Wording> m_wordings; ///< by lower-case name
    QHash<int, Wording> m_wordingsBySource;

    QString m_outlineColumn;
    int m_outlineSource = -1;
    RowOutline m_outline;
    bool m_isOutlining = false;
    std::vector<int> m_groupStarts; ///< found so far
    int m_scanned = 0;

    std::optional<std::vector<int>> m_shown;
    QString m_tickColumnName;
    int m_tickSource = -1;
    std::function<bool(int row)> m_tickRule; ///< in place of what the rows have
    QHash<int, bool> m_ticks; ///< of the rows that were changed since

    jet::Recordset m_recordset;
    bool m_fromList = true;
    QList<QStringList> m_rows;
    QStringList m_names;
};

} // namespace widgets
