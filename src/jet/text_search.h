#pragma once

#include "jet/lexer.h"
#include "jet/text_filter.h"
#include "jet/text_index.h"
#include "jet/translator.h"
#include "jet/types.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace jet {

/// Finds the rows that a search for pieces of text is about, such as `city like '*wor*'`, without reading
/// them.
///
/// The first search of a large table has the columns that it looks into read on a thread of their own; they
/// are kept, and until they are there the searches look at the file. The pattern is put to each different
/// text once. A row that was changed since, through this connection, is looked at in the file; a change by
/// another connection makes the next search read anew. Everything here is memory: the file and a save know
/// nothing of it.
class TextSearch {
public:
    /// `fileAside` is read through a connection of the thread's own. Where that could keep a write waiting
    /// it is blank, and the first search reads by itself.
    TextSearch(sqlite3* connection, const QString& fileAside);
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
    /// An update would look at every row otherwise: patterns that say how a text begins, or ask for one
    /// letter, are worthwhile for it. It uses what is known and has nothing read.
    enum class AskedBy { Search, Update };
    std::optional<Rows> rows(const QString& table, const TextFilter& filter,
        const std::vector<Literal>& literals, Way way, AskedBy askedBy = AskedBy::Search);
    /// A row that some arms of a union have.
    struct RowOfArms {
        sqlite3_int64 id;
        quint32 arms; ///< a bit for each
        bool mayRepeat; ///< two of them may give the same row
    };
    struct ArmRows {
        std::vector<RowOfArms> sure; ///< by id
        std::vector<sqlite3_int64> doubtful; ///< which the arms have still to be asked for
    };
    /// The same for a union each of whose arms searches.
    std::optional<ArmRows> rowsOfArms(const UnionParts& parts, const std::vector<Literal>& literals, Way way);

    void rowChanged(const char* table, sqlite3_int64 id);
    /// From now on only these columns of the rows of a table change; an empty list ends it.
    void setAssigned(const QString& table, const QStringList& columns);
    /// Behind a search that looked at the file: reads what the next one can use, and does not keep this one
    /// from its rows.
    void readAhead();
    /// When tables were made, dropped or altered.
    void forget();
    size_t memory();

private:
    class Reading;
    struct Table {
        QStringList columns;
        TextIndex index;
        std::unique_ptr<Reading> reading; ///< while it goes on
        bool isWanted = false; ///< to be read ahead
        std::unordered_set<sqlite3_int64> changed;
        std::unordered_map<QString, std::unordered_set<sqlite3_int64>> changedIn; ///< a column alone
        QStringList stale; ///< columns in which too many were changed
        sqlite3_int64 fileVersion = 0;
        bool isTooMuch = false;
    };
    struct Query;

    static bool mayRepeat(const Table& table, const std::vector<size_t>& columns, size_t row, quint32 arms);
    static std::unordered_set<sqlite3_int64> changedOf(const Table& table, const QStringList& columns);
    static void noteAssigned(Table& table, const QStringList& columns, sqlite3_int64 id);
    bool isFresh(const Table& table, const QStringList& columns);
    Table* known(const QString& name, const QStringList& columns);
    Table* prepared(const QString& name, const QStringList& columns);
    QByteArray readingSql(const std::string& name, const Table& table) const;
    void readNow(const std::string& name, Table& table);
    static void takeWhatWasRead(Table& table);
    bool isWorthwhile(const QString& name);
    std::optional<sqlite3_int64> number(const QString& sql);

    sqlite3* m_connection;
    QString m_fileAside;
    std::string m_assignedTable;
    QStringList m_assigned;
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
