#pragma once

#include "jet/expression_emitter.h"

#include <optional>

namespace jet {

/// Writes selections: one arm, or several that are joined to a union.
class SelectionEmitter : protected ExpressionEmitter {
protected:
    using ExpressionEmitter::ExpressionEmitter;
    ~SelectionEmitter() = default;

    void selection(const Select& s, std::vector<ResultColumn>* columns) override;
    /// A union of one table in parts that are quicker to run one by one; nothing for any other.
    std::optional<UnionParts> unionParts(const Select& s, const std::vector<ResultColumn>& columns);

    void openScope(const SelectArm& arm);
    void itemList(const SelectArm& arm, std::vector<ResultColumn>* columns);
    void whereOf(const SelectArm& arm);
    /// With a plus before it the file engine sorts by a column and walks no index of it.
    void orderBy(const std::vector<OrderTerm>& terms, bool sorts = false);

private:
    void unionOf(const Select& s, std::vector<ResultColumn>* columns);
    void orderWhole(const Select& s, const std::vector<ResultColumn>& columns);
    bool isOfOneTable(const Select& s) const;
    bool isKey(const Expression& e) const;
    bool isWhole(const Expression& e) const; ///< a whole number or null, as far as one can tell
    const Expression* datedColumn(const Expression& lead) const;
    UnionParts::Reading readingOf(const Expression& lead) const;
    bool findLeads(const Select& s, const std::vector<ResultColumn>& columns, UnionParts* parts) const;
    void keysOf(const Select& s, const std::vector<int>& varying, UnionParts* parts, bool ofRows);
    void rowsOf(const Select& s, const std::vector<ResultColumn>& columns);
    void listedRows(const TableName& from, int list);
    std::vector<int> varyingPositions(const Select& s);
    void findFilters(const Select& s, const std::vector<int>& varying, UnionParts* parts) const;
    // Arms may bring orders of their own; the last one that fits the whole orders the whole.
    static const std::vector<OrderTerm>* orderOfUnion(
        const Select& s, const std::vector<ResultColumn>& names);
    static int positionOf(const OrderTerm& term, const std::vector<ResultColumn>& columns);
    static bool fits(const std::vector<OrderTerm>& terms, const std::vector<ResultColumn>& columns);
    void unionOrder(
        const std::vector<OrderTerm>* terms, const std::vector<ResultColumn>& columns, bool mustFit);
    void orderPosition(int position, const std::vector<ResultColumn>& columns, bool descending, bool first);
    void single(const SelectArm& arm, std::vector<ResultColumn>* columns);
    void selectArm(const SelectArm& arm, std::vector<ResultColumn>* columns, bool keepScope = false);
    void star(const SelectItem& item, std::vector<ResultColumn>* columns, bool first);
    void selectItem(const SelectItem& item, std::vector<ResultColumn>* columns);

    bool m_isNamed = true; ///< the columns of the arm that is written need names
};

} // namespace jet
