#include "jet/undo_log.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/// A changed row that is not as the step left it: another program has been there.
int refuse(void*, int, sqlite3_changeset_iter*)
{
    return SQLITE_CHANGESET_ABORT;
}

/// Bytes that the file engine has made.
struct Made {
    int size = 0;
    void* bytes = nullptr;
    ~Made() { sqlite3_free(bytes); }
};

struct Statement {
    sqlite3_stmt* get = nullptr;
    Statement(sqlite3* connection, const QString& sql)
    {
        const QByteArray utf8 = sql.toUtf8();
        sqlite3_prepare_v2(connection, utf8.constData(), int(utf8.size()), &get, nullptr);
    }
    ~Statement() { sqlite3_finalize(get); }
    Q_DISABLE_COPY_MOVE(Statement)
};

QString textOf(sqlite3_value* value)
{
    return QString::fromUtf8(
        reinterpret_cast<const char*>(sqlite3_value_text(value)), sqlite3_value_bytes(value));
}

} // namespace

void UndoLog::EndSession::operator()(sqlite3_session* session) const
{
    sqlite3session_delete(session);
}

UndoLog::UndoLog(sqlite3* connection, const QString& table, const QString& labelColumn)
    : m_connection(connection)
    , m_table(table.toUtf8())
    , m_labelSql(u"SELECT [%1] FROM [%2] WHERE rowid = ?"_s.arg(labelColumn, table))
{
    const Statement columns(connection,
        u"SELECT cid FROM pragma_table_info('%1') WHERE name = '%2' COLLATE NOCASE"_s.arg(
            table, labelColumn));
    if (columns.get && sqlite3_step(columns.get) == SQLITE_ROW)
        m_labelColumn = sqlite3_column_int(columns.get, 0);
    begin();
}

UndoLog::~UndoLog() = default;

void UndoLog::begin()
{
    m_session.reset();
    sqlite3_session* session = nullptr;
    if (sqlite3session_create(m_connection, "main", &session) == SQLITE_OK)
        m_session.reset(session);
    // So that the size of a step is known before it is made.
    int countSize = 1;
    if (m_session)
        sqlite3session_object_config(session, SQLITE_SESSION_OBJCONFIG_SIZE, &countSize);
    if (m_session && sqlite3session_attach(session, m_table.constData()) != SQLITE_OK)
        m_session.reset();
}

void UndoLog::skip()
{
    if (m_session && !sqlite3session_isempty(m_session.get()))
        begin();
}

void UndoLog::endStep()
{
    if (!m_session || sqlite3_get_autocommit(m_connection) == 0 || sqlite3session_isempty(m_session.get()))
        return;
    Made made;
    const bool isNoted = sqlite3session_changeset_size(m_session.get()) <= kMostBytes
        && sqlite3session_changeset(m_session.get(), &made.size, &made.bytes) == SQLITE_OK;
    if (isNoted && made.size > 0) {
        QByteArray rows(static_cast<const char*>(made.bytes), made.size);
        ChangeStep change = describe(rows);
        m_bytes += rows.size();
        m_steps.push_back({std::move(change), std::move(rows)});
    }
    // The order of the steps must have no gap.
    if (!isNoted || m_bytes > kMostBytes) {
        m_steps.clear();
        m_bytes = 0;
    }
    if (m_steps.size() > kMostSteps) {
        m_bytes -= m_steps.front().rows.size();
        m_steps.pop_front();
    }
    begin();
}

ChangeStep UndoLog::describe(QByteArray& rows) const
{
    ChangeStep change;
    sqlite3_changeset_iter* at = nullptr;
    if (sqlite3changeset_start(&at, int(rows.size()), rows.data()) != SQLITE_OK)
        return change;
    while (sqlite3changeset_next(at) == SQLITE_ROW) {
        if (++change.rows > 1)
            continue;
        const char* table = nullptr;
        int columns = 0;
        int operation = 0;
        sqlite3changeset_op(at, &table, &columns, &operation, nullptr);
        change.kind = operation == SQLITE_INSERT ? ChangeStep::Kind::Added
            : operation == SQLITE_DELETE         ? ChangeStep::Kind::Deleted
                                                 : ChangeStep::Kind::Changed;
        sqlite3_value* value = nullptr;
        const bool isNew = operation == SQLITE_INSERT;
        if (m_labelColumn >= 0 && m_labelColumn < columns)
            isNew ? sqlite3changeset_new(at, m_labelColumn, &value)
                  : sqlite3changeset_old(at, m_labelColumn, &value);
        if (value) {
            change.label = textOf(value);
        } else if (operation == SQLITE_UPDATE) {
            // Only what was changed is noted, and the key, which comes first.
            sqlite3changeset_old(at, 0, &value);
            change.label = value ? labelOf(sqlite3_value_int64(value)) : QString();
        }
    }
    sqlite3changeset_finalize(at);
    return change;
}

QString UndoLog::labelOf(sqlite3_int64 id) const
{
    const Statement read(m_connection, m_labelSql);
    if (!read.get || sqlite3_bind_int64(read.get, 1, id) != SQLITE_OK || sqlite3_step(read.get) != SQLITE_ROW)
        return {};
    return textOf(sqlite3_column_value(read.get, 0));
}

bool UndoLog::undoLast()
{
    if (m_steps.empty() || sqlite3_get_autocommit(m_connection) == 0)
        return false;
    const Step step = std::move(m_steps.back());
    m_steps.pop_back();
    m_bytes -= step.rows.size();
    m_session.reset();
    Made inverse;
    const bool done
        = sqlite3changeset_invert(int(step.rows.size()), step.rows.constData(), &inverse.size, &inverse.bytes)
            == SQLITE_OK
        && sqlite3changeset_apply(m_connection, inverse.size, inverse.bytes, nullptr, refuse, nullptr)
            == SQLITE_OK;
    begin();
    return done;
}

} // namespace jet
