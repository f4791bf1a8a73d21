#pragma once

#include <QStringView>

#include <memory>
#include <vector>

namespace jet {

struct Select;

/// The tree of one statement. Its names are views into the statement and the tokens, so it lives no longer
/// than they.

/// An expression. `and` and `or` hold all their terms in one node, so that long chains stay flat.
struct Expression {
    enum class Kind {
        Column, ///< name, perhaps with table
        Literal, ///< a value that is bound: literal and literalKind tell which
        Number, ///< a number that stays in the text
        True,
        False,
        Null,
        Negative,
        Not,
        And,
        Or,
        Arithmetic, ///< op is + - * / \ mod ^ &
        Compare, ///< op is = <> < > <= >=
        Like,
        In,
        InSelect,
        Between,
        IsNull,
        Call,
        CountAll,
        Subselect,
        Exists,
    };
    Kind kind = Kind::Null;
    bool negated = false;
    int depth = 1;
    int literal = -1;
    int literalKind = 0;
    QStringView op;
    QStringView table;
    QStringView name; ///< column, function, or the text of a number or value
    std::vector<std::unique_ptr<Expression>> parts;
    std::unique_ptr<Select> select;

    // A statement has hundreds of these, and the next one can use them again.
    static void* operator new(size_t size);
    static void operator delete(void* node);
};

using ExpressionPtr = std::unique_ptr<Expression>;

struct SelectItem {
    bool star = false;
    QStringView starTable; ///< of t.*, empty for a bare star
    ExpressionPtr expression;
    QStringView alias;
};

struct TableName {
    QStringView name;
    QStringView alias;
    QStringView shownAs() const { return alias.isEmpty() ? name : alias; }
};

struct OrderTerm {
    ExpressionPtr expression;
    bool descending = false;
};

struct SelectArm {
    bool distinct = false;
    bool inBrackets = false;
    bool keepsDoubles = false; ///< joined to the arms before it by `union all`
    std::vector<SelectItem> items;
    std::vector<TableName> tables;
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;
    std::vector<OrderTerm> orderBy;
};

struct Select {
    std::vector<SelectArm> arms; ///< more than one: a union
    QStringView into; ///< the table that select .. into makes
    bool intoOtherFile = false;
};

struct Assignment {
    QStringView column;
    ExpressionPtr value;
};

struct Statement {
    enum class Kind { Select, Update, Delete, Insert, Drop };
    Kind kind = Kind::Select;
    TableName table;
    Select select;
    std::vector<Assignment> assignments;
    std::vector<QStringView> columns;
    std::vector<ExpressionPtr> values;
    ExpressionPtr where;
};

} // namespace jet
