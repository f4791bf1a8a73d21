#pragma once

#include "jet/catalog.h"
#include "jet/date_text.h"
#include "jet/syntax_tree.h"
#include "jet/text_filter.h"
#include "jet/types.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace jet {

/// One bound value of the file engine's statement: which literal of the text it is, and what it is read as.
struct Slot {
    enum class Reading {
        AsIs,
        Date,
        Number,
        YesNo,
        RowList,
        Least, ///< the first text in order that can be like the pattern
        Beyond, ///< a text behind all that can be
    };
    int literal = 0; ///< -1 and below for lists of rows to look at, the first, the second and so on
    Reading reading = Reading::AsIs;
};

struct ResultColumn {
    QString name;
    ColumnType type = ColumnType::Unknown;
    QString source; ///< the table's column, empty for an expression
};

/// A piece of text for the file engine with the values it needs, in order.
struct Piece {
    QString sql;
    std::vector<Slot> values;
};

/// A union whose arms select from one table and tell the row's key. All its arms can be asked in one walk
/// through the table which rows they have; the rows themselves are read as they are looked at.
struct UnionParts {
    static constexpr int kMostLeads = 3;

    QString table;
    int arms = 0;
    /// By whole numbers the union is sorted first, perhaps by none. Then, where `byKey`, by the row's key.
    int leads = 0;
    bool byKey = false;
    /// Where leads and key stand in a row.
    std::vector<int> leadPositions = {};
    /// How a lead is made of what `keys` gives: as it is, or a part of a date, which is quicker than to ask
    /// the file engine for it.
    struct Reading {
        std::optional<DatePart> part = {};
        std::optional<int> minuend = {}; ///< from which the part is taken away
    };
    std::vector<Reading> readings = {}; ///< one a lead
    int keyPosition = 0;
    /// Where rows of one key may differ. Looked at when the keys lead; otherwise equal leads are seldom.
    int varying = 0;
    /// A row key, and in the columns that `places` names for each arm: whether it has the row, its leads, its
    /// varying values.
    Piece keys = {};
    std::vector<int> places = {};
    Piece keysOfRows = {}; ///< the same for a list of rows
    Piece rows = {}; ///< the union with its order, each arm for a list of rows of its own
    /// What the arms ask of texts, when each asks something.
    std::vector<TextFilter> filters = {};
    /// The columns, one an arm, in which rows of one key differ, when these are what the arms search and the
    /// texts alone tell what rows there are; otherwise empty.
    std::vector<QString> varyingColumns = {};
};

struct Translation {
    enum class Kind {
        Snapshot, ///< all rows are read
        Keyset, ///< main selects the row ids, or ids and columns; row selects the columns of one id
        Action, ///< update, delete, insert
        MakeTable, ///< select into, drop: the list of tables changes
        OtherFile, ///< select into a file of another kind: recognised, done elsewhere
    };
    Kind kind = Kind::Snapshot;
    Piece main;
    std::vector<ResultColumn> columns;
    // Of a keyset only:
    QString table;
    QString tableAlias;
    Piece row; ///< the columns of the row whose id is bound last
    bool idsOnly = false;
    /// When the condition searches texts: what it asks of them, and main for the rows of a bound list only.
    std::optional<TextFilter> filter = {};
    bool isOrdered = false;
    /// When the rows come in the order of a column that is to be like a pattern: the pattern's literal, and
    /// main for a stretch of that order.
    int orderedLiteral = -1;
    Piece stretch = {};
    Piece narrowed = {};
    // Of a snapshot only:
    std::optional<UnionParts> parts = {};
    // Of an update only, beside table, filter and narrowed:
    QStringList assigned = {};
};

/// Turns a parsed statement into text for the file engine. Every name stands in brackets, every value is
/// bound, so no text of a caller reaches the file engine as text.
std::optional<Translation> translate(
    const Statement& statement, const Catalog& catalog, Way way, QString* error);

/// The ids of a table for which a bare condition holds.
std::optional<Piece> translateCondition(const Expression& condition, const QString& table,
    const QString& alias, const Catalog& catalog, Way way, QString* error);

/// The 0-based positions of a snapshot's rows for which a bare condition holds, in order.
std::optional<Piece> translateSnapshotCondition(
    const Expression& condition, const Translation& snapshot, Way way, QString* error);

} // namespace jet
