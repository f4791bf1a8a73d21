#include "jet/kept_unions.h"

#include "jet/engine.h"

#include <algorithm>
#include <map>

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/// Below that many rows a union is quick in any way.
constexpr sqlite3_int64 kFewRows = 5'000;
constexpr size_t kMostKept = 4;
/// With more changed rows than one in so many the table is walked through anew.
constexpr size_t kMostChangedPart = 20;

bool sameLiterals(const Request& a, const Request& b)
{
    return std::equal(a.literals->begin(), a.literals->end(), b.literals->begin(), b.literals->end(),
        [](const Literal& x, const Literal& y) { return x.kind == y.kind && x.text == y.text; });
}

} // namespace

std::shared_ptr<const UnionKeys> KeptUnions::keys(const Request& request, Way way)
{
    const auto& parts = request.plan->translation.parts;
    if (!parts || !isWorthwhile(*parts))
        return {};
    const auto version = m_engine.number(u"PRAGMA data_version"_s);
    if (!version)
        return {};
    if (Kept* kept = find(request)) {
        if (kept->fileVersion == *version && mend(*kept))
            return kept->keys;
        m_kept.pop_front();
    }
    auto refs = searched(request, way);
    const bool isOfTexts = refs.has_value();
    if (!refs)
        refs = read(request);
    if (!refs || !settle(request, *refs))
        return {};
    auto keys = std::make_shared<const UnionKeys>(std::move(*refs), parts->byKey);
    // What a person is typing comes once.
    if (!isOfTexts) {
        m_kept.push_front({request, keys, *version, {}});
        if (m_kept.size() > kMostKept)
            m_kept.pop_back();
    }
    return keys;
}

bool KeptUnions::isWorthwhile(const UnionParts& parts)
{
    return m_engine.number(u"SELECT max(rowid) FROM ["_s + parts.table + u']').value_or(0) >= kFewRows;
}

/// The kept one, in front.
KeptUnions::Kept* KeptUnions::find(const Request& request)
{
    const auto found = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& kept) {
        return kept.request.plan == request.plan && sameLiterals(kept.request, request);
    });
    if (found == m_kept.end())
        return nullptr;
    m_kept.splice(m_kept.begin(), m_kept, found);
    return &m_kept.front();
}

void KeptUnions::rowChanged(const char* table, sqlite3_int64 id)
{
    if (m_kept.empty())
        return;
    m_kept.remove_if([&](Kept& kept) {
        if (kept.request.plan->translation.parts->table != QLatin1StringView(table))
            return false;
        kept.changed.insert(id);
        return kept.changed.size() * kMostChangedPart > kept.keys->refs().size();
    });
}

size_t KeptUnions::memory() const
{
    size_t sum = 0;
    for (const Kept& kept : m_kept)
        sum += kept.keys->bytes();
    return sum;
}

/// From the texts in memory; nothing when the file has to be looked at.
std::optional<std::vector<UnionRef>> KeptUnions::searched(const Request& request, Way way)
{
    const UnionParts& parts = *request.plan->translation.parts;
    if (parts.filters.empty() || !m_engine.search())
        return {};
    const auto found = m_engine.search()->rowsOfArms(parts, *request.literals, way);
    if (!found)
        return {};
    auto refs = read(request, &found->doubtful);
    if (!refs || found->sure.empty())
        return refs;
    UnionReader reader(parts);
    for (const TextSearch::RowOfArms& row : found->sure)
        reader.add(row.id, row.arms, row.mayRepeat);
    std::vector<UnionRef> all = reader.take();
    const auto middle = all.insert(all.end(), refs->begin(), refs->end());
    std::inplace_merge(all.begin(), middle, all.end());
    return all;
}

std::optional<std::vector<UnionRef>> KeptUnions::read(
    const Request& request, const std::vector<sqlite3_int64>* rows)
{
    const UnionParts& parts = *request.plan->translation.parts;
    BoundTexts texts;
    if (rows)
        texts.rowLists = {jsonList(*rows)};
    const Prepared statement = rows
        ? m_engine.prepare(request, parts.keysOfRows, &Plan::keysOfRowsPool, texts)
        : m_engine.prepare(request, parts.keys, &Plan::keysPool);
    UnionReader reader(parts);
    if (!statement || !reader.read(statement.get()))
        return {};
    return reader.take();
}

/// Looks up how many rows those are of which an arm may give the same as another.
bool KeptUnions::settle(const Request& request, std::vector<UnionRef>& refs)
{
    std::vector<UnionRef> doubtful;
    std::copy_if(refs.begin(), refs.end(), std::back_inserter(doubtful),
        [](const UnionRef& ref) { return ref.isDoubtful; });
    if (doubtful.empty())
        return true;
    const UnionParts& parts = *request.plan->translation.parts;
    const Prepared statement = m_engine.prepareUnionRows(
        request, listsOf(doubtful.data(), doubtful.data() + doubtful.size(), parts.arms));
    std::map<UnionRef, quint32> counts;
    int result = SQLITE_ERROR;
    while (statement && (result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        UnionRef ref;
        ref.id = sqlite3_column_int64(statement.get(), parts.keyPosition);
        for (size_t i = 0; i < parts.leadPositions.size(); ++i)
            ref.leads[i] = leadAt(statement.get(), parts.leadPositions[i]).value_or(0);
        ++counts[ref];
    }
    if (result != SQLITE_DONE)
        return false;
    for (UnionRef& ref : refs) {
        if (std::exchange(ref.isDoubtful, false))
            ref.rows = counts[ref];
    }
    return true;
}

/// Puts the rows that were changed since into their places.
bool KeptUnions::mend(Kept& kept)
{
    if (kept.changed.empty())
        return true;
    const std::vector<sqlite3_int64> rows(kept.changed.begin(), kept.changed.end());
    auto anew = read(kept.request, &rows);
    if (!anew || !settle(kept.request, *anew))
        return false;
    std::vector<UnionRef> refs;
    refs.reserve(kept.keys->refs().size() + anew->size());
    const auto& before = kept.keys->refs();
    std::copy_if(before.begin(), before.end(), std::back_inserter(refs),
        [&](const UnionRef& ref) { return !kept.changed.contains(ref.id); });
    const auto middle = refs.insert(refs.end(), anew->begin(), anew->end());
    std::inplace_merge(refs.begin(), middle, refs.end());
    kept.keys
        = std::make_shared<const UnionKeys>(std::move(refs), kept.request.plan->translation.parts->byKey);
    kept.changed.clear();
    return true;
}

} // namespace jet
