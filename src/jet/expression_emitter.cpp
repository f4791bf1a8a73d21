#include "jet/expression_emitter.h"

#include "jet/lexer.h"
#include "jet/same_name.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// A function of the dialect and what it is for the file engine.
struct Function {
    QStringView name;
    QStringView emitted;
    int fewest;
    int most;
    ColumnType type; ///< of its result; Unknown for that of its argument
    bool aggregate = false;
};

// len and trim are the file engine's own: they agree, and an index on them can be read by any tool.
constexpr Function kFunctions[] = {
    {u"len", u"length", 1, 1, ColumnType::Number},
    {u"trim", u"trim", 1, 1, ColumnType::Text},
    {u"mid", u"jet_mid", 2, 3, ColumnType::Text},
    {u"year", u"jet_year", 1, 1, ColumnType::Number},
    {u"month", u"jet_month", 1, 1, ColumnType::Number},
    {u"day", u"jet_day", 1, 1, ColumnType::Number},
    {u"format", u"jet_format", 2, 2, ColumnType::Text},
    {u"val", u"jet_val", 1, 1, ColumnType::Number},
    {u"cstr", u"jet_cstr", 1, 1, ColumnType::Text},
    {u"count", u"count", 1, 1, ColumnType::Number, true},
    {u"max", u"max", 1, 1, ColumnType::Unknown, true},
};

const Function* functionOf(QStringView name)
{
    const auto found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
        [&](const Function& f) { return sameName(name, f.name); });
    return found == std::end(kFunctions) ? nullptr : found;
}

} // namespace

ExpressionEmitter::Type ExpressionEmitter::typeOfColumn(ColumnType type)
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

ColumnType ExpressionEmitter::columnTypeOf(Type type)
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

bool ExpressionEmitter::isAggregate(const Expression& e)
{
    if (e.kind == Expression::Kind::CountAll)
        return true;
    const Function* function = e.kind == Expression::Kind::Call ? functionOf(e.name) : nullptr;
    return function && function->aggregate;
}

bool ExpressionEmitter::hasAggregate(const Expression& e)
{
    return isAggregate(e)
        || std::any_of(e.parts.begin(), e.parts.end(), [](const auto& part) { return hasAggregate(*part); });
}

/// A condition as a whole: a bare yes/no column or comparison.
void ExpressionEmitter::truth(const Expression& e)
{
    expression(e);
}

void ExpressionEmitter::expression(const Expression& e)
{
    switch (e.kind) {
    case Expression::Kind::Column: return column(e);
    case Expression::Kind::Literal: return literal(e, Slot::Reading::AsIs);
    case Expression::Kind::Number: m_out += e.name; return;
    case Expression::Kind::True: m_out += u"1"_s; return;
    case Expression::Kind::False: m_out += u"0"_s; return;
    case Expression::Kind::Null: m_out += u"NULL"_s; return;
    case Expression::Kind::Negative: return wrapped(u"(-", *e.parts[0]);
    case Expression::Kind::Not: return wrapped(u"(NOT ", *e.parts[0]);
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

void ExpressionEmitter::column(const Expression& e)
{
    if (!e.table.isEmpty()) {
        name(e.table);
        m_out += u'.';
    }
    name(e.name);
}

void ExpressionEmitter::literal(const Expression& e, Slot::Reading reading)
{
    m_out += u'?';
    m_slots.push_back({e.literal, reading});
}

void ExpressionEmitter::wrapped(QStringView opening, const Expression& e)
{
    m_out += opening;
    expression(e);
    m_out += u')';
}

void ExpressionEmitter::terms(const Expression& e, QStringView between)
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

bool ExpressionEmitter::isPlainLike(const Expression& e)
{
    return e.kind == Expression::Kind::Like && !e.negated && e.parts[0]->kind == Expression::Kind::Column
        && e.parts[1]->kind == Expression::Kind::Literal;
}

// A keyword search is one pattern over many columns: one call for all of them spares most of its time.
void ExpressionEmitter::orTerms(const Expression& e)
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
bool ExpressionEmitter::samePattern(const Expression& a, const Expression& b)
{
    return a.parts.size() == 2 && a.parts[1]->kind == Expression::Kind::Literal
        && a.parts[1]->name == b.parts[1]->name && a.parts[1]->literalKind == b.parts[1]->literalKind;
}

void ExpressionEmitter::arithmetic(const Expression& e)
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

void ExpressionEmitter::infix(const Expression& a, QStringView op, const Expression& b)
{
    m_out += u'(';
    expression(a);
    m_out += op;
    expression(b);
    m_out += u')';
}

void ExpressionEmitter::called(QStringView function, const Expression& a, const Expression& b)
{
    m_out += function;
    expression(a);
    m_out += u", "_s;
    expression(b);
    m_out += u')';
}

void ExpressionEmitter::compare(const Expression& e)
{
    const Expression& a = *e.parts[0];
    const Expression& b = *e.parts[1];
    if (b.kind == Expression::Kind::Null || a.kind == Expression::Kind::Null)
        return compareWithNull(e);
    const bool equality = e.op == u"=" || e.op == u"<>";
    const Type left = typeOf(a);
    if (equality && left == Type::YesNo && isTruth(b))
        return compareYesNo(a, (b.kind == Expression::Kind::True) == (e.op == u"="));
    if (left == Type::YesNo && equality) {
        m_out += u"(("_s;
        expression(a);
        m_out += u" <> 0) "_s;
        m_out += e.op;
        m_out += u" ("_s;
        read(b, Type::YesNo);
        m_out += u" <> 0))"_s;
        return;
    }
    m_out += u'(';
    leftSide(a, typeOf(b));
    m_out += u' ';
    m_out += e.op;
    m_out += u' ';
    read(b, left);
    m_out += u')';
}

bool ExpressionEmitter::isTruth(const Expression& e)
{
    return e.kind == Expression::Kind::True || e.kind == Expression::Kind::False;
}

// A stored -1 is as true as a 1.
void ExpressionEmitter::compareYesNo(const Expression& a, bool wanted)
{
    m_out += u'(';
    expression(a);
    m_out += wanted ? u" <> 0)"_s : u" = 0)"_s;
}

void ExpressionEmitter::compareWithNull(const Expression& e)
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

bool ExpressionEmitter::isNeverEqualToNull(const Expression& e) const
{
    if (e.kind != Expression::Kind::Column)
        return false;
    const CatalogColumn* column = resolve(e);
    return column && column->isNeverEqualToNull;
}

/// The left side of a comparison. A column brings its own collation; anything else gets it here.
void ExpressionEmitter::leftSide(const Expression& e, Type other)
{
    if (e.kind == Expression::Kind::Literal) {
        read(e, other);
        if (typeOf(e) == Type::Text && other != Type::Date && other != Type::Number)
            m_out += u" COLLATE JET"_s;
        return;
    }
    collated(e);
}

void ExpressionEmitter::collated(const Expression& e)
{
    expression(e);
    if (e.kind == Expression::Kind::Column || e.kind == Expression::Kind::Null)
        return;
    const Type type = typeOf(e);
    if (type == Type::Text || type == Type::Unknown)
        m_out += u" COLLATE JET"_s;
}

/// A value beside a column or expression of a type: a quoted date or number is read as one.
void ExpressionEmitter::read(const Expression& e, Type type)
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

/// A value on its way into a column.
void ExpressionEmitter::stored(const Expression& e, ColumnType type)
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

void ExpressionEmitter::like(const Expression& e)
{
    if (e.negated)
        m_out += u"(NOT "_s;
    m_out += m_way == Way::Dao ? u"jet_like_dao("_s : u"jet_like_ado("_s;
    expression(*e.parts[0]);
    m_out += u", "_s;
    expression(*e.parts[1]);
    m_out += e.negated ? u"))"_s : u")"_s;
}

void ExpressionEmitter::inList(const Expression& e)
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

void ExpressionEmitter::inSelect(const Expression& e)
{
    m_out += u'(';
    collated(*e.parts[0]);
    m_out += e.negated ? u" NOT IN "_s : u" IN "_s;
    subselect(*e.select, u"(");
    m_out += u')';
}

void ExpressionEmitter::between(const Expression& e)
{
    m_out += u'(';
    leftSide(*e.parts[0], typeOf(*e.parts[1]));
    m_out += e.negated ? u" NOT BETWEEN "_s : u" BETWEEN "_s;
    read(*e.parts[1], typeOf(*e.parts[0]));
    m_out += u" AND "_s;
    read(*e.parts[2], typeOf(*e.parts[0]));
    m_out += u')';
}

void ExpressionEmitter::subselect(const Select& s, QStringView opening)
{
    if (!s.into.isEmpty())
        throw Refusal{u"a selection inside a statement makes no table"_s};
    m_out += opening;
    std::vector<ResultColumn> columns;
    selection(s, &columns);
    m_out += u')';
}

void ExpressionEmitter::call(const Expression& e)
{
    if (sameName(e.name, u"isnull") && e.parts.size() == 1) {
        m_out += u'(';
        expression(*e.parts[0]);
        m_out += u" IS NULL)"_s;
        return;
    }
    if (sameName(e.name, u"iif") && e.parts.size() == 3) {
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
        throw Refusal{u"no such function: "_s + e.name.toString()};
    if (int(e.parts.size()) < function->fewest || int(e.parts.size()) > function->most)
        throw Refusal{u"wrong number of arguments of "_s + e.name.toString()};
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

ExpressionEmitter::Type ExpressionEmitter::typeOf(const Expression& e)
{
    switch (e.kind) {
    case Expression::Kind::Column: {
        const CatalogColumn* column = resolve(e);
        return column ? typeOfColumn(column->type) : Type::Unknown;
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
        if (sameName(e.name, u"iif") && e.parts.size() == 3)
            return typeOf(*e.parts[1]);
        if (sameName(e.name, u"max") && e.parts.size() == 1)
            return typeOf(*e.parts[0]);
        const Function* function = functionOf(e.name);
        return function ? typeOfColumn(function->type) : Type::YesNo;
    }
    case Expression::Kind::Null:
    case Expression::Kind::Subselect: return Type::Unknown;
    default: return Type::YesNo;
    }
}

ExpressionEmitter::Type ExpressionEmitter::typeOfArithmetic(const Expression& e)
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

const CatalogColumn* ExpressionEmitter::resolve(const Expression& e) const
{
    for (auto scope = m_scopes.rbegin(); scope != m_scopes.rend(); ++scope) {
        for (const ScopeTable& from : *scope) {
            if (!e.table.isEmpty() && !sameName(e.table, from.shownAs))
                continue;
            if (const CatalogColumn* column = from.table->column(e.name))
                return column;
        }
    }
    return nullptr;
}

const CatalogTable* ExpressionEmitter::table(QStringView tableName) const
{
    const CatalogTable* found = m_catalog(tableName);
    if (!found)
        throw Refusal{u"no such table: "_s + tableName.toString()};
    return found;
}

const CatalogColumn* ExpressionEmitter::columnOf(const CatalogTable& target, QStringView columnName)
{
    const CatalogColumn* found = target.column(columnName);
    if (!found)
        throw Refusal{u"no such column: "_s + columnName.toString()};
    return found;
}

void ExpressionEmitter::name(QStringView text)
{
    m_out += u'[';
    m_out += text;
    m_out += u']';
}

void ExpressionEmitter::tableAs(const TableName& from)
{
    name(table(from.name)->name);
    if (!from.alias.isEmpty()) {
        m_out += u" AS "_s;
        name(from.alias);
    }
}

void ExpressionEmitter::rowKey(const TableName& from)
{
    name(from.shownAs());
    m_out += u".rowid"_s;
}

Piece ExpressionEmitter::takePiece()
{
    Piece piece{m_out.text(), std::move(m_slots)};
    m_out.clear();
    m_slots.clear();
    return piece;
}

} // namespace jet
