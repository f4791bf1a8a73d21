#include "jet/prepared.h"

namespace jet {

StatementPool::~StatementPool()
{
    for (sqlite3_stmt* waiting : m_waiting) {
        if (*m_fileIsOpen)
            sqlite3_finalize(waiting);
    }
}

sqlite3_stmt* StatementPool::take(const std::shared_ptr<const bool>& fileIsOpen)
{
    if (m_fileIsOpen != fileIsOpen) {
        m_waiting.clear();
        m_fileIsOpen = fileIsOpen;
    }
    if (m_waiting.empty())
        return nullptr;
    sqlite3_stmt* waiting = m_waiting.back();
    m_waiting.pop_back();
    return waiting;
}

bool StatementPool::giveBack(sqlite3_stmt* statement)
{
    constexpr size_t kMostWaiting = 4;
    if (m_waiting.size() >= kMostWaiting)
        return false;
    m_waiting.push_back(statement);
    return true;
}

Prepared::~Prepared()
{
    if (!m_statement)
        return;
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
    if (!m_pool || !m_pool->giveBack(m_statement))
        sqlite3_finalize(m_statement);
}

void Statements::serve(sqlite3* connection)
{
    stop();
    m_connection = connection;
    m_isOpen = std::make_shared<bool>(true);
}

void Statements::stop()
{
    m_kept.clear();
    m_connection = nullptr;
    if (m_isOpen)
        *m_isOpen = false;
}

Prepared Statements::pooled(const QString& sql, std::shared_ptr<StatementPool> pool) const
{
    // A recordset may outlive its file, and the statements in the pools of its plan ended with the file.
    if (!m_connection)
        return {};
    if (sqlite3_stmt* waiting = pool->take(m_isOpen))
        return {waiting, std::move(pool)};
    return prepare(sql, std::move(pool));
}

Prepared Statements::kept(const QString& sql)
{
    constexpr qsizetype kMostKept = 32;
    if (m_kept.size() >= kMostKept && !m_kept.contains(sql))
        m_kept.clear();
    auto& pool = m_kept[sql];
    if (!pool)
        pool = std::make_shared<StatementPool>();
    return pooled(sql, pool);
}

Prepared Statements::prepare(const QString& sql, std::shared_ptr<StatementPool> pool) const
{
    if (!m_connection)
        return {};
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(m_connection, utf8.constData(), int(utf8.size()),
            pool ? SQLITE_PREPARE_PERSISTENT : 0, &statement, nullptr)
        != SQLITE_OK) {
        sqlite3_finalize(statement);
        return {};
    }
    return {statement, std::move(pool)};
}

} // namespace jet
