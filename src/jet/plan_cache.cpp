#include "jet/plan_cache.h"

#include "jet/parser.h"

namespace jet {

namespace {

constexpr qsizetype kLongestKeptText = 8 * 1024;

} // namespace

std::optional<Request> PlanCache::request(QStringView sql, Way way, const Catalog& catalog, QString* error)
{
    OfWay& kept = m_kept[size_t(way)];
    if (const Request* known = kept.byText.object(QString::fromRawData(sql.data(), sql.size())))
        return *known;
    Lexed lexed = lex(sql);
    *error = lexed.error;
    Request result;
    if (error->isEmpty())
        result.plan = plan(kept, lexed, way, catalog, error);
    if (!result.plan)
        return {};
    result.literals = std::make_shared<const std::vector<Literal>>(std::move(lexed.literals));
    if (sql.size() <= kLongestKeptText)
        kept.byText.insert(sql.toString(), new Request(result));
    return result;
}

std::shared_ptr<Plan> PlanCache::plan(
    OfWay& kept, const Lexed& lexed, Way way, const Catalog& catalog, QString* error)
{
    if (const auto* known = kept.byShape.object(lexed.shape))
        return *known;
    const auto statement = parseStatement(lexed.tokens, error);
    if (!statement)
        return {};
    auto translation = translate(*statement, catalog, way, error);
    if (!translation)
        return {};
    auto result = std::make_shared<Plan>();
    result->translation = std::move(*translation);
    if (lexed.shape.size() <= kLongestKeptText)
        kept.byShape.insert(lexed.shape, new std::shared_ptr<Plan>(result));
    return result;
}

void PlanCache::forget()
{
    for (OfWay& kept : m_kept) {
        kept.byText.clear();
        kept.byShape.clear();
    }
}

} // namespace jet
