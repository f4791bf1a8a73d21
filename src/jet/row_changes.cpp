#include "jet/row_changes.h"

namespace jet {

RowChanges::RowChanges(sqlite3* connection, Changed changed, GivenUp givenUp)
    : m_connection(connection)
    , m_changed(std::move(changed))
    , m_givenUp(std::move(givenUp))
    , m_seen(sqlite3_total_changes(connection))
{
    sqlite3_update_hook(
        connection,
        [](void* self, int, const char*, const char* table, sqlite3_int64 id) {
            auto* me = static_cast<RowChanges*>(self);
            ++me->m_seen;
            me->m_changed(table, id);
        },
        this);
    sqlite3_rollback_hook(
        connection, [](void* self) { static_cast<RowChanges*>(self)->m_givenUp(); }, this);
}

RowChanges::~RowChanges()
{
    sqlite3_update_hook(m_connection, nullptr, nullptr);
    sqlite3_rollback_hook(m_connection, nullptr, nullptr);
}

bool RowChanges::hasMissed()
{
    const int all = sqlite3_total_changes(m_connection);
    return std::exchange(m_seen, all) != all;
}

} // namespace jet
