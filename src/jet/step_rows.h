#pragma once

#include "jet/types.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <sqlite3.h>
#include <unordered_map>
#include <vector>

class QTemporaryFile;

namespace jet {

/// What a cell of the file holds.
struct CellValue {
    int type = SQLITE_NULL;
    sqlite3_int64 whole = 0;
    double real = 0;
    QByteArray bytes;

    static CellValue of(sqlite3_value* value);
    static CellValue of(sqlite3_stmt* row, int column) { return of(sqlite3_column_value(row, column)); }
    void bind(sqlite3_stmt* statement, int place) const;
    bool isBlank() const { return type == SQLITE_NULL || (type == SQLITE_TEXT && bytes.isEmpty()); }
    bool operator==(const CellValue& other) const = default;
};

/// The rows that one step changed, each with what its cells held before and after. A step keeps little in
/// memory; what is more goes to a file of its own beside the book, which ends with the step.
class StepRows {
public:
    static constexpr qsizetype kMostInMemory = 1024 * 1024;

    struct Row {
        ChangeStep::Kind kind;
        int table;
        sqlite3_int64 idBefore;
        sqlite3_int64 idAfter;
        qint64 at = 0;
    };
    struct Cell {
        int column;
        CellValue before;
        CellValue after;
    };

    explicit StepRows(const QString& fileBeside);
    ~StepRows();
    StepRows(StepRows&&) noexcept;
    StepRows& operator=(StepRows&&) noexcept;

    void begin(const Row& row);
    void add(int column, sqlite3_value* before, sqlite3_value* after);
    /// Forgets all rows from that one on.
    void cutAt(size_t row);
    const std::vector<Row>& rows() const { return m_rows; }
    /// False when there was no room for the rows: they can not be brought back.
    bool isKept() const { return m_isKept; }
    std::vector<Cell> cells(size_t row) const;

    enum class Side { Before, After };
    /// The cell of a row holds something else by now, and that is as it should be: from then on the step
    /// begins with it or ends with it. False when the step did not touch the cell.
    bool replace(Side side, int table, sqlite3_int64 id, int column, const CellValue& value);

private:
    struct Key {
        int table;
        sqlite3_int64 id;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        size_t operator()(const Key& key) const { return size_t(key.id) * 61 + size_t(key.table); }
    };

    void addBlank(int column);
    bool moveToFile();
    QByteArray bytesOf(size_t row) const;
    const std::vector<size_t>& rowsOf(Side side, const Key& key);

    QString m_fileBeside;
    std::vector<Row> m_rows;
    QByteArray m_bytes; ///< those that are not in the file
    qsizetype m_blanksAt
        = -1; ///< in m_bytes, where the number of the blank columns stands that were added last
    int m_afterBlanks = 0; ///< the column behind them
    qint64 m_inFile = 0;
    bool m_isKept = true;
    std::unique_ptr<QTemporaryFile> m_file;
    std::unordered_map<Key, std::vector<size_t>, KeyHash> m_index[2]; ///< made when it is asked for
    std::map<std::pair<size_t, int>, CellValue> m_replaced[2]; ///< by row and column
};

} // namespace jet
