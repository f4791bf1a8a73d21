#include "jet/translator.h"

#include "jet/lexer.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

enum class Type { Unknown, Text, Number, YesNo, Date };

Type typeOfColumn(ColumnType type)
{
    switch (type) {
    case ColumnType::Text:
    case ColumnType::Memo: return Type::Text;
    case ColumnType::Number:
    case ColumnType::AutoNumber: return Type::Number;
    case ColumnType::YesNo: return Type::YesNo;
    case ColumnType::Date: return Type::Date;
    case ColumnType::Unknown: break;
    }
    return Type::Unknown;
}

ColumnType columnTypeOf(Type type)
{
    switch (type) {
    case Type::Text: return ColumnType::Text;
    case Type::Number: return ColumnType::Number;
    case Type::YesNo: return ColumnType::YesNo;
    case Type::Date: return ColumnType::Date;
    case Type::Unknown: break;
    }
    return ColumnType::Unknown;
}

struct Function {
    QStringView name;
    QStringView emitted;
    int fewest;
    int most;
    Type type;
    bool aggregate = false;
};

// len and trim are the file engine's own: they agree, and an index on them can be read by any tool.
constexpr Function kFunctions[] = {
    {u"len", u"length", 1, 1, Type::Number},
    {u"trim", u"trim", 1, 1, Type::Text},
    {u"mid", u"jet_mid", 2, 3, Type::Text},
    {u"year", u"jet_year", 1, 1, Type::Number},
    {u"month", u"jet_month", 1, 1, Type::Number},
    {u"day", u"jet_day", 1, 1, Type::Number},
    {u"format", u"jet_format", 2, 2, Type::Text},
    {u"val", u"jet_val", 1, 1, Type::Number},
    {u"cstr", u"jet_cstr", 1, 1, Type::Text},
    {u"count", u"count", 1, 1, Type::Number, true},
    {u"max", u"max", 1, 1, Type::Unknown, true},
};

const Function* functionOf(const QString& name)
{
    const auto found = std::find_if(
        std::begin(kFunctions), std::end(kFunctions), [&](const Function& f) { return name == f.name; });
    return found == std::end(kFunctions) ? nullptr : found;
}

// A test of these two columns against null was never true in the lists that use it, and stays so; of any
// other column it means "is not null".
struct NeverEqualToNull {
    QStringView table;
    QStringView column;
};
constexpr NeverEqualToNull kNeverEqualToNull[] = {{u"CNT_TOPCITIES", u"city"}, {u"CNTB_OTHER", u"user1"}};

bool same(QStringView a, QStringView b)
{
    return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

struct Refusal {
    QString reason;
};

struct ScopeTable {
    const CatalogTable* table;
    QString shownAs;
};
using Scope = std::vector<ScopeTable>;

struct Resolved {
    const CatalogTable* table = nullptr;
    const CatalogColumn* column = nullptr;
};

class Emitter {
public:
    Emitter(const Catalog& catalog, Way way)
        : m_catalog(catalog)
        , m_way(way)
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
        m_out = u"DROP TABLE "_s;
        name(gone->name);
        result.main = takePiece();
        return result;
    }

    Piece idsWhere(const Expression& condition, const QString& tableName, const QString& alias)
    {
        const TableName from{tableName, alias};
        m_scopes.push_back({{table(tableName), from.shownAs()}});
        m_out = u"SELECT "_s;
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
        m_out = u"SELECT [position] FROM (SELECT *, row_number() OVER () - 1 AS [position] FROM ("_s
            + snapshot.main.sql + u")) AS [rows] WHERE "_s;
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
            compound(s, &result.columns); // the names in it are still checked
            return result;
        }
        if (!s.into.isEmpty())
            return makeTable(s);
        if (isKeyset(s))
            return keyset(s.arms.front());
        Translation result;
        compound(s, &result.columns);
        result.main = takePiece();
        return result;
    }

    Translation makeTable(const Select& s)
    {
        if (m_catalog(s.into))
            throw Refusal{u"there is a table "_s + s.into};
        Translation result;
        result.kind = Translation::Kind::MakeTable;
        if (s.into.startsWith(u"sqlite_", Qt::CaseInsensitive))
            throw Refusal{u"no such table can be made: "_s + s.into};
        m_out = u"CREATE TABLE "_s;
        name(s.into);
        m_out += u" AS "_s;
        std::vector<ResultColumn> columns;
        compound(s, &columns);
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

    static bool hasAggregate(const Expression& e)
    {
        if (e.kind == Expression::Kind::CountAll)
            return true;
        if (e.kind == Expression::Kind::Call) {
            const Function* function = functionOf(e.name);
            if (function && function->aggregate)
                return true;
        }
        return std::any_of(
            e.parts.begin(), e.parts.end(), [](const auto& part) { return hasAggregate(*part); });
    }

    Translation keyset(const SelectArm& arm)
    {
        constexpr size_t kMostHeldColumns = 10;
        Translation result;
        result.kind = Translation::Kind::Keyset;
        const TableName& from = arm.tables.front();
        result.table = table(from.name)->name;
        result.tableAlias = from.shownAs();
        openScope(arm);

        QString list;
        std::swap(list, m_out);
        itemList(arm, &result.columns);
        std::swap(list, m_out);
        const std::vector<Slot> listSlots = std::move(m_slots);
        m_slots.clear();

        const bool hasMemo = std::any_of(result.columns.begin(), result.columns.end(),
            [](const ResultColumn& column) { return column.type == ColumnType::Memo; });
        const bool plain = std::all_of(arm.items.begin(), arm.items.end(), [](const SelectItem& item) {
            return item.star || (item.expression->kind == Expression::Kind::Column && item.alias.isEmpty());
        });
        result.idsOnly = plain && (hasMemo || result.columns.size() > kMostHeldColumns);

        m_out = u"SELECT "_s;
        rowKey(from);
        if (!result.idsOnly) {
            m_out += u", "_s + list;
            m_slots = listSlots;
        }
        m_out += u" FROM "_s;
        tableAs(from);
        whereOf(arm);
        orderBy(arm.orderBy);
        result.main = takePiece();

        m_out = u"SELECT "_s + list + u" FROM "_s;
        m_slots = listSlots;
        tableAs(from);
        m_out += u" WHERE "_s;
        rowKey(from);
        m_out += u" = ?"_s;
        result.row = takePiece();
        m_scopes.pop_back();
        return result;
    }

    void compound(const Select& s, std::vector<ResultColumn>* columns)
    {
        if (s.arms.size() == 1)
            return single(s.arms.front(), columns);
        std::vector<ResultColumn> armColumns;
        bool first = true;
        for (const SelectArm& arm : s.arms) {
            if (!first)
                m_out += arm.keepsDoubles ? u" UNION ALL "_s : u" UNION "_s;
            armColumns.clear();
            selectArm(arm, &armColumns);
            if (first)
                *columns = armColumns;
            else if (armColumns.size() != columns->size())
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
            if (same(columns[i].name, term.expression->name))
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
                throw Refusal{
                    u"the order of a union names no column of its first arm: "_s + term.expression->name};
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
            if (!item.starTable.isEmpty() && !same(from.shownAs, item.starTable))
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
        ResultColumn column;
        if (e.kind == Expression::Kind::Column) {
            const Resolved found = resolve(e);
            column.type = found.column ? found.column->type : ColumnType::Unknown;
            column.source = found.column ? found.column->name : QString();
            column.name = e.name;
        } else {
            column.type = columnTypeOf(typeOf(e));
            column.name = u"Expr%1"_s.arg(1000 + columns->size());
        }
        if (!item.alias.isEmpty())
            column.name = item.alias;
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

    void orderBy(const std::vector<OrderTerm>& terms)
    {
        bool first = true;
        for (const OrderTerm& term : terms) {
            m_out += first ? u" ORDER BY "_s : u", "_s;
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
        m_out = u"UPDATE "_s;
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
        m_out = u"DELETE FROM "_s;
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
        m_out = u"INSERT INTO "_s;
        name(target->name);
        std::vector<const CatalogColumn*> columns;
        if (s.columns.empty()) {
            for (const CatalogColumn& column : target->columns)
                columns.push_back(&column);
        }
        for (const QString& columnName : s.columns)
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

    /// A value on its way into a column.
    void stored(const Expression& e, ColumnType type)
    {
        if (type == ColumnType::YesNo) {
            m_out += u"ifnull(("_s;
            read(e, Type::YesNo);
            m_out += u") <> 0, 0)"_s;
            return;
        }
        // Only a date may reach a date column, and only a number a number column, also out of a text column.
        const bool convert = e.kind != Expression::Kind::Literal && typeOf(e) == Type::Text;
        if (convert && type == ColumnType::Date)
            return wrapped(u"jet_date(", e);
        if (convert && (type == ColumnType::Number || type == ColumnType::AutoNumber))
            return wrapped(u"jet_number(", e);
        read(e, typeOfColumn(type));
    }

    void wrapped(QStringView function, const Expression& e)
    {
        m_out += function;
        expression(e);
        m_out += u')';
    }

    // ---- expressions

    /// A condition as a whole: a bare yes/no column or comparison.
    void truth(const Expression& e) { expression(e); }

    void expression(const Expression& e)
    {
        switch (e.kind) {
        case Expression::Kind::Column: return column(e);
        case Expression::Kind::Literal: return literal(e, Slot::Reading::AsIs);
        case Expression::Kind::Number: m_out += e.name; return;
        case Expression::Kind::True: m_out += u"1"_s; return;
        case Expression::Kind::False: m_out += u"0"_s; return;
        case Expression::Kind::Null: m_out += u"NULL"_s; return;
        case Expression::Kind::Negative: return prefixed(u"(-", e);
        case Expression::Kind::Not: return prefixed(u"(NOT ", e);
        case Expression::Kind::And: return terms(e, u" AND ");
        case Expression::Kind::Or: return orTerms(e);
        case Expression::Kind::Arithmetic: return arithmetic(e);
        case Expression::Kind::Compare: return compare(e);
        case Expression::Kind::Like: return like(e);
        case Expression::Kind::In: return inList(e);
        case Expression::Kind::InSelect: return inSelect(e);
        case Expression::Kind::Between: return between(e);
        case Expression::Kind::IsNull:
            m_out += u'(';
            expression(*e.parts[0]);
            m_out += e.negated ? u" IS NOT NULL)"_s : u" IS NULL)"_s;
            return;
        case Expression::Kind::Call: return call(e);
        case Expression::Kind::CountAll: m_out += u"count(*)"_s; return;
        case Expression::Kind::Subselect: return subselect(*e.select, u"(");
        case Expression::Kind::Exists: return subselect(*e.select, u"EXISTS (");
        }
    }

    void column(const Expression& e)
    {
        if (!e.table.isEmpty()) {
            name(e.table);
            m_out += u'.';
        }
        name(e.name);
    }

    void literal(const Expression& e, Slot::Reading reading)
    {
        m_out += u'?';
        m_slots.push_back({e.literal, reading});
    }

    void prefixed(QStringView prefix, const Expression& e)
    {
        m_out += prefix;
        expression(*e.parts[0]);
        m_out += u')';
    }

    void terms(const Expression& e, QStringView between)
    {
        m_out += u'(';
        bool first = true;
        for (const auto& part : e.parts) {
            if (!first)
                m_out += between;
            expression(*part);
            first = false;
        }
        m_out += u')';
    }

    static bool isPlainLike(const Expression& e)
    {
        return e.kind == Expression::Kind::Like && !e.negated && e.parts[0]->kind == Expression::Kind::Column
            && e.parts[1]->kind == Expression::Kind::Literal;
    }

    // A keyword search is one pattern over many columns: one call for all of them spares most of its time.
    void orTerms(const Expression& e)
    {
        constexpr size_t kMostOfOneCall = 99; // beside the pattern; the file engine's functions take 127 values
        m_out += u'(';
        for (size_t i = 0; i < e.parts.size();) {
            if (i > 0)
                m_out += u" OR "_s;
            size_t end = i;
            while (end < e.parts.size() && end - i < kMostOfOneCall && isPlainLike(*e.parts[end])
                && samePattern(*e.parts[i], *e.parts[end]))
                ++end;
            if (end - i < 2) {
                expression(*e.parts[i++]);
                continue;
            }
            m_out += m_way == Way::Dao ? u"jet_like_any_dao("_s : u"jet_like_any_ado("_s;
            literal(*e.parts[i]->parts[1], Slot::Reading::AsIs);
            for (; i < end; ++i) {
                m_out += u", "_s;
                column(*e.parts[i]->parts[0]);
            }
            m_out += u')';
        }
        m_out += u')';
    }

    // Whether neighbours are equal is part of the shape that translations are kept by (see the lexer).
    static bool samePattern(const Expression& a, const Expression& b)
    {
        return a.parts.size() == 2 && a.parts[1]->kind == Expression::Kind::Literal
            && a.parts[1]->name == b.parts[1]->name && a.parts[1]->literalKind == b.parts[1]->literalKind;
    }

    void arithmetic(const Expression& e)
    {
        const Expression& a = *e.parts[0];
        const Expression& b = *e.parts[1];
        const bool numbers = typeOf(a) == Type::Number && typeOf(b) == Type::Number;
        if (e.op == u"+")
            return numbers ? infix(a, u" + ", b) : called(u"jet_add(", a, b);
        if (e.op == u"&")
            return called(u"jet_join(", a, b);
        if (e.op == u"^")
            return called(u"jet_power(", a, b);
        if (e.op == u"/")
            return infix(a, u" * 1.0 / ", b);
        if (e.op == u"\\" || e.op == u"mod") {
            m_out += u"(CAST("_s;
            expression(a);
            m_out += e.op == u"mod" ? u" AS INTEGER) % CAST("_s : u" AS INTEGER) / CAST("_s;
            expression(b);
            m_out += u" AS INTEGER))"_s;
            return;
        }
        infix(a, e.op == u"*" ? u" * " : u" - ", b);
    }

    void infix(const Expression& a, QStringView op, const Expression& b)
    {
        m_out += u'(';
        expression(a);
        m_out += op;
        expression(b);
        m_out += u')';
    }

    void called(QStringView function, const Expression& a, const Expression& b)
    {
        m_out += function;
        expression(a);
        m_out += u", "_s;
        expression(b);
        m_out += u')';
    }

    void compare(const Expression& e)
    {
        const Expression& a = *e.parts[0];
        const Expression& b = *e.parts[1];
        if (b.kind == Expression::Kind::Null || a.kind == Expression::Kind::Null)
            return compareWithNull(e);
        const bool equality = e.op == u"=" || e.op == u"<>";
        if (equality && typeOf(a) == Type::YesNo && isTruth(b))
            return compareYesNo(a, (b.kind == Expression::Kind::True) == (e.op == u"="));
        if (typeOf(a) == Type::YesNo && equality) {
            m_out += u"(("_s;
            expression(a);
            m_out += u" <> 0) "_s + e.op + u" ("_s;
            read(b, Type::YesNo);
            m_out += u" <> 0))"_s;
            return;
        }
        const Type left = typeOf(a);
        const Type right = typeOf(b);
        m_out += u'(';
        leftSide(a, right);
        m_out += u' ' + e.op + u' ';
        read(b, left);
        m_out += u')';
    }

    static bool isTruth(const Expression& e)
    {
        return e.kind == Expression::Kind::True || e.kind == Expression::Kind::False;
    }

    // A stored -1 is as true as a 1.
    void compareYesNo(const Expression& a, bool wanted)
    {
        m_out += u'(';
        expression(a);
        m_out += wanted ? u" <> 0)"_s : u" = 0)"_s;
    }

    void compareWithNull(const Expression& e)
    {
        const Expression& a = *e.parts[0];
        if (e.op != u"<>" || a.kind == Expression::Kind::Null || isNeverEqualToNull(a)) {
            m_out += u"NULL"_s;
            return;
        }
        m_out += u'(';
        expression(a);
        m_out += u" IS NOT NULL)"_s;
    }

    bool isNeverEqualToNull(const Expression& e)
    {
        if (e.kind != Expression::Kind::Column)
            return false;
        const Resolved found = resolve(e);
        return found.column
            && std::any_of(
                std::begin(kNeverEqualToNull), std::end(kNeverEqualToNull), [&](const auto& never) {
                    return same(never.table, found.table->name) && same(never.column, found.column->name);
                });
    }

    /// The left side of a comparison. A column brings its own collation; anything else gets it here.
    void leftSide(const Expression& e, Type other)
    {
        if (e.kind == Expression::Kind::Literal) {
            read(e, other);
            if (typeOf(e) == Type::Text && other != Type::Date && other != Type::Number)
                m_out += u" COLLATE JET"_s;
            return;
        }
        collated(e);
    }

    void collated(const Expression& e)
    {
        expression(e);
        const Type type = typeOf(e);
        if (e.kind != Expression::Kind::Column && e.kind != Expression::Kind::Null
            && (type == Type::Text || type == Type::Unknown))
            m_out += u" COLLATE JET"_s;
    }

    /// A value beside a column or expression of a type: a quoted date or number is read as one.
    void read(const Expression& e, Type type)
    {
        const bool text = e.kind == Expression::Kind::Literal && e.literalKind == int(Literal::Kind::Text);
        if (text && type == Type::Date)
            return literal(e, Slot::Reading::Date);
        if (text && type == Type::Number)
            return literal(e, Slot::Reading::Number);
        if (text && type == Type::YesNo)
            return literal(e, Slot::Reading::YesNo);
        expression(e);
    }

    void like(const Expression& e)
    {
        if (e.negated)
            m_out += u"(NOT "_s;
        m_out += m_way == Way::Dao ? u"jet_like_dao("_s : u"jet_like_ado("_s;
        expression(*e.parts[0]);
        m_out += u", "_s;
        expression(*e.parts[1]);
        m_out += e.negated ? u"))"_s : u")"_s;
    }

    void inList(const Expression& e)
    {
        m_out += u'(';
        leftSide(*e.parts[0], typeOf(*e.parts[1]));
        m_out += e.negated ? u" NOT IN ("_s : u" IN ("_s;
        for (size_t i = 1; i < e.parts.size(); ++i) {
            if (i > 1)
                m_out += u", "_s;
            read(*e.parts[i], typeOf(*e.parts[0]));
        }
        m_out += u"))"_s;
    }

    void inSelect(const Expression& e)
    {
        m_out += u'(';
        collated(*e.parts[0]);
        m_out += e.negated ? u" NOT IN "_s : u" IN "_s;
        subselect(*e.select, u"(");
        m_out += u')';
    }

    void between(const Expression& e)
    {
        m_out += u'(';
        leftSide(*e.parts[0], typeOf(*e.parts[1]));
        m_out += e.negated ? u" NOT BETWEEN "_s : u" BETWEEN "_s;
        read(*e.parts[1], typeOf(*e.parts[0]));
        m_out += u" AND "_s;
        read(*e.parts[2], typeOf(*e.parts[0]));
        m_out += u')';
    }

    void subselect(const Select& s, QStringView opening)
    {
        if (!s.into.isEmpty())
            throw Refusal{u"a selection inside a statement makes no table"_s};
        m_out += opening;
        std::vector<ResultColumn> columns;
        compound(s, &columns);
        m_out += u')';
    }

    void call(const Expression& e)
    {
        if (e.name == u"isnull" && e.parts.size() == 1) {
            m_out += u'(';
            expression(*e.parts[0]);
            m_out += u" IS NULL)"_s;
            return;
        }
        if (e.name == u"iif" && e.parts.size() == 3) {
            m_out += u"CASE WHEN "_s;
            expression(*e.parts[0]);
            m_out += u" THEN "_s;
            expression(*e.parts[1]);
            m_out += u" ELSE "_s;
            expression(*e.parts[2]);
            m_out += u" END"_s;
            return;
        }
        const Function* function = functionOf(e.name);
        if (!function)
            throw Refusal{u"no such function: "_s + e.name};
        if (int(e.parts.size()) < function->fewest || int(e.parts.size()) > function->most)
            throw Refusal{u"wrong number of arguments of "_s + e.name};
        m_out += function->emitted;
        m_out += u'(';
        bool first = true;
        for (const auto& part : e.parts) {
            if (!first)
                m_out += u", "_s;
            expression(*part);
            first = false;
        }
        m_out += u')';
    }

    // ---- types and names

    Type typeOf(const Expression& e)
    {
        switch (e.kind) {
        case Expression::Kind::Column: {
            const Resolved found = resolve(e);
            return found.column ? typeOfColumn(found.column->type) : Type::Unknown;
        }
        case Expression::Kind::Literal:
            return e.literalKind == int(Literal::Kind::Text) ? Type::Text
                : e.literalKind == int(Literal::Kind::Date)  ? Type::Date
                                                             : Type::Number;
        case Expression::Kind::Number:
        case Expression::Kind::Negative:
        case Expression::Kind::CountAll: return Type::Number;
        case Expression::Kind::Arithmetic: return typeOfArithmetic(e);
        case Expression::Kind::Call: {
            if (e.name == u"iif" && e.parts.size() == 3)
                return typeOf(*e.parts[1]);
            if (e.name == u"max" && e.parts.size() == 1)
                return typeOf(*e.parts[0]);
            const Function* function = functionOf(e.name);
            return function ? function->type : Type::YesNo;
        }
        case Expression::Kind::Null:
        case Expression::Kind::Subselect: return Type::Unknown;
        default: return Type::YesNo;
        }
    }

    Type typeOfArithmetic(const Expression& e)
    {
        if (e.op == u"&")
            return Type::Text;
        if (e.op != u"+")
            return Type::Number;
        const Type a = typeOf(*e.parts[0]);
        const Type b = typeOf(*e.parts[1]);
        if (a == Type::Number || b == Type::Number)
            return Type::Number;
        return a == Type::Text && b == Type::Text ? Type::Text : Type::Unknown;
    }

    Resolved resolve(const Expression& e) const
    {
        for (auto scope = m_scopes.rbegin(); scope != m_scopes.rend(); ++scope) {
            for (const ScopeTable& from : *scope) {
                if (!e.table.isEmpty() && !same(e.table, from.shownAs))
                    continue;
                if (const CatalogColumn* column = from.table->column(e.name))
                    return {from.table, column};
            }
        }
        return {};
    }

    const CatalogTable* table(const QString& tableName) const
    {
        const CatalogTable* found = m_catalog(tableName);
        if (!found)
            throw Refusal{u"no such table: "_s + tableName};
        return found;
    }

    static const CatalogColumn* columnOf(const CatalogTable& target, const QString& columnName)
    {
        const CatalogColumn* found = target.column(columnName);
        if (!found)
            throw Refusal{u"no such column: "_s + columnName};
        return found;
    }

    void name(const QString& text)
    {
        m_out += u'[';
        m_out += text;
        m_out += u']';
    }

    void tableAs(const TableName& from)
    {
        name(table(from.name)->name);
        if (!from.alias.isEmpty()) {
            m_out += u" AS "_s;
            name(from.alias);
        }
    }

    void rowKey(const TableName& from)
    {
        name(from.shownAs());
        m_out += u".rowid"_s;
    }

    Piece takePiece()
    {
        Piece piece{std::move(m_out), std::move(m_slots)};
        m_out.clear();
        m_slots.clear();
        return piece;
    }

    const Catalog& m_catalog;
    Way m_way;
    QString m_out;
    std::vector<Slot> m_slots;
    std::vector<Scope> m_scopes;
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

const CatalogColumn* CatalogTable::column(QStringView columnName) const
{
    for (const CatalogColumn& candidate : columns) {
        if (same(candidate.name, columnName))
            return &candidate;
    }
    return nullptr;
}

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
