#include "jet/file_connection.h"

#include "jet/sql_functions.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr int kLongestWait = 5'000; ///< milliseconds; a save that waits longer has to say so
constexpr int kWaitAtOnce = 50; ///< the window may live in between
constexpr int kShortSleep = 10;
/// What a log and its index need at the least.
constexpr int kRoomForALog = 64 * 1024;

/// What a strange file could make the engine do.
constexpr int kSwitchedOff[] = {
    SQLITE_DBCONFIG_DQS_DML, // a name that does not exist must fail; it must not turn into a text
    SQLITE_DBCONFIG_DQS_DDL,
    SQLITE_DBCONFIG_TRUSTED_SCHEMA,
    SQLITE_DBCONFIG_ENABLE_TRIGGER,
    SQLITE_DBCONFIG_ENABLE_VIEW,
};

bool isBusy(int result)
{
    return (result & 0xFF) == SQLITE_BUSY && result != SQLITE_BUSY_SNAPSHOT;
}

} // namespace

bool FileConnection::connect(const char* mode)
{
    close();
    const QByteArray uri = QUrl::fromLocalFile(m_path).toEncoded() + mode;
    if (sqlite3_open_v2(uri.constData(), &m_handle,
            SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW, nullptr)
        != SQLITE_OK) {
        close();
        return false;
    }
    sqlite3_extended_result_codes(m_handle, 1);
    sqlite3_busy_handler(m_handle, &FileConnection::whileBusy, this);
    for (const int setting : kSwitchedOff)
        sqlite3_db_config(m_handle, setting, 0, nullptr);
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(m_handle, SQLITE_LIMIT_ATTACHED, 0);
    registerDialect(m_handle);
    return true;
}

Database::OpenResult FileConnection::open(const QString& path, Database::Kind kind)
{
    close();
    const QFileInfo file(path);
    if (!file.exists())
        return Database::OpenResult::Missing;
    // The file engine would take an empty file for a database without tables.
    if (file.isFile() && file.size() == 0)
        return Database::OpenResult::NotADatabase;
    m_path = file.canonicalFilePath();
    m_kind = kind;
    m_isLogOn = false;
    m_isReadOnly = false;
    const bool canWrite = connect("?mode=rw") && hasTables();
    if (!canWrite && m_handle && (sqlite3_errcode(m_handle) & 0xFF) == SQLITE_NOTADB) {
        close();
        return Database::OpenResult::NotADatabase;
    }
    if (!canWrite && !connectForReading()) {
        close();
        return Database::OpenResult::Failed;
    }
    m_isReadOnly = !canWrite || sqlite3_db_readonly(m_handle, "main") == 1;
    if (m_isReadOnly)
        m_whyReadOnly = obstacle().value_or(Failure::Cause::ReadOnly);
    run("PRAGMA cache_size = -4096");
    run("PRAGMA temp_store = MEMORY");
    return Database::OpenResult::Opened;
}

// The rows can still be looked at in a folder that can not be written and on a full disk. A log that waits
// holds rows as well: it is read where its index stands beside it, or with an index in memory, for which the
// file has to be ours alone.
bool FileConnection::connectForReading()
{
    if (QFileInfo(m_path + u"-wal"_s).size() == 0)
        return connect("?mode=ro&immutable=1") && hasTables();
    if (connect("?mode=ro") && hasTables())
        return true;
    if (!connect("?mode=rw"))
        return false;
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    return run("PRAGMA locking_mode = EXCLUSIVE") && hasTables() && run("PRAGMA query_only = ON");
}

void FileConnection::close()
{
    if (!m_handle)
        return;
    while (sqlite3_stmt* left = sqlite3_next_stmt(m_handle, nullptr))
        sqlite3_finalize(left);
    sqlite3_close_v2(m_handle);
    m_handle = nullptr;
}

/// What keeps the file from being written, found out by writing beside it.
std::optional<Failure::Cause> FileConnection::obstacle() const
{
    QTemporaryFile trial(m_path + u".XXXXXX"_s);
    if (!QFileInfo(m_path).isWritable() || !trial.open())
        return Failure::Cause::ReadOnly;
    if (trial.write(QByteArray(kRoomForALog, '\0')) != kRoomForALog || !trial.flush())
        return Failure::Cause::DiskFull;
    return {};
}

bool FileConnection::isWritableByNow()
{
    const auto found = obstacle();
    if (found)
        m_whyReadOnly = *found;
    return !found;
}

void FileConnection::switchLogOn()
{
    if (m_isLogOn || m_isReadOnly || m_kind != Database::Kind::Data)
        return;
    // Without the log a save is as safe, only slower: the next one tries again.
    m_isLogOn = run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = FULL");
    run("PRAGMA wal_autocheckpoint = 1000");
}

bool FileConnection::run(const char* sql)
{
    return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool FileConnection::runWaiting(const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    const bool done = sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr) == SQLITE_OK
        && stepWaiting(statement) == SQLITE_DONE;
    return sqlite3_finalize(statement) == SQLITE_OK && done;
}

// The file engine must not be entered while it waits by itself, and a window that lives reads rows to paint.
int FileConnection::stepWaiting(sqlite3_stmt* statement)
{
    QElapsedTimer waited;
    waited.start();
    const auto tryOnce = [this, statement] {
        const bool before = std::exchange(m_waitsOutside, true);
        const int result = sqlite3_step(statement);
        m_waitsOutside = before;
        return result;
    };
    int result = tryOnce();
    while (isBusy(result) && waited.elapsed() < kLongestWait) {
        sqlite3_reset(statement);
        const bool goesOn = !m_waitHandler || m_waitHandler();
        result = tryOnce();
        if (!goesOn)
            break;
    }
    return result;
}

int FileConnection::whileBusy(void* self, int count)
{
    const int limit = static_cast<FileConnection*>(self)->m_waitsOutside ? kWaitAtOnce : kLongestWait;
    if (count * kShortSleep >= limit)
        return 0;
    sqlite3_sleep(kShortSleep);
    return 1;
}

void FileConnection::setLimits(const StatementLimits& limits)
{
    constexpr int kStepsBetweenLooks = 10'000;
    m_limits = limits;
    sqlite3_hard_heap_limit64(limits.bytes);
    if (!m_handle)
        return;
    const auto isOver = [](void* self) {
        const auto* connection = static_cast<FileConnection*>(self);
        return int(connection->m_clock.isValid()
            && connection->m_clock.hasExpired(connection->m_limits.seconds * 1'000));
    };
    sqlite3_progress_handler(
        m_handle, limits.seconds > 0 ? kStepsBetweenLooks : 0, limits.seconds > 0 ? +isOver : nullptr, this);
}

Failure FileConnection::lastError() const
{
    if (!m_handle)
        return {Failure::Cause::Storage, {}, u"no database is open"_s};
    const int code = sqlite3_extended_errcode(m_handle);
    if (code == SQLITE_INTERRUPT)
        return {Failure::Cause::Statement, {}, u"it took longer than %1 s"_s.arg(m_limits.seconds)};
    return {causeOf(code), {}, QString::fromUtf8(sqlite3_errmsg(m_handle))};
}

Failure::Cause FileConnection::causeOf(int code) const
{
    switch (code & 0xFF) {
    case SQLITE_FULL: return Failure::Cause::DiskFull;
    case SQLITE_READONLY: return m_isReadOnly ? m_whyReadOnly : Failure::Cause::ReadOnly;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB: return Failure::Cause::Damaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL: return Failure::Cause::Locked;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN: break;
    case SQLITE_NOMEM: return Failure::Cause::Storage;
    default: return Failure::Cause::Statement;
    }
    // What the system said may be overlaid by what the file engine did since.
    return obstacle().value_or(Failure::Cause::Storage);
}

} // namespace jet
