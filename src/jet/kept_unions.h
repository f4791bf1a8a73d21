#pragma once

#include "jet/plan_cache.h"
#include "jet/union_keys.h"

#include <list>
#include <memory>
#include <unordered_set>

namespace jet {

class Engine;

/// Unions of one large table, answered without reading their rows: in one walk through the table each arm
/// says which rows it has. What was found is kept, and a change of a few rows mended in it, so that a list
/// that is read again after an edit is there at once.
class KeptUnions {
public:
    explicit KeptUnions(Engine& engine)
        : m_engine(engine)
    {
    }

    /// Nothing when the union has to be read as a whole. To be asked within a read transaction.
    std::shared_ptr<const UnionKeys> keys(const Request& request, Way way);
    void rowChanged(const char* table, sqlite3_int64 id);
    void forget() { m_kept.clear(); }
    size_t memory() const;

private:
    struct Kept {
        Request request;
        std::shared_ptr<const UnionKeys> keys;
        sqlite3_int64 fileVersion = 0;
        std::unordered_set<sqlite3_int64> changed;
    };

    bool isWorthwhile(const UnionParts& parts);
    Kept* find(const Request& request);
    std::optional<std::vector<UnionRef>> searched(const Request& request, Way way);
    std::optional<std::vector<UnionRef>> read(
        const Request& request, const std::vector<sqlite3_int64>* rows = nullptr);
    bool settle(const Request& request, std::vector<UnionRef>& refs);
    bool mend(Kept& kept);

    Engine& m_engine;
    std::list<Kept> m_kept; ///< the one used last in front
};

} // namespace jet
