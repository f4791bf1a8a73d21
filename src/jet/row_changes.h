#pragma once

#include <sqlite3.h>

#include <functional>
#include <utility>

namespace jet {

/// Tells of each row that one connection changes, for what is kept in memory of the rows of its file.
class RowChanges {
public:
    using Changed = std::function<void(const char* table, sqlite3_int64 id)>;
    using GivenUp = std::function<void()>;

    /// @param givenUp a transaction ended without being stored: what was seen within it was never so
    RowChanges(sqlite3* connection, Changed changed, GivenUp givenUp);
    ~RowChanges();
    RowChanges(const RowChanges&) = delete;
    RowChanges& operator=(const RowChanges&) = delete;

    /// Whether rows went of which nothing was told, since the last time it was asked: the file engine empties
    /// a whole table without looking at its rows.
    bool hasMissed();

private:
    sqlite3* m_connection;
    Changed m_changed;
    GivenUp m_givenUp;
    int m_seen;
};

} // namespace jet
