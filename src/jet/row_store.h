#pragma once

#include "jet/types.h"

#include <QVariant>
#include <sqlite3.h>

#include <string>
#include <vector>

namespace jet {

/// Rows as the file engine gave them, packed: eight bytes a cell and the UTF-8 text, so that a list of
/// 100,000 names takes a few megabytes and texts are made only for the rows that are looked at.
class RowStore {
public:
    void reset(int columns);
    void clear();
    /// Appends the statement's current row, from its given column on. False when the store is full (4 GB of
    /// text).
    bool append(sqlite3_stmt* statement, int firstColumn);
    qint64 bytes() const { return qint64(m_cells.size() * sizeof(Cell) + m_bytes.size()); }
    int rows() const { return m_columns == 0 ? 0 : int(m_cells.size() / size_t(m_columns)); }

    bool isNull(int row, int column) const;
    bool isSameText(int row, int otherRow, int column) const; ///< without regard to case; null is empty
    QString text(int row, int column) const;
    qint64 number(int row, int column) const;
    QVariant value(int row, int column, ColumnType type) const;

private:
    struct Cell {
        quint32 offset = 0;
        quint32 sizeAndKind = 0; ///< the kind in the lowest two bits
    };
    enum Kind : quint32 { Null, Text, Whole, Real };
    const Cell& cell(int row, int column) const
    {
        return m_cells[size_t(row) * size_t(m_columns) + size_t(column)];
    }

    int m_columns = 0;
    std::vector<Cell> m_cells;
    std::string m_bytes;
};

} // namespace jet
