#include "jet/translator.h"

#include "jet/expression_emitter.h"
#include "jet/same_name.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// Writes whole statements.
class Emitter final : private ExpressionEmitter {
public:
    Emitter(const Catalog& catalog, Way way)
        : ExpressionEmitter(catalog, way)
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

    void selection(const Select& s, std::vector<ResultColumn>* columns) override
    {
        const bool wasNamed = std::exchange(m_isNamed, true); // outside of this one, which may stand inside
        if (s.arms.size() == 1)
            single(s.arms.front(), columns);
        else
            unionOf(s, columns);
        m_isNamed = wasNamed;
    }

    void unionOf(const Select& s, std::vector<ResultColumn>* columns)
    {
        std::vector<ResultColumn> armColumns;
        bool first = true;
        for (const SelectArm& arm : s.arms) {
            if (!first)
                m_out += arm.keepsDoubles ? u" UNION ALL "_s : u" UNION "_s;
            armColumns.clear();
            m_isNamed = first; // the file engine takes the names of the first arm as well
            selectArm(arm, first ? columns : &armColumns);
            if (!first && armColumns.size() != columns->size())
                throw Refusal{u"the arms of the union differ in width"_s};
            first = false;
        }
        const SelectArm& last = s.arms.back();
        const auto order = orderOfUnion(s, *columns);
        unionOrder(order, *columns, !last.inBrackets && order == &last.orderBy);
    }

    // Arms may bring orders of their own; the last one that fits the whole orders the whole.
    static const std::vector<OrderTerm>* orderOfUnion(const Select& s, const std::vector<ResultColumn>& names)
    {
        const SelectArm& last = s.arms.back();
        if (!last.inBrackets && !last.orderBy.empty())
            return &last.orderBy;
        const std::vector<OrderTerm>* fitting = nullptr;
        for (const SelectArm& arm : s.arms) {
            if (!arm.orderBy.empty() && fits(arm.orderBy, names))
                fitting = &arm.orderBy;
        }
        return fitting;
    }

    static int positionOf(const OrderTerm& term, const std::vector<ResultColumn>& columns)
    {
        if (term.expression->kind != Expression::Kind::Column)
            return -1;
        for (size_t i = 0; i < columns.size(); ++i) {
            if (sameName(columns[i].name, term.expression->name))
                return int(i);
        }
        return -1;
    }

    static bool fits(const std::vector<OrderTerm>& terms, const std::vector<ResultColumn>& columns)
    {
        return std::all_of(terms.begin(), terms.end(),
            [&](const OrderTerm& term) { return positionOf(term, columns) >= 0; });
    }

    // By position: the file engine would sort "name as contact, name" by the first column when told "name".
    void unionOrder(
        const std::vector<OrderTerm>* terms, const std::vector<ResultColumn>& columns, bool mustFit)
    {
        m_out += u" ORDER BY "_s;
        if (!terms) {
            for (size_t i = 0; i < columns.size(); ++i)
                orderPosition(int(i), columns, false, i == 0);
            return;
        }
        bool first = true;
        for (const OrderTerm& term : *terms) {
            const int position = positionOf(term, columns);
            if (position < 0 && mustFit)
                throw Refusal{u"the order of a union names no column of its first arm: "_s
                    + term.expression->name.toString()};
            orderPosition(position, columns, term.descending, first);
            first = false;
        }
    }

    void orderPosition(int position, const std::vector<ResultColumn>& columns, bool descending, bool first)
    {
        if (!first)
            m_out += u", "_s;
        m_out += QString::number(position + 1);
        const Type type = typeOfColumn(columns[size_t(position)].type);
        if (type == Type::Text || type == Type::Unknown)
            m_out += u" COLLATE JET"_s;
        if (descending)
            m_out += u" DESC"_s;
    }

    void single(const SelectArm& arm, std::vector<ResultColumn>* columns)
    {
        const size_t scopes = m_scopes.size();
        selectArm(arm, columns, true);
        orderBy(arm.orderBy);
        // The lists of the screens rely on distinct values coming sorted.
        if (arm.distinct && arm.orderBy.empty()) {
            m_out += u" ORDER BY "_s;
            for (size_t i = 0; i < columns->size(); ++i)
                orderPosition(int(i), *columns, false, i == 0);
        }
        m_scopes.resize(scopes);
    }

    void selectArm(const SelectArm& arm, std::vector<ResultColumn>* columns, bool keepScope = false)
    {
        openScope(arm);
        m_out += arm.distinct ? u"SELECT DISTINCT "_s : u"SELECT "_s;
        itemList(arm, columns);
        bool first = true;
        for (const TableName& from : arm.tables) {
            m_out += first ? u" FROM "_s : u", "_s;
            tableAs(from);
            first = false;
        }
        whereOf(arm);
        first = true;
        for (const auto& group : arm.groupBy) {
            m_out += first ? u" GROUP BY "_s : u", "_s;
            collated(*group);
            first = false;
        }
        if (arm.having) {
            m_out += u" HAVING "_s;
            truth(*arm.having);
        }
        if (!keepScope)
            m_scopes.pop_back();
    }

    void openScope(const SelectArm& arm)
    {
        Scope scope;
        for (const TableName& from : arm.tables)
            scope.push_back({table(from.name), from.shownAs()});
        m_scopes.push_back(std::move(scope));
    }

    void itemList(const SelectArm& arm, std::vector<ResultColumn>* columns)
    {
        bool first = true;
        for (const SelectItem& item : arm.items) {
            if (item.star) {
                star(item, columns, first);
            } else {
                if (!first)
                    m_out += u", "_s;
                selectItem(item, columns);
            }
            first = false;
        }
    }

    void star(const SelectItem& item, std::vector<ResultColumn>* columns, bool first)
    {
        bool found = false;
        for (const ScopeTable& from : m_scopes.back()) {
            if (!item.starTable.isEmpty() && !sameName(from.shownAs, item.starTable))
                continue;
            found = true;
            for (const CatalogColumn& column : from.table->columns) {
                if (!first)
                    m_out += u", "_s;
                first = false;
                name(from.shownAs);
                m_out += u'.';
                name(column.name);
                columns->push_back({column.name, column.type, column.name});
            }
        }
        if (!found)
            throw Refusal{u"no table for *"_s};
    }

    void selectItem(const SelectItem& item, std::vector<ResultColumn>* columns)
    {
        const Expression& e = *item.expression;
        if (!m_isNamed) {
            collated(e);
            columns->push_back({});
            return;
        }
        ResultColumn column;
        if (e.kind == Expression::Kind::Column) {
            const CatalogColumn* found = resolve(e);
            column.type = found ? found->type : ColumnType::Unknown;
            column.source = found ? found->name : QString();
            column.name = column.source == e.name ? column.source : e.name.toString();
        } else {
            column.type = columnTypeOf(typeOf(e));
            if (item.alias.isEmpty())
                column.name = u"Expr"_s + QString::number(1000 + columns->size());
        }
        if (!item.alias.isEmpty())
            column.name = item.alias.toString();
        collated(e);
        m_out += u" AS "_s;
        name(column.name);
        columns->push_back(std::move(column));
    }

    void whereOf(const SelectArm& arm)
    {
        if (!arm.where)
            return;
        m_out += u" WHERE "_s;
        truth(*arm.where);
    }

    /// With a plus before it the file engine sorts by a column and walks no index of it.
    void orderBy(const std::vector<OrderTerm>& terms, bool sorts = false)
    {
        bool first = true;
        for (const OrderTerm& term : terms) {
            m_out += first ? u" ORDER BY "_s : u", "_s;
            if (sorts)
                m_out += u'+';
            // An alias of this very selection is found by the file engine alone.
            if (term.expression->kind == Expression::Kind::Column)
                column(*term.expression);
            else
                collated(*term.expression);
            if (term.descending)
                m_out += u" DESC"_s;
            first = false;
        }
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
        }
        if (s.where) {
            m_out += u" WHERE "_s;
            truth(*s.where);
        }
        result.main = takePiece();
        return result;
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

    bool m_isNamed = true; ///< the columns of the arm that is written need names
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
