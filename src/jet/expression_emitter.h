#pragma once

#include "jet/syntax_tree.h"
#include "jet/text_builder.h"
#include "jet/translator.h"

#include <QString>

#include <vector>

namespace jet {

/// Thrown when a statement names what is not there; caught where a translation begins.
struct Refusal {
    QString reason;
};

/// Writes expressions for the file engine: names in brackets, values bound, functions and comparisons by the
/// types of what stands on their sides. Selections are written by the class above it, which may stand inside
/// an expression.
class ExpressionEmitter {
protected:
    enum class Type { Unknown, Text, Number, YesNo, Date };
    struct ScopeTable {
        const CatalogTable* table;
        QStringView shownAs;
    };
    using Scope = std::vector<ScopeTable>;

    ExpressionEmitter(const Catalog& catalog, Way way)
        : m_catalog(catalog)
        , m_way(way)
    {
        m_out.reserve(2048);
    }
    ~ExpressionEmitter() = default;
    Q_DISABLE_COPY_MOVE(ExpressionEmitter)

    virtual void selection(const Select& select, std::vector<ResultColumn>* columns) = 0;

    static Type typeOfColumn(ColumnType type);
    static ColumnType columnTypeOf(Type type);
    static bool isAggregate(const Expression& e);
    static bool hasAggregate(const Expression& e); ///< or is one
    void truth(const Expression& e);
    void expression(const Expression& e);
    void column(const Expression& e);
    void literal(const Expression& e, Slot::Reading reading);
    void wrapped(QStringView opening, const Expression& e);
    void terms(const Expression& e, QStringView between);
    static bool isPlainLike(const Expression& e);
    /// What a condition asks of the texts of a row; nothing when rows can fit whatever their texts are.
    std::optional<TextFilter> textFilter(const Expression& e) const;
    void orTerms(const Expression& e);
    static bool samePattern(const Expression& a, const Expression& b);
    void arithmetic(const Expression& e);
    void infix(const Expression& a, QStringView op, const Expression& b);
    void called(QStringView function, const Expression& a, const Expression& b);
    void compare(const Expression& e);
    static bool isTruth(const Expression& e);
    void compareYesNo(const Expression& a, bool wanted);
    void compareWithNull(const Expression& e);
    bool isNeverEqualToNull(const Expression& e) const;
    void leftSide(const Expression& e, Type other);
    void collated(const Expression& e);
    void read(const Expression& e, Type type);
    void stored(const Expression& e, ColumnType type);
    void like(const Expression& e);
    void inList(const Expression& e);
    void inSelect(const Expression& e);
    void between(const Expression& e);
    void subselect(const Select& s, QStringView opening);
    void call(const Expression& e);
    Type typeOf(const Expression& e);
    Type typeOfArithmetic(const Expression& e);
    const CatalogColumn* resolve(const Expression& e) const; ///< null for an alias of the selection
    const CatalogTable* table(QStringView tableName) const;
    static const CatalogColumn* columnOf(const CatalogTable& target, QStringView columnName);
    void name(QStringView text);
    void tableAs(const TableName& from);
    void rowKey(const TableName& from);
    Piece takePiece();

    const Catalog& m_catalog;
    Way m_way;
    TextBuilder m_out;
    std::vector<Slot> m_slots;
    std::vector<Scope> m_scopes;
};

} // namespace jet
