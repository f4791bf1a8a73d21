#include "jet/selection_emitter.h"

#include "jet/same_name.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

void SelectionEmitter::selection(const Select& s, std::vector<ResultColumn>* columns)
{
    const bool wasNamed = std::exchange(m_isNamed, true); // outside of this one, which may stand inside
    if (s.arms.size() == 1)
        single(s.arms.front(), columns);
    else
        unionOf(s, columns);
    m_isNamed = wasNamed;
}

void SelectionEmitter::unionOf(const Select& s, std::vector<ResultColumn>* columns)
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
    orderWhole(s, *columns);
}

void SelectionEmitter::orderWhole(const Select& s, const std::vector<ResultColumn>& columns)
{
    const SelectArm& last = s.arms.back();
    const auto order = orderOfUnion(s, columns);
    unionOrder(order, columns, !last.inBrackets && order == &last.orderBy);
}

// Arms may bring orders of their own; the last one that fits the whole orders the whole.
const std::vector<OrderTerm>* SelectionEmitter::orderOfUnion(
    const Select& s, const std::vector<ResultColumn>& names)
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

int SelectionEmitter::positionOf(const OrderTerm& term, const std::vector<ResultColumn>& columns)
{
    if (term.expression->kind != Expression::Kind::Column)
        return -1;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (sameName(columns[i].name, term.expression->name))
            return int(i);
    }
    return -1;
}

bool SelectionEmitter::fits(const std::vector<OrderTerm>& terms, const std::vector<ResultColumn>& columns)
{
    return std::all_of(
        terms.begin(), terms.end(), [&](const OrderTerm& term) { return positionOf(term, columns) >= 0; });
}

// By position: the file engine would sort "name as contact, name" by the first column when told "name".
void SelectionEmitter::unionOrder(
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

void SelectionEmitter::orderPosition(
    int position, const std::vector<ResultColumn>& columns, bool descending, bool first)
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

void SelectionEmitter::single(const SelectArm& arm, std::vector<ResultColumn>* columns)
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

void SelectionEmitter::selectArm(const SelectArm& arm, std::vector<ResultColumn>* columns, bool keepScope)
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

void SelectionEmitter::openScope(const SelectArm& arm)
{
    Scope scope;
    for (const TableName& from : arm.tables)
        scope.push_back({table(from.name), from.shownAs()});
    m_scopes.push_back(std::move(scope));
}

void SelectionEmitter::itemList(const SelectArm& arm, std::vector<ResultColumn>* columns)
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

void SelectionEmitter::star(const SelectItem& item, std::vector<ResultColumn>* columns, bool first)
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

void SelectionEmitter::selectItem(const SelectItem& item, std::vector<ResultColumn>* columns)
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

void SelectionEmitter::whereOf(const SelectArm& arm)
{
    if (!arm.where)
        return;
    m_out += u" WHERE "_s;
    truth(*arm.where);
}

/// With a plus before it the file engine sorts by a column and walks no index of it.
void SelectionEmitter::orderBy(const std::vector<OrderTerm>& terms, bool sorts)
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

} // namespace jet
