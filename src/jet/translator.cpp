#include "jet/translator.h"

#include "jet/same_name.h"
#include "jet/selection_emitter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// Writes whole statements.
class Emitter final : private SelectionEmitter {
public:
    Emitter(const Catalog& catalog, Way way)
        : SelectionEmitter(catalog, way)
    {
    }

    Translation statement(const Statement& s)
    {
        switch (s.kind) {
        case Statement::Kind::Select: return query(s.select);
        case Statement::Kind::Update: return update(s);
        case Statement::Kind::Delete: return remove(s);
        case Statement::Kind::Insert: return insert(s);
        case Statement::Kind::Drop: break;
        }
        Translation result;
        result.kind = Translation::Kind::MakeTable;
        const CatalogTable* gone = table(s.table.name);
        m_out += u"DROP TABLE "_s;
        name(gone->name);
        result.main = takePiece();
        return result;
    }

    Piece idsWhere(const Expression& condition, const QString& tableName, const QString& alias)
    {
        const TableName from{tableName, alias};
        m_scopes.push_back({{table(tableName), from.shownAs()}});
        m_out += u"SELECT "_s;
        rowKey(from);
        m_out += u" FROM "_s;
        tableAs(from);
        m_out += u" WHERE "_s;
        truth(condition);
        return takePiece();
    }

    Piece positionsWhere(const Expression& condition, const Translation& snapshot)
    {
        CatalogTable rows{u"rows"_s, {}};
        for (const ResultColumn& column : snapshot.columns)
            rows.columns.push_back({column.name, column.type});
        m_scopes.push_back({{&rows, rows.name}});
        m_slots = snapshot.main.values;
        m_out += u"SELECT [position] FROM (SELECT *, row_number() OVER () - 1 AS [position] FROM (";
        m_out += snapshot.main.sql;
        m_out += u")) AS [rows] WHERE ";
        truth(condition);
        m_out += u" ORDER BY [position]"_s;
        return takePiece();
    }

private:
    // ---- queries

    Translation query(const Select& s)
    {
        if (s.intoOtherFile) {
            Translation result;
            result.kind = Translation::Kind::OtherFile;
            selection(s, &result.columns); // the names in it are still checked
            return result;
        }
        if (!s.into.isEmpty())
            return makeTable(s);
        if (isKeyset(s))
            return keyset(s.arms.front());
        Translation result;
        selection(s, &result.columns);
        result.main = takePiece();
        // What can be run as a whole is not to fail for its parts.
        const size_t scopes = m_scopes.size();
        try {
            result.parts = unionParts(s, result.columns);
        } catch (const Refusal&) {
            takePiece();
            m_scopes.resize(scopes);
        }
        return result;
    }

    Translation makeTable(const Select& s)
    {
        if (m_catalog(s.into))
            throw Refusal{u"there is a table "_s + s.into.toString()};
        Translation result;
        result.kind = Translation::Kind::MakeTable;
        if (s.into.startsWith(u"sqlite_", Qt::CaseInsensitive))
            throw Refusal{u"no such table can be made: "_s + s.into.toString()};
        m_out += u"CREATE TABLE "_s;
        name(s.into);
        m_out += u" AS "_s;
        std::vector<ResultColumn> columns;
        selection(s, &columns);
        result.main = takePiece();
        return result;
    }

    static bool isKeyset(const Select& s)
    {
        if (s.arms.size() != 1)
            return false;
        const SelectArm& arm = s.arms.front();
        return arm.tables.size() == 1 && !arm.distinct && arm.groupBy.empty() && !arm.having
            && std::none_of(arm.items.begin(), arm.items.end(),
                [](const SelectItem& item) { return item.expression && hasAggregate(*item.expression); });
    }

    Translation keyset(const SelectArm& arm)
    {
        constexpr size_t kMostHeldColumns = 6;
        Translation result;
        result.kind = Translation::Kind::Keyset;
        const TableName& from = arm.tables.front();
        result.table = table(from.name)->name;
        result.tableAlias = from.shownAs().toString();
        openScope(arm);

        itemList(arm, &result.columns);
        const auto items = takePiece();

        const bool hasMemo = std::any_of(result.columns.begin(), result.columns.end(),
            [](const ResultColumn& column) { return column.type == ColumnType::Memo; });
        const bool plain = std::all_of(arm.items.begin(), arm.items.end(), [](const SelectItem& item) {
            return item.star || (item.expression->kind == Expression::Kind::Column && item.alias.isEmpty());
        });
        result.idsOnly = plain && (hasMemo || result.columns.size() > kMostHeldColumns);

        const auto selectKeys = [&](const TextFilter* stretch, bool narrowed) {
            m_out += u"SELECT "_s;
            rowKey(from);
            if (!result.idsOnly) {
                m_out += u", "_s + items.sql;
                m_slots = items.values;
            }
            m_out += u" FROM "_s;
            if (narrowed) {
                narrowedTable(from, arm);
            } else {
                tableAs(from);
                stretch ? whereInStretch(*stretch, arm) : whereOf(arm);
            }
            orderBy(
                arm.orderBy, result.filter && !narrowed && !stretch && looksBesideOrder(*result.filter, arm));
            // A search may be run in several ways. Rows that are equal to its order come the same in each.
            if (result.filter) {
                m_out += arm.orderBy.empty() ? u" ORDER BY "_s : u", "_s;
                rowKey(from);
            }
            return takePiece();
        };
        if (arm.where && !isDescending(arm.orderBy))
            result.filter = textFilter(*arm.where);
        result.main = selectKeys(nullptr, false);
        if (result.filter)
            result.narrowed = selectKeys(nullptr, true);
        if (const TextFilter* ordered = result.filter ? orderedBy(*result.filter, arm) : nullptr) {
            result.orderedLiteral = ordered->literal;
            result.stretch = selectKeys(ordered, false);
        }
        result.isOrdered = !arm.orderBy.empty();

        m_out += u"SELECT ";
        m_out += items.sql;
        m_out += u" FROM ";
        m_slots = items.values;
        tableAs(from);
        m_out += u" WHERE "_s;
        rowKey(from);
        m_out += u" = ?"_s;
        result.row = takePiece();
        m_scopes.pop_back();
        return result;
    }

    /// The file engine might walk an index backwards, and rows of equal texts with it. A list of rows is
    /// walked from its beginning.
    static bool isDescending(const std::vector<OrderTerm>& order)
    {
        return !order.empty() && order.front().descending;
    }

    /// The table behind a list of its rows, which is walked in order; the condition still holds.
    void narrowedTable(const TableName& from, const SelectArm& arm)
    {
        m_out += u"(SELECT value AS [*row] FROM json_each(?)) CROSS JOIN "_s;
        m_slots.push_back({-1, Slot::Reading::RowList});
        tableAs(from);
        m_out += u" WHERE "_s;
        rowKey(from);
        m_out += u" = [*row] AND ("_s;
        truth(*arm.where);
        m_out += u')';
    }

    /// The pattern for the very column by which the rows are sorted first; null when there is none. Only then
    /// can an index be walked from where the pattern begins without changing the order of the rows.
    const TextFilter* orderedBy(const TextFilter& filter, const SelectArm& arm) const
    {
        if (arm.orderBy.empty() || arm.orderBy.front().expression->kind != Expression::Kind::Column)
            return nullptr;
        const CatalogColumn* sorted = resolve(*arm.orderBy.front().expression);
        const auto fits = [&](const TextFilter& part) {
            return part.kind == TextFilter::Kind::Pattern && sorted && part.column == sorted->name;
        };
        if (fits(filter))
            return &filter;
        if (filter.kind != TextFilter::Kind::All)
            return nullptr;
        const auto found = std::find_if(filter.parts.begin(), filter.parts.end(), fits);
        return found == filter.parts.end() ? nullptr : &*found;
    }

    /// Whether a search reads more of a row than the index of its order holds. Found rows are few: to sort
    /// them is quicker than to fetch every row in that order.
    bool looksBesideOrder(const TextFilter& filter, const SelectArm& arm) const
    {
        if (filter.kind != TextFilter::Kind::Pattern)
            return std::any_of(filter.parts.begin(), filter.parts.end(),
                [&](const TextFilter& part) { return looksBesideOrder(part, arm); });
        return !arm.orderBy.empty() && !orderedBy(filter, arm);
    }

    void whereInStretch(const TextFilter& stretch, const SelectArm& arm)
    {
        m_out += u" WHERE "_s;
        name(arm.tables.front().shownAs());
        m_out += u'.';
        name(stretch.column);
        m_out += u" >= ? AND "_s;
        name(arm.tables.front().shownAs());
        m_out += u'.';
        name(stretch.column);
        m_out += u" < ? AND ("_s;
        m_slots.push_back({stretch.literal, Slot::Reading::Least});
        m_slots.push_back({stretch.literal, Slot::Reading::Beyond});
        truth(*arm.where);
        m_out += u')';
    }

    // ---- actions

    Translation update(const Statement& s)
    {
        Translation result;
        result.kind = Translation::Kind::Action;
        const CatalogTable* target = table(s.table.name);
        m_scopes.push_back({{target, target->name}});
        m_out += u"UPDATE "_s;
        name(target->name);
        bool first = true;
        for (const Assignment& assignment : s.assignments) {
            m_out += first ? u" SET "_s : u", "_s;
            const CatalogColumn* column = columnOf(*target, assignment.column);
            name(column->name);
            m_out += u" = "_s;
            stored(*assignment.value, column->type);
            first = false;
            result.assigned << column->name;
        }
        result.main = takePiece();
        if (s.where)
            whereOfUpdate(*s.where, *target, &result);
        return result;
    }

    void whereOfUpdate(const Expression& where, const CatalogTable& target, Translation* result)
    {
        const Piece set = result->main;
        const auto written = [&](QStringView narrowing) {
            m_out += set.sql;
            m_slots = set.values;
            m_out += u" WHERE "_s;
            m_out += narrowing;
            if (!narrowing.isEmpty())
                m_slots.push_back({-1, Slot::Reading::RowList});
            truth(where);
            return takePiece();
        };
        result->main = written({});
        result->table = target.name;
        result->filter = textFilter(where);
        if (result->filter)
            result->narrowed = written(u"rowid IN (SELECT value FROM json_each(?)) AND ");
    }

    Translation remove(const Statement& s)
    {
        Translation result;
        result.kind = Translation::Kind::Action;
        const CatalogTable* target = table(s.table.name);
        m_scopes.push_back({{target, target->name}});
        m_out += u"DELETE FROM "_s;
        name(target->name);
        if (s.where) {
            m_out += u" WHERE "_s;
            truth(*s.where);
        }
        result.main = takePiece();
        return result;
    }

    Translation insert(const Statement& s)
    {
        Translation result;
        result.kind = Translation::Kind::Action;
        const CatalogTable* target = table(s.table.name);
        m_out += u"INSERT INTO "_s;
        name(target->name);
        std::vector<const CatalogColumn*> columns;
        if (s.columns.empty()) {
            for (const CatalogColumn& column : target->columns)
                columns.push_back(&column);
        }
        for (const QStringView columnName : s.columns)
            columns.push_back(columnOf(*target, columnName));
        if (columns.size() != s.values.size())
            throw Refusal{u"columns and values differ in number"_s};
        m_scopes.push_back({});
        for (size_t i = 0; i < columns.size(); ++i) {
            m_out += i == 0 ? u" ("_s : u", "_s;
            name(columns[i]->name);
        }
        m_out += u") VALUES ("_s;
        for (size_t i = 0; i < columns.size(); ++i) {
            if (i > 0)
                m_out += u", "_s;
            stored(*s.values[i], columns[i]->type);
        }
        m_out += u')';
        result.main = takePiece();
        return result;
    }
};

template <class Result, class Run> std::optional<Result> guarded(Run run, QString* error)
{
    try {
        return run();
    } catch (const Refusal& refusal) {
        *error = refusal.reason;
        return {};
    }
}

} // namespace

std::optional<Translation> translate(
    const Statement& statement, const Catalog& catalog, Way way, QString* error)
{
    return guarded<Translation>([&] { return Emitter(catalog, way).statement(statement); }, error);
}

std::optional<Piece> translateCondition(const Expression& condition, const QString& table,
    const QString& alias, const Catalog& catalog, Way way, QString* error)
{
    return guarded<Piece>([&] { return Emitter(catalog, way).idsWhere(condition, table, alias); }, error);
}

std::optional<Piece> translateSnapshotCondition(
    const Expression& condition, const Translation& snapshot, Way way, QString* error)
{
    const Catalog none = [](QStringView) { return nullptr; };
    return guarded<Piece>([&] { return Emitter(none, way).positionsWhere(condition, snapshot); }, error);
}

} // namespace jet
