#include "jet/undo_log.h"

#include "jet/same_name.h"

#include <cstring>

namespace jet {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kBytesOfACell = 96; ///< beside its text, about

bool isSame(sqlite3_value* a, sqlite3_value* b)
{
    const int type = sqlite3_value_type(a);
    if (type != sqlite3_value_type(b))
        return false;
    switch (type) {
    case SQLITE_NULL: return true;
    case SQLITE_INTEGER: return sqlite3_value_int64(a) == sqlite3_value_int64(b);
    case SQLITE_FLOAT: return sqlite3_value_double(a) == sqlite3_value_double(b);
    default: {
        const int size = sqlite3_value_bytes(a);
        return size == sqlite3_value_bytes(b)
            && std::memcmp(sqlite3_value_blob(a), sqlite3_value_blob(b), size_t(size)) == 0;
    }
    }
}

/// Of a whole row what is null goes without saying. Blank texts of a new row are not held against it either,
/// since lists of classes have them filled in.
bool isBlank(sqlite3_value* value, int operation)
{
    const int type = sqlite3_value_type(value);
    return type == SQLITE_NULL
        || (operation == SQLITE_INSERT && type == SQLITE_TEXT && sqlite3_value_bytes(value) == 0);
}

sqlite3_value* copied(sqlite3_value* value)
{
    return !value || sqlite3_value_type(value) == SQLITE_NULL ? nullptr : sqlite3_value_dup(value);
}

void bind(sqlite3_stmt* statement, int place, sqlite3_value* value)
{
    value ? sqlite3_bind_value(statement, place, value) : sqlite3_bind_null(statement, place);
}

bool run(sqlite3* connection, const char* sql)
{
    return sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace

UndoLog::UndoLog(
    sqlite3* connection, const QString& table, const QStringList& columns, const QString& labelColumn)
    : m_connection(connection)
    , m_table(table.toUtf8())
    , m_labelColumn(-1)
{
    for (const QString& column : columns) {
        if (sameName(column, labelColumn))
            m_labelColumn = int(m_columns.size());
        m_columns << u'[' + column + u']';
    }
    sqlite3_preupdate_hook(m_connection, &UndoLog::beforeChange, this);
}

UndoLog::~UndoLog()
{
    sqlite3_preupdate_hook(m_connection, nullptr, nullptr);
}

void UndoLog::beforeChange(void* self, sqlite3*, int operation, const char*, const char* table,
    sqlite3_int64 oldId, sqlite3_int64 newId)
{
    auto* log = static_cast<UndoLog*>(self);
    if (!log->m_isUndoing && !log->m_isPaused && !log->m_isTooMuch && log->m_table == table)
        log->note(operation, operation == SQLITE_INSERT ? newId : oldId);
}

void UndoLog::note(int operation, sqlite3_int64 id)
{
    Row row{operation == SQLITE_INSERT   ? ChangeStep::Kind::Added
            : operation == SQLITE_DELETE ? ChangeStep::Kind::Deleted
                                         : ChangeStep::Kind::Changed,
        id, {}};
    QString label;
    for (int column = 0; column < sqlite3_preupdate_count(m_connection); ++column) {
        sqlite3_value* before = nullptr;
        sqlite3_value* after = nullptr;
        if (operation != SQLITE_INSERT)
            sqlite3_preupdate_old(m_connection, column, &before);
        if (operation != SQLITE_DELETE)
            sqlite3_preupdate_new(m_connection, column, &after);
        if (column == m_labelColumn) {
            sqlite3_value* name = before ? before : after;
            label = QString::fromUtf8(
                reinterpret_cast<const char*>(sqlite3_value_text(name)), sqlite3_value_bytes(name));
        }
        if (before && after ? isSame(before, after) : isBlank(before ? before : after, operation))
            continue;
        m_pending.bytes += kBytesOfACell + size_t(before ? sqlite3_value_bytes(before) : 0)
            + size_t(after ? sqlite3_value_bytes(after) : 0);
        row.cells.push_back(Cell{column, {}, {}});
        row.cells.back().before.reset(copied(before));
        row.cells.back().after.reset(copied(after));
    }
    if (row.cells.empty()) // nothing new
        return;
    if (m_pending.rows.empty())
        m_pending.change = {row.kind, 0, label};
    m_pending.rows.push_back(std::move(row));
    if (m_pending.bytes > kMostBytes) {
        m_pending = {};
        m_isTooMuch = true;
    }
}

void UndoLog::endStatement(bool succeeded)
{
    if (!succeeded && m_pending.rows.size() > m_pendingOfSucceeded)
        m_pending.rows.erase(
            m_pending.rows.begin() + std::ptrdiff_t(m_pendingOfSucceeded), m_pending.rows.end());
    if (m_pending.rows.empty())
        m_pending = {}; // what it would have been called goes as well
    m_pendingOfSucceeded = m_pending.rows.size();
    if (sqlite3_get_autocommit(m_connection) != 0)
        closeStep();
}

void UndoLog::closeStep()
{
    // The order of the steps must have no gap.
    if (m_isTooMuch || m_bytes + m_pending.bytes > kMostBytes) {
        m_steps.clear();
        m_bytes = 0;
    }
    if (!m_isTooMuch && !m_pending.rows.empty()) {
        m_pending.change.rows = int(m_pending.rows.size());
        m_bytes += m_pending.bytes;
        m_steps.push_back(std::move(m_pending));
    }
    if (m_steps.size() > kMostSteps) {
        m_bytes -= m_steps.front().bytes;
        m_steps.pop_front();
    }
    skip();
}

void UndoLog::skip()
{
    m_pending = {};
    m_pendingOfSucceeded = 0;
    m_isTooMuch = false;
}

// A row is only touched while it is as the step left it.
QString UndoLog::undoSql(const Row& row) const
{
    QStringList names;
    QStringList marks;
    QStringList changes;
    QStringList asLeft{u"rowid = ?"_s};
    for (const Cell& cell : row.cells) {
        const QString& name = m_columns[cell.column];
        names << name;
        marks << u"?"_s;
        changes << name + u" = ?"_s;
        asLeft << name + u" COLLATE BINARY IS ?"_s;
    }
    const QString table = u'[' + QString::fromUtf8(m_table) + u']';
    switch (row.kind) {
    case ChangeStep::Kind::Added: return u"DELETE FROM "_s + table + u" WHERE "_s + asLeft.join(u" AND "_s);
    case ChangeStep::Kind::Deleted:
        return u"INSERT INTO "_s + table + u" ("_s + names.join(u", "_s) + u") VALUES ("_s
            + marks.join(u", "_s) + u')';
    case ChangeStep::Kind::Changed: break;
    }
    return u"UPDATE "_s + table + u" SET "_s + changes.join(u", "_s) + u" WHERE "_s + asLeft.join(u" AND "_s);
}

bool UndoLog::undo(const Row& row)
{
    const QByteArray sql = undoSql(row).toUtf8();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_connection, sql.constData(), int(sql.size()), &statement, nullptr) != SQLITE_OK)
        return false;
    int place = 0;
    if (row.kind != ChangeStep::Kind::Added) {
        for (const Cell& cell : row.cells)
            bind(statement, ++place, cell.before.get());
    }
    if (row.kind != ChangeStep::Kind::Deleted) {
        sqlite3_bind_int64(statement, ++place, row.id);
        for (const Cell& cell : row.cells)
            bind(statement, ++place, cell.after.get());
    }
    const bool done = sqlite3_step(statement) == SQLITE_DONE && sqlite3_changes(m_connection) == 1;
    sqlite3_finalize(statement);
    return done;
}

bool UndoLog::undoLast()
{
    if (m_steps.empty() || sqlite3_get_autocommit(m_connection) == 0)
        return false;
    const Step step = std::move(m_steps.back());
    m_steps.pop_back();
    m_bytes -= step.bytes;
    m_isUndoing = true;
    bool done = run(m_connection, "BEGIN IMMEDIATE");
    for (auto row = step.rows.rbegin(); done && row != step.rows.rend(); ++row)
        done = undo(*row);
    done = done && run(m_connection, "COMMIT");
    if (!done && sqlite3_get_autocommit(m_connection) == 0)
        run(m_connection, "ROLLBACK");
    m_isUndoing = false;
    return done;
}

} // namespace jet
