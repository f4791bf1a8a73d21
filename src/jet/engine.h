#pragma once

#include "jet/bound_values.h"
#include "jet/database.h"
#include "jet/file_catalog.h"
#include "jet/file_connection.h"
#include "jet/kept_unions.h"
#include "jet/plan_cache.h"
#include "jet/prepared.h"
#include "jet/row_changes.h"
#include "jet/text_search.h"
#include "jet/undo_log.h"

#include <memory>

namespace jet {

/// One open file: composes its connection, its catalogue, the translations and the prepared statements that
/// are kept, the texts for searches and the changes to take back; knows what is written together, and how
/// each write ended. Shared by a Database, its copies and its recordsets.
class Engine {
public:
    Engine() = default;
    ~Engine();
    Q_DISABLE_COPY_MOVE(Engine)

    Database::OpenResult open(const QString& path, Database::Kind kind);
    void close();
    bool isOpen() const { return connection() != nullptr; }
    bool isReadOnly() const { return m_file.isReadOnly(); }
    const QString& path() const { return m_file.path(); }
    sqlite3* connection() const { return m_file.handle(); }

    std::optional<Request> request(QStringView sql, Way way);
    Prepared prepareMain(const Request& request, Way way);
    /// A search for texts of which the engine knows more than the file.
    struct Narrowed {
        std::vector<sqlite3_int64> sure; ///< rows that fit, of a statement without an order
        Prepared rest; ///< the other rows that fit
    };
    void readAhead()
    {
        if (m_search)
            m_search->readAhead();
    }
    /// Nothing when main has to look at all rows. To be asked and run within one ReadTransaction.
    std::optional<Narrowed> narrowed(const Request& request, Way way);
    Prepared prepareRow(const Request& request, qint64 key);
    /// Which rows a union of one table has; null when main has to be run. To be asked within one
    /// ReadTransaction.
    std::shared_ptr<const UnionKeys> unionKeys(const Request& request, Way way);
    /// The rows of a union for the listed keys of each arm.
    Prepared prepareUnionRows(const Request& request, const std::vector<QByteArray>& lists);
    Prepared prepare(
        const Request& request, const Piece& piece, StatementPool Plan::*pool, const BoundTexts& texts = {});
    std::optional<sqlite3_int64> number(const QString& sql); ///< of a statement that gives just one
    TextSearch* search() const { return m_search.get(); }
    Prepared prepareText(const QString& sql) const { return m_statements.once(sql); }
    Prepared prepareKept(const QString& sql) { return m_statements.kept(sql); }
    bool bind(sqlite3_stmt* statement, const std::vector<Slot>& slots, const std::vector<Literal>& literals,
        const BoundTexts& texts = {});

    // Writing. Each write asks whether it may, and tells how it ended.
    Outcome execute(QStringView sql, Way way);
    bool runWrite(const QString& sql); ///< of the engine itself, which no caller wrote; reports itself
    bool mayWrite(QStringView statement); ///< false, and reported, when there is nothing to write to
    int stepWrite(sqlite3_stmt* statement) { return m_file.stepWaiting(statement); }
    void endWrite(bool succeeded);
    void beginBatch();
    bool endBatch(bool keep);
    bool isInBatch() const { return m_batch.depth > 0; }
    int failuresOfBatch() const { return m_batch.failures; }
    std::optional<Failure> lastFailure() const { return m_lastFailure; }
    bool isStorageFault() const { return m_file.lastError().isOfStorage(); }

    const CatalogTable* table(QStringView name) { return m_catalog.table(name); }
    Catalog catalog()
    {
        return [this](QStringView name) { return table(name); };
    }
    void forgetTables();
    // What a person may take back.
    void keepChanges(const QList<ColumnName>& labels);
    UndoLog* undoLog() { return m_undo.get(); }
    TakenBack moveStep(StepDirection direction);
    void beginStep(const QString& name);
    void endStep();
    void beginUpkeep();
    void endUpkeep();

    size_t searchMemory() const
    {
        return (m_search ? m_search->memory() : 0) + (m_unions ? m_unions->memory() : 0);
    }

    void report(
        QStringView statement, const QString& reason, Failure::Cause cause = Failure::Cause::Statement);
    void refuse(const QString& reason) { m_refusal = reason; } ///< what the next reportLast() says
    void reportRead(QStringView statement); ///< a selection that failed
    void reportLast(QStringView statement); ///< what the file engine says
    void setFailureHandler(FailureHandler handler) { m_failureHandler = std::move(handler); }
    void setWaitHandler(WaitHandler handler) { m_file.setWaitHandler(std::move(handler)); }
    void setColumnsNeverEqualToNull(const QList<ColumnName>& columns);
    void setStepsHandler(StepsHandler handler) { m_stepsHandler = std::move(handler); }
    void tellSteps() const
    {
        if (m_stepsHandler)
            m_stepsHandler();
    }
    void takeSettings(const Engine& other);
    void setLimits(const StatementLimits& limits) { m_file.setLimits(limits); }
    bool isTooMuch(qint64 bytes) const { return m_file.limits().bytes > 0 && bytes > m_file.limits().bytes; }

private:
    /// An update within a batch, for the rows alone that the texts in memory name; nothing when main has to
    /// be run.
    std::optional<Prepared> narrowedUpdate(const Request& request, Way way);
    struct OpenBatch {
        int depth = 0;
        int failures = 0;
        bool isGone = false; ///< its transaction ended by itself or never began
        Failure::Cause whyGone = Failure::Cause::Storage;
        std::vector<size_t> changesBefore; ///< rows of the step when each part began
    };
    void letGo();
    void takeUp();
    void noticeMissedChanges();

    FileConnection m_file;
    Statements m_statements;
    FileCatalog m_catalog{m_statements};
    PlanCache m_plans;
    OpenBatch m_batch;
    std::unique_ptr<TextSearch> m_search; ///< of an open file
    std::unique_ptr<KeptUnions> m_unions; ///< of an open file
    std::unique_ptr<RowChanges> m_changes; ///< that tells both
    std::unique_ptr<UndoLog> m_undo; ///< of an open file whose changes are kept
    std::optional<QList<ColumnName>> m_labels; ///< of the changes that are kept
    int m_upkeeps = 0;
    int m_openSteps = 0;
    FailureHandler m_failureHandler;
    StepsHandler m_stepsHandler;
    Failure m_lastReport;
    std::optional<Failure> m_lastFailure;
    QString m_refusal; ///< why the last values were not bound; the file engine knows nothing of it
};

} // namespace jet
