#pragma once

#include "jet/recordset.h"
#include "jet/schema.h"
#include "jet/types.h"

#include <QString>

#include <memory>
#include <optional>

namespace jet {

class Engine;

struct Outcome {
    bool ok = false;
    int changed = 0; ///< rows inserted, updated or deleted
    explicit operator bool() const { return ok; }
};

/// What one statement may take; 0 for as much as it wants.
struct StatementLimits {
    int seconds = 0;
    qint64 bytes = 0;
};

/// One database file and the dialect in which the program speaks to it.
///
/// No call throws. What fails changes nothing, gives back something harmless, and is told to the failure
/// handler and to the log category orvane.sql. Copies share the open file. One thread.
class Database {
public:
    enum class Kind {
        Data, ///< write-ahead log with a full sync a commit: what a save reported survives a power cut
        Information, ///< shipped reference rows; readable also in a folder that can not be written
    };
    enum class OpenResult { Opened, Missing, NotADatabase, Failed };

    Database();
    ~Database();
    Database(const Database&);
    Database& operator=(const Database&);

    /// Opens an existing file. Neither creates nor changes one.
    OpenResult open(const QString& path, Kind kind = Kind::Data);
    /// Whether the file can be read as it stands and has no such table. Neither the file nor a log that waits
    /// beside it is touched, which may be somebody else's.
    static bool isWithoutTable(const QString& path, const QString& table);
    void close();
    bool isOpen() const;
    /// A file that can only be read for now. Each write looks whether that is still so.
    bool isReadOnly() const;
    QString path() const;

    Recordset openRecordset(QStringView sql, Way way = Way::Dao);
    Outcome execute(QStringView sql, Way way = Way::Dao);
    /// Whether a statement gives rows; without a value when it can not be understood, which is reported.
    std::optional<bool> givesRows(QStringView sql, Way way = Way::Dao);

    void setFailureHandler(FailureHandler handler);
    /// Lets a window live while a write waits, up to five seconds, for another program.
    void setWaitHandler(WaitHandler handler);
    /// Columns of which "<> null" never holds. Of any other it means "is not null". Like the handlers it
    /// stays when another file is opened.
    void setColumnsNeverEqualToNull(const QList<ColumnName>& columns);
    /// What one statement may take, for those who run statements of others. Program-wide for the memory.
    void setLimits(const StatementLimits& limits);
    /// Why the last write failed, or the first of a batch; nothing once a later one succeeded. Broken
    /// selections do not count, selections of a file that can not be read do.
    std::optional<Failure> lastFailure() const;

    /// Another text after any change of the file, by whomever; for work that need not be done twice.
    QString state() const;

    /// From now on the last changes of all tables can be taken back, one statement, recordset update, batch
    /// or Step after the other; see UndoLog. The labels are columns that hold what a person calls a row: a
    /// change is called by the first of their tables that it touched.
    void keepChanges(const QList<ColumnName>& labels);
    std::optional<ChangeStep> lastChange() const;
    std::optional<ChangeStep> lastUndone() const; ///< until the next change
    /// All of the step or nothing.
    TakenBack undoLastChange();
    TakenBack redoLastChange();
    void setStepsHandler(StepsHandler handler);

    /// What is kept in memory so that searches for a piece of text are quick, in bytes.
    size_t searchMemory() const;
    /// Empty when the file is sound, else the engine's words about the first damage.
    QString checkSoundness();
    /// Which version of the file engine works underneath, such as "3.40.1".
    static QString engineVersion();

    /// The version number that was stored with setVersion(); 0 in a file that never had one.
    int version() const;
    bool setVersion(int version);
    QStringList tables() const;
    QStringList columns(const QString& table) const;
    /// Copies the whole database, also while it is in use, to a new file that is complete or not there.
    bool backUpTo(const QString& path);
    /// Makes what the schema has and the file has not: tables, columns, indexes. Nothing is ever dropped.
    bool applySchema(const Schema& schema, const QString& databaseName);
    /// Appends rows to a table in one go, for seeds. Values are texts as in a CSV: true/false, ISO dates, ""
    /// is null.
    bool appendRows(const QString& table, const QStringList& columns, const QList<QStringList>& rows);

    /// Makes a new, empty database file; false when there is a file already or it can not be written.
    static bool create(const QString& path);

private:
    friend class Batch;
    friend class Step;
    friend class Upkeep;
    std::shared_ptr<Engine> m_engine;
};

/// Work on many rows in one commit, at the end of its life; after rollBack(), or when the program dies
/// before, nothing of it was done. A batch within another is a part of it.
///
/// When the transaction is gone (a full disk ends it, or another program keeps the file) all further writes
/// of its life are refused, and commit() says so.
class Batch {
public:
    enum class Mode {
        AllOrNothing, ///< one failed write, and commit() rolls back and is false
        KeepWhatSucceeds, ///< a failed write has changed nothing, the others stay, as row by row
    };
    explicit Batch(Database& database, Mode mode = Mode::AllOrNothing);
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    bool commit();
    void rollBack();

private:
    bool end(bool keep);

    std::shared_ptr<Engine> m_engine;
    Mode m_mode;
    int m_failuresBefore = 0;
    bool m_isRunning = false;
    bool m_isCommitted = false;
};

/// All that is written during its life, in several batches or none, is one step to a person, who knows it by
/// that name ("renaming the category Friends"). A step within another is a part of it.
class Step {
public:
    Step(Database& database, const QString& name);
    ~Step();
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    /// For what the step does outside of the book. The follower may outlive the caller.
    void follow(StepFollower follower);

private:
    std::shared_ptr<Engine> m_engine;
};

/// What is changed during its life is the program's own doing and no step for a person to take back. Only
/// rows of the first labelled table that it deletes come back.
class Upkeep {
public:
    explicit Upkeep(Database& database);
    ~Upkeep();
    Upkeep(const Upkeep&) = delete;
    Upkeep& operator=(const Upkeep&) = delete;

private:
    std::shared_ptr<Engine> m_engine;
};

/// The other way to the same file: `like` takes % and _ here.
class Connection {
public:
    explicit Connection(const Database& database)
        : m_database(database)
    {
    }
    Recordset openRecordset(QStringView sql) { return m_database.openRecordset(sql, Way::Ado); }
    Outcome execute(QStringView sql) { return m_database.execute(sql, Way::Ado); }

private:
    Database m_database;
};

} // namespace jet
