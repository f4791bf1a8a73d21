#pragma once

#include "jet/lexer.h"
#include "jet/text_filter.h"
#include "jet/text_index.h"
#include "jet/types.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace jet {

/// Finds the rows that a search for pieces of text is about, such as `city like '*wor*'`, without reading
/// them.
///
/// The first search of a large table reads the columns that it looks into; they are kept. The pattern is put
/// to each different text once. A row that was changed since, through this connection, is looked at in the
/// file; a change by another connection makes the next search read anew. Everything here is memory: the file
/// and a save know nothing of it.
class TextSearch {
public:
    explicit TextSearch(sqlite3* connection);
    ~TextSearch();
    TextSearch(const TextSearch&) = delete;
    TextSearch& operator=(const TextSearch&) = delete;

    struct Rows {
        std::vector<sqlite3_int64> sure; ///< that fit
        std::vector<sqlite3_int64> doubtful; ///< to which the condition is still to be put
        size_t all = 0; ///< how many rows there are to look at otherwise
    };
    /// In any order; no row that is in neither fits. Nothing when the search can not be helped. To be asked
    /// in the same read transaction as the search.
    std::optional<Rows> rows(
        const QString& table, const TextFilter& filter, const std::vector<Literal>& literals, Way way);
    /// When tables were made, dropped or altered.
    void forget() { m_tables.clear(); }
    size_t memory() const;

private:
    struct Table {
        QStringList columns;
        TextIndex index;
        std::unordered_set<sqlite3_int64> changed;
        sqlite3_int64 fileVersion = 0;
        bool isTooMuch = false;
    };
    struct Query;

    Table* prepared(const QString& name, const QStringList& columns);
    bool read(const QString& name, Table& table);
    bool isWorthwhile(const QString& name);
    std::optional<sqlite3_int64> number(const QString& sql);
    static void rowChanged(void* self, int, const char*, const char* table, sqlite3_int64 id);

    sqlite3* m_connection;
    std::unordered_map<std::string, std::unique_ptr<Table>> m_tables; ///< by name as the file spells it
};

/// Reads of one connection that see the same state of the file, also while another program writes.
class ReadTransaction {
public:
    explicit ReadTransaction(sqlite3* connection);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;

private:
    sqlite3* m_connection; ///< null within a transaction that was open already
};

} // namespace jet
