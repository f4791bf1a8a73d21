#pragma once

#include "jet/translator.h"

#include <QByteArray>
#include <sqlite3.h>

#include <array>
#include <optional>
#include <vector>

namespace jet {

/// A row of a union, or a few with the same key and the same leading numbers: which arms have it.
struct UnionRef {
    sqlite3_int64 id = 0;
    std::array<qint32, UnionParts::kMostLeads> leads{}; ///< null sorts first
    quint32 arms = 0; ///< a bit for each
    quint32 rows = 0; ///< fewer than arms where some give the same row
    bool isDoubtful = false; ///< how many rows it is has to be looked up

    friend bool operator<(const UnionRef& a, const UnionRef& b)
    {
        return a.leads != b.leads ? a.leads < b.leads : a.id < b.id;
    }
};

/// Which rows a union has, in the order of its leading numbers, without the rows. They are read in blocks,
/// each of which is sorted like the whole by the statement that reads it.
class UnionKeys {
public:
    UnionKeys() = default;
    /// @param byKey whether rows of equal leading numbers are sorted by their key next
    UnionKeys(std::vector<UnionRef> sorted, bool byKey);

    int rows() const { return m_rows; }
    int blocks() const { return int(m_blocks.size()); }
    int blockOf(int row) const;
    int firstRow(int block) const { return m_blocks[size_t(block)].firstRow; }
    /// The keys of a block as lists, one for each arm.
    std::vector<QByteArray> lists(int block, int arms) const;
    /// The blocks in which rows of a key are, from the first on.
    std::vector<int> blocksOf(sqlite3_int64 id) const;

    const std::vector<UnionRef>& refs() const { return m_refs; }
    size_t bytes() const { return m_refs.size() * sizeof(UnionRef); }

private:
    struct Block {
        int firstRow;
        size_t firstRef;
    };

    std::vector<UnionRef> m_refs;
    std::vector<Block> m_blocks;
    int m_rows = 0;
};

/// A leading number of a row, null as the least of all; nothing for what is no whole number.
std::optional<qint32> leadAt(sqlite3_stmt* row, int column);

std::optional<qint32> leadOf(sqlite3_stmt* row, int column, const UnionParts::Reading& reading);

/// The keys of listed refs, one list for each arm.
std::vector<QByteArray> listsOf(const UnionRef* begin, const UnionRef* end, int arms);

/// Makes refs of what the arms say of each row of their table.
class UnionReader {
public:
    explicit UnionReader(const UnionParts& parts)
        : m_parts(parts)
    {
    }
    /// Reads a statement of the parts' `keys`. False when it fails, or a leading value is no whole number.
    bool read(sqlite3_stmt* rows);
    void add(sqlite3_int64 id, quint32 arms, bool isDoubtful);
    /// In their order.
    std::vector<UnionRef> take();

private:
    bool readRow(sqlite3_stmt* row);
    bool mayRepeat(sqlite3_stmt* row, quint32 arms) const;

    const UnionParts& m_parts;
    std::vector<UnionRef> m_refs;
};

} // namespace jet
