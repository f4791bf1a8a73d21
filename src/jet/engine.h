#pragma once

#include "jet/database.h"
#include "jet/file_connection.h"
#include "jet/lexer.h"
#include "jet/stored_value.h"
#include "jet/text_search.h"
#include "jet/translator.h"
#include "jet/undo_log.h"

#include <QCache>
#include <QHash>
#include <sqlite3.h>

#include <memory>
#include <unordered_map>

namespace jet {

/// A statement of the file engine, given back to its pool at the end of its use.
class Prepared {
public:
    /// Statements that wait to run again. They end with the pool, or before with the file: closing a file
    /// ends all its statements, also those of recordsets that live on, since nothing of it may stay open.
    class Pool : public std::vector<sqlite3_stmt*> {
    public:
        explicit Pool(std::shared_ptr<const bool> fileIsOpen)
            : m_fileIsOpen(std::move(fileIsOpen))
        {
        }
        ~Pool()
        {
            for (sqlite3_stmt* waiting : *this) {
                if (*m_fileIsOpen)
                    sqlite3_finalize(waiting);
            }
        }
        Q_DISABLE_COPY_MOVE(Pool)
        /// The file was opened anew: what waited ended with the old connection.
        void serve(const std::shared_ptr<bool>& fileIsOpen)
        {
            if (m_fileIsOpen == fileIsOpen)
                return;
            clear();
            m_fileIsOpen = fileIsOpen;
        }

    private:
        std::shared_ptr<const bool> m_fileIsOpen;
    };
    Prepared() = default;
    Prepared(sqlite3_stmt* statement, std::shared_ptr<Pool> pool)
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
    std::shared_ptr<Pool> m_pool;
};

/// A translation with the prepared statements that are waiting to run it again.
struct Plan {
    explicit Plan(const std::shared_ptr<const bool>& fileIsOpen)
        : mainPool(std::make_shared<Prepared::Pool>(fileIsOpen))
        , rowPool(std::make_shared<Prepared::Pool>(fileIsOpen))
        , narrowedPool(std::make_shared<Prepared::Pool>(fileIsOpen))
        , stretchPool(std::make_shared<Prepared::Pool>(fileIsOpen))
    {
    }

    Translation translation;
    std::shared_ptr<Prepared::Pool> mainPool;
    std::shared_ptr<Prepared::Pool> rowPool;
    std::shared_ptr<Prepared::Pool> narrowedPool;
    std::shared_ptr<Prepared::Pool> stretchPool;
    int generation = 0;
};

/// What is bound beside the values of the statement, for the slots that ask for it.
struct BoundTexts {
    QByteArray rowList;
    QByteArray least;
    QByteArray beyond;
};

/// A plan and the values that one text has for it.
struct Request {
    std::shared_ptr<Plan> plan;
    std::shared_ptr<const std::vector<Literal>> literals;
};

/// One open file: connection, tables known, translations kept. Shared by a Database, its copies and its
/// recordsets.
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
    Prepared prepareText(const QString& sql);
    Prepared prepareKept(
        const QString& sql); ///< keeps the statement ready: what a form writes, it writes again
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

    const CatalogTable* table(QStringView name);
    Catalog catalog()
    {
        return [this](QStringView name) { return table(name); };
    }
    void forgetTables();
    // What a person may take back.
    void keepChanges(const QList<ChangeLabel>& labels);
    UndoLog* undoLog() { return m_undo.get(); }
    TakenBack moveStep(StepDirection direction);
    void beginStep(const QString& name);
    void endStep();
    void beginUpkeep();
    void endUpkeep();

    size_t searchMemory() const { return m_search ? m_search->memory() : 0; }

    void report(
        QStringView statement, const QString& reason, Failure::Cause cause = Failure::Cause::Statement);
    void refuse(const QString& reason) { m_refusal = reason; } ///< what the next reportLast() says
    void reportRead(QStringView statement); ///< a selection that failed
    void reportLast(QStringView statement); ///< what the file engine says
    void setFailureHandler(FailureHandler handler) { m_failureHandler = std::move(handler); }
    void setWaitHandler(WaitHandler handler) { m_file.setWaitHandler(std::move(handler)); }
    void takeHandlers(const Engine& other);
    void setLimits(const StatementLimits& limits) { m_file.setLimits(limits); }
    bool isTooMuch(qint64 bytes) const { return m_file.limits().bytes > 0 && bytes > m_file.limits().bytes; }

private:
    std::shared_ptr<Plan> plan(const Lexed& lexed, Way way, QString* error);
    Prepared prepare(const QString& sql, const std::shared_ptr<Prepared::Pool>& pool, bool pooled);
    struct OpenBatch {
        int depth = 0;
        int failures = 0;
        bool isGone = false; ///< its transaction ended by itself or never began
        Failure::Cause whyGone = Failure::Cause::Storage;
        std::vector<size_t> changesBefore; ///< rows of the step when each part began
    };
    void letGo();
    void takeUp();
    static std::optional<BoundTexts> stretchOf(const Request& request, Way way);

    FileConnection m_file;
    OpenBatch m_batch;
    std::unique_ptr<TextSearch> m_search; ///< of an open file
    std::unique_ptr<UndoLog> m_undo; ///< of an open file whose changes are kept
    std::optional<QList<ChangeLabel>> m_labels; ///< of the changes that are kept
    int m_upkeeps = 0;
    int m_openSteps = 0;
    std::shared_ptr<bool> m_isOpen = std::make_shared<bool>(true); ///< shared with the pools of statements
    int m_generation = 0;
    FailureHandler m_failureHandler;
    Failure m_lastReport;
    std::optional<Failure> m_lastFailure;
    QString m_refusal; ///< why the last values were not bound; the file engine knows nothing of it
    std::unordered_map<QString, std::unique_ptr<CatalogTable>> m_tables; ///< by lower-case name
    std::unordered_map<QString, std::shared_ptr<Prepared::Pool>> m_kept; ///< by text
    QCache<QString, Request> m_byText[2] = {QCache<QString, Request>(512), QCache<QString, Request>(512)};
    QCache<QString, std::shared_ptr<Plan>> m_byShape[2]
        = {QCache<QString, std::shared_ptr<Plan>>(512), QCache<QString, std::shared_ptr<Plan>>(512)};
};

} // namespace jet
