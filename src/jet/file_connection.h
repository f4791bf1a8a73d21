#pragma once

#include "jet/database.h"
#include "jet/types.h"

#include <QElapsedTimer>

#include <sqlite3.h>

namespace jet {

/// The connection to an open file: how it is opened, waited for and written.
///
/// Opening changes no byte of the file; the write-ahead log is switched on by the first write. A file that
/// can only be read when it is opened, since the disk is full or the folder closed, can be opened anew for
/// writing as soon as that has changed.
class FileConnection {
public:
    FileConnection() = default;
    ~FileConnection() { close(); }
    Q_DISABLE_COPY_MOVE(FileConnection)

    Database::OpenResult open(const QString& path, Database::Kind kind);
    /// Ends all statements as well: nothing of a closed file may stay open.
    void close();
    Database::OpenResult reopen() { return open(QString(m_path), m_kind); }
    sqlite3* handle() const { return m_handle; }
    bool isReadOnly() const { return m_isReadOnly; }
    const QString& path() const { return m_path; }
    /// Whether other connections can read it and keep no write of this one waiting.
    bool isReadableAside() const { return !m_isReadOnly && m_kind == Database::Kind::Data; }

    /// Whether a file that was opened for reading only can be written by now. Cheap enough for each write.
    bool isWritableByNow();
    /// To be called before a write outside of any transaction.
    void switchLogOn();

    bool run(const char* sql);
    bool run(const QString& sql) { return run(sql.toUtf8().constData()); }
    /// The same for what takes the lock of the file.
    bool runWaiting(const char* sql);
    /// The first step of a statement that writes. While another program holds the lock it is tried again.
    int stepWaiting(sqlite3_stmt* statement);
    void setWaitHandler(WaitHandler handler) { m_waitHandler = std::move(handler); }
    const WaitHandler& waitHandler() const { return m_waitHandler; }

    void setLimits(const StatementLimits& limits);
    const StatementLimits& limits() const { return m_limits; }
    /// A statement begins, and has its time.
    void startClock()
    {
        if (m_limits.seconds > 0)
            m_clock.start();
    }

    /// What the file engine says about the last call.
    Failure lastError() const;

private:
    bool connect(const char* mode);
    bool connectForReading();
    bool hasTables() { return run("SELECT count(*) FROM sqlite_master"); }
    Failure::Cause causeOf(int code) const;
    std::optional<Failure::Cause> obstacle() const;
    static int whileBusy(void* self, int count);

    sqlite3* m_handle = nullptr;
    QString m_path;
    Database::Kind m_kind = Database::Kind::Data;
    bool m_isReadOnly = false;
    bool m_isLogOn = false;
    bool m_waitsOutside = false; ///< the loop of stepWaiting() waits, not the file engine
    Failure::Cause m_whyReadOnly = Failure::Cause::ReadOnly;
    WaitHandler m_waitHandler;
    StatementLimits m_limits;
    QElapsedTimer m_clock;
};

} // namespace jet
