#pragma once

#include "jet/types.h"

#include <QDate>
#include <QStringList>
#include <QVariant>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace jet {

class RecordsetData;

/// The rows of one selection, one of them current.
///
/// A selection over one table is a keyset: it holds row ids, fetches wide rows as they are looked at, sees
/// later changes and can be edited. Joins, unions, distinct and aggregates are snapshots. A failed selection
/// is a recordset without rows, so a caller who has nothing to say about it just shows an empty list.
///
/// Column names are found without regard to case; a name that is not there reads as null and is reported.
class Recordset {
public:
    /// Rows that follow one another with the same numbers in the columns by which a union is sorted first.
    struct Run {
        std::array<int, 3> numbers; ///< null is the least number there is
        int rows;
    };

    Recordset();
    explicit Recordset(std::unique_ptr<RecordsetData> data);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    bool isValid() const; ///< false when the statement failed
    bool isEmpty() const { return count() == 0; }
    int count() const;
    QStringList columns() const;
    int columnIndex(QStringView name) const; ///< -1 when there is none
    ColumnType columnType(int column) const;

    // Position: 0 to count()-1, -1 before the first row, count() behind the last. A new recordset stands on
    // row 0. Moving gives up an edit that was not updated.
    int position() const;
    bool bof() const { return position() < 0 || isEmpty(); }
    bool eof() const { return position() >= count() || isEmpty(); }
    bool hasRow() const { return !bof() && !eof(); }
    bool moveTo(int position); ///< false, without moving, when there is no such row
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();
    /// Moves to the first row for which a bare condition such as "id=5" holds; false, without moving, when
    /// none does.
    bool findFirst(QStringView criterion);
    /// The same behind the current row.
    bool findNext(QStringView criterion);

    // Reading the current row. Dates come as QDate, or QDateTime when the value has a time of day.
    QVariant value(int column) const;
    QVariant value(QStringView column) const;
    /// The column as text, null as ""; nothing at all when there is no current row.
    std::optional<QString> text(QStringView column) const;
    QString textOrEmpty(QStringView column) const { return text(column).value_or(QString()); }
    QString textAt(int column) const;
    qint64 number(QStringView column) const; ///< 0 when null
    bool flag(QStringView column) const;
    QDate date(QStringView column) const; ///< invalid when null

    // Reading any row of the list without moving, for views that show what is in sight.
    qint64 keyAt(int row) const; ///< the row's own id in its table; 0 in a snapshot
    /// Empty for a selection that is not sorted by whole numbers first, or is small.
    std::vector<Run> leadingRuns() const;
    int leadingColumn() const; ///< of the first of these numbers; -1 where there are none
    int rowOf(int column, qint64 wanted) const; ///< the first with that number in a column; -1 for none
    bool holdsRows() const; ///< false when a row is fetched as it is looked at
    /// The first row behind `row` that has another text in the column, but none beyond `limit`. For lists
    /// that are sorted by the column and shown in groups.
    int endOfRun(int row, int column, int limit) const;
    QString textAt(int row, int column) const;
    QVariant valueAt(int row, int column) const;

    // Changing rows. Each assignment that does not fit its column (a text that is no date) is skipped alone
    // and reported; update() writes what is left in one durable statement and says whether it was stored.
    bool isEditable() const;
    void addNew();
    void edit();
    bool set(QStringView column, const QVariant& value);
    bool update();
    void cancelUpdate();
    bool removeCurrent();
    qint64 lastAddedKey() const; ///< the id of the row that the last addNew() and update() made, or 0

private:
    void step(int position);

    std::unique_ptr<RecordsetData> m_data;
};

} // namespace jet
