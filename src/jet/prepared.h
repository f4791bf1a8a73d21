#pragma once

#include <QHash>
#include <QString>

#include <sqlite3.h>

#include <memory>
#include <vector>

namespace jet {

/// Statements of one text that wait to run again. They end with the pool, or before with the file: closing a
/// file ends all its statements, also those of recordsets that live on, since nothing of it may stay open.
class StatementPool {
public:
    StatementPool() = default;
    ~StatementPool();
    Q_DISABLE_COPY_MOVE(StatementPool)

    /// One that waits; null when there is none. The flag is that of the file as it is open now: what waited
    /// on an earlier connection ended with it.
    sqlite3_stmt* take(const std::shared_ptr<const bool>& fileIsOpen);
    /// False when enough of them wait.
    bool giveBack(sqlite3_stmt* statement);

private:
    std::vector<sqlite3_stmt*> m_waiting;
    std::shared_ptr<const bool> m_fileIsOpen;
};

/// A statement of the file engine, given back to its pool, or ended, at the end of its use.
class Prepared {
public:
    Prepared() = default;
    Prepared(sqlite3_stmt* statement, std::shared_ptr<StatementPool> pool)
        : m_statement(statement)
        , m_pool(std::move(pool))
    {
    }
    Prepared(Prepared&& other) noexcept { *this = std::move(other); }
    Prepared& operator=(Prepared&& other) noexcept
    {
        std::swap(m_statement, other.m_statement);
        std::swap(m_pool, other.m_pool);
        return *this;
    }
    ~Prepared();
    sqlite3_stmt* get() const { return m_statement; }
    explicit operator bool() const { return m_statement != nullptr; }

private:
    sqlite3_stmt* m_statement = nullptr;
    std::shared_ptr<StatementPool> m_pool;
};

/// Prepares the statements of one file, as long as it is open; nothing comes back otherwise.
class Statements {
public:
    void serve(sqlite3* connection);
    void stop(); ///< before the file is closed

    Prepared once(const QString& sql) const { return prepare(sql, nullptr); }
    Prepared pooled(const QString& sql, std::shared_ptr<StatementPool> pool) const;
    /// Keeps the statement ready by its text: what a form writes, it writes again.
    Prepared kept(const QString& sql);

private:
    Prepared prepare(const QString& sql, std::shared_ptr<StatementPool> pool) const;

    sqlite3* m_connection = nullptr;
    std::shared_ptr<bool> m_isOpen; ///< shared with the pools
    QHash<QString, std::shared_ptr<StatementPool>> m_kept; ///< by text
};

} // namespace jet
