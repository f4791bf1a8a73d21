#include "jet/text_filter.h"

#include "jet/expression_emitter.h"
#include "jet/lexer.h"

namespace jet {

std::optional<TextFilter> ExpressionEmitter::textFilter(const Expression& e) const
{
    if (isPlainLike(e) && e.parts[1]->literalKind == int(Literal::Kind::Text)) {
        const CatalogColumn* column = resolve(*e.parts[0]);
        if (!column || (column->type != ColumnType::Text && column->type != ColumnType::Memo))
            return {};
        return TextFilter{.column = column->name, .literal = e.parts[1]->literal};
    }
    const bool any = e.kind == Expression::Kind::Or;
    if (!any && e.kind != Expression::Kind::And)
        return {};
    TextFilter filter{.kind = any ? TextFilter::Kind::Any : TextFilter::Kind::All};
    for (const auto& part : e.parts) {
        auto partly = textFilter(*part);
        filter.isWhole = filter.isWhole && partly && partly->isWhole;
        if (partly)
            filter.parts.push_back(std::move(*partly));
        else if (any)
            return {};
    }
    return filter.parts.empty() ? std::nullopt : std::optional(std::move(filter));
}

} // namespace jet
