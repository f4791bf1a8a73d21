#include "jet/engine.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

Q_LOGGING_CATEGORY(lcSql, "orvane.sql", QtCriticalMsg)

/// So many rows of a search are read at once.
constexpr size_t kFewRows = 256;
/// To look at more rows than this part one by one takes as long as all of them in their order.
constexpr size_t kWorthwhilePart = 4;

} // namespace

Engine::~Engine()
{
    close();
}

void Engine::close()
{
    letGo();
    m_file.close();
}

Database::OpenResult Engine::open(const QString& path, Database::Kind kind)
{
    close();
    const Database::OpenResult result = m_file.open(path, kind);
    if (result == Database::OpenResult::Opened)
        takeUp();
    return result;
}

/// Everything that hangs on the connection goes before it.
void Engine::letGo()
{
    m_changes.reset();
    m_search.reset();
    m_unions.reset();
    m_undo.reset();
    m_plans.forget();
    m_catalog.forget();
    m_statements.stop();
}

void Engine::takeUp()
{
    m_statements.serve(connection());
    m_search
        = std::make_unique<TextSearch>(connection(), m_file.isReadableAside() ? m_file.path() : QString());
    m_unions = std::make_unique<KeptUnions>(*this);
    m_changes = std::make_unique<RowChanges>(
        connection(),
        [this](const char* table, sqlite3_int64 id) {
            m_search->rowChanged(table, id);
            m_unions->rowChanged(table, id);
        },
        [this] {
            m_search->forget();
            m_unions->forget();
        });
    if (m_labels)
        keepChanges(QList<ColumnName>(*m_labels));
}

void Engine::takeSettings(const Engine& other)
{
    m_failureHandler = other.m_failureHandler;
    m_stepsHandler = other.m_stepsHandler;
    m_file.setWaitHandler(other.m_file.waitHandler());
    m_catalog.setColumnsNeverEqualToNull(other.m_catalog.columnsNeverEqualToNull());
}

void Engine::setColumnsNeverEqualToNull(const QList<ColumnName>& columns)
{
    m_catalog.setColumnsNeverEqualToNull(columns);
    forgetTables();
}

// ---- writing

Outcome Engine::execute(QStringView sql, Way way)
{
    if (!mayWrite(sql))
        return {};
    const auto request = this->request(sql, way);
    if (!request)
        return {};
    const Translation& translation = request->plan->translation;
    switch (translation.kind) {
    case Translation::Kind::OtherFile: return {true, 0};
    case Translation::Kind::Keyset:
    case Translation::Kind::Snapshot: report(sql, u"a selection is no action"_s); return {};
    default: break;
    }
    int result = SQLITE_ERROR;
    {
        std::optional<Prepared> narrowed = narrowedUpdate(*request, way);
        const Prepared statement = narrowed ? std::move(*narrowed) : prepareMain(*request, way);
        if (m_search)
            m_search->setAssigned(translation.table, translation.assigned);
        if (statement)
            result = stepWrite(statement.get());
        if (m_search)
            m_search->setAssigned({}, {});
        if (result != SQLITE_DONE)
            reportLast(sql);
    }
    const int rows = sqlite3_changes(connection());
    if (translation.kind == Translation::Kind::MakeTable)
        forgetTables();
    if (result != SQLITE_DONE)
        return {};
    return {true, translation.kind == Translation::Kind::Action ? rows : 0};
}

bool Engine::runWrite(const QString& sql)
{
    const bool may = mayWrite(sql);
    const bool done = may && m_file.runWaiting(sql.toUtf8().constData());
    if (may && !done)
        reportLast(sql);
    endWrite(done);
    return done;
}

bool Engine::mayWrite(QStringView statement)
{
    if (m_batch.depth > 0) {
        // A full disk makes the file engine roll back by itself. What came behind would be stored alone.
        m_batch.isGone = m_batch.isGone || !isOpen() || sqlite3_get_autocommit(connection()) != 0;
        if (!m_batch.isGone)
            return true;
        report(statement, u"what it belongs to was given up before"_s, m_batch.whyGone);
        return false;
    }
    if (m_file.isReadOnly() && m_file.isWritableByNow()) {
        letGo();
        m_file.reopen();
        if (isOpen())
            takeUp();
    }
    if (isOpen())
        m_file.switchLogOn();
    return true;
}

void Engine::endWrite(bool succeeded)
{
    if (m_undo)
        m_undo->endStatement(succeeded);
    if (succeeded && m_batch.depth == 0)
        m_lastFailure.reset();
    if (succeeded)
        return;
    if (m_batch.depth == 0 || m_batch.failures == 0)
        m_lastFailure = m_lastReport;
    if (m_batch.depth == 0)
        return;
    ++m_batch.failures;
    if (!m_batch.isGone && isOpen() && sqlite3_get_autocommit(connection()) != 0) {
        m_batch.isGone = true;
        m_batch.whyGone = m_lastReport.cause;
    }
}

void Engine::beginBatch()
{
    if (m_batch.depth > 0) {
        ++m_batch.depth;
        m_batch.changesBefore.push_back(m_undo ? m_undo->pendingRows() : 0);
        if (!m_batch.isGone)
            m_file.run("SAVEPOINT part");
        return;
    }
    const bool begun = mayWrite(u"begin") && m_file.runWaiting("BEGIN IMMEDIATE");
    m_batch = {};
    m_batch.depth = 1;
    if (begun)
        return;
    reportLast(u"begin");
    m_batch.isGone = true;
    m_batch.whyGone = m_lastReport.cause;
    endWrite(false);
}

bool Engine::endBatch(bool keep)
{
    if (!isOpen())
        return false;
    const OpenBatch batch = m_batch;
    --m_batch.depth;
    if (batch.depth > 1)
        m_batch.changesBefore.pop_back();
    const bool isGone = batch.isGone || sqlite3_get_autocommit(connection()) != 0;
    if (batch.depth > 1) {
        m_batch.isGone = isGone;
        if (isGone)
            return false;
        if (!keep) {
            m_file.run("ROLLBACK TO part");
            ++m_batch.failures;
            if (m_undo)
                m_undo->rollBack(batch.changesBefore.back());
            forgetTables();
        }
        m_file.run("RELEASE part");
        return keep;
    }
    if (keep && !isGone && m_file.runWaiting("COMMIT")) {
        if (m_undo)
            m_undo->endTransaction();
        if (batch.failures == 0)
            m_lastFailure.reset();
        return true;
    }
    if (keep && !isGone) {
        reportLast(u"commit");
        m_lastFailure = m_lastReport;
    }
    if (sqlite3_get_autocommit(connection()) == 0)
        m_file.run("ROLLBACK");
    if (m_undo)
        m_undo->rollBack();
    forgetTables(); // one may have been made or dropped inside
    return false;
}

// ---- selections

std::optional<Request> Engine::request(QStringView sql, Way way)
{
    if (!isOpen()) {
        report(sql, u"no database is open"_s, Failure::Cause::Storage);
        return {};
    }
    m_file.startClock();
    QString error;
    auto request = m_plans.request(sql, way, catalog(), &error);
    if (!request)
        report(sql, error);
    return request;
}

bool Engine::bind(sqlite3_stmt* statement, const std::vector<Slot>& slots,
    const std::vector<Literal>& literals, const BoundTexts& texts)
{
    return bindValues(statement, slots, literals, texts, &m_refusal);
}

Prepared Engine::prepare(
    const Request& request, const Piece& piece, StatementPool Plan::*pool, const BoundTexts& texts)
{
    Prepared result = m_statements.pooled(piece.sql, Plan::poolOf(request.plan, pool));
    if (result && !bind(result.get(), piece.values, *request.literals, texts))
        return {};
    return result;
}

Prepared Engine::prepareMain(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (const auto stretch = stretchOf(translation, *request.literals, way))
        return prepare(request, translation.stretch, &Plan::stretchPool, *stretch);
    return prepare(request, translation.main, &Plan::mainPool);
}

std::optional<Engine::Narrowed> Engine::narrowed(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (!m_search || !translation.filter)
        return {};
    noticeMissedChanges();
    auto rows = m_search->rows(translation.table, *translation.filter, *request.literals, way);
    if (!rows)
        return {};
    Narrowed result;
    // Few rows are as quickly read as known.
    if (!translation.isOrdered && rows->sure.size() > kFewRows) {
        result.sure = std::move(rows->sure);
    } else {
        rows->doubtful.insert(rows->doubtful.end(), rows->sure.begin(), rows->sure.end());
    }
    if (rows->doubtful.size() > rows->all / kWorthwhilePart)
        return {};
    BoundTexts texts;
    texts.rowLists = {jsonList(rows->doubtful)};
    result.rest = prepare(request, translation.narrowed, &Plan::narrowedPool, texts);
    if (!result.rest)
        return {};
    return result;
}

// No other program can write while a batch is open, so what is known of the texts holds.
std::optional<Prepared> Engine::narrowedUpdate(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (!m_search || !isInBatch() || translation.kind != Translation::Kind::Action || !translation.filter)
        return {};
    noticeMissedChanges();
    auto rows = m_search->rows(
        translation.table, *translation.filter, *request.literals, way, TextSearch::AskedBy::Update);
    if (!rows)
        return {};
    rows->doubtful.insert(rows->doubtful.end(), rows->sure.begin(), rows->sure.end());
    if (rows->doubtful.size() > rows->all / kWorthwhilePart)
        return {};
    BoundTexts texts;
    texts.rowLists = {jsonList(rows->doubtful)};
    Prepared result = prepare(request, translation.narrowed, &Plan::narrowedPool, texts);
    return result ? std::optional(std::move(result)) : std::nullopt;
}

Prepared Engine::prepareRow(const Request& request, qint64 key)
{
    const Piece& row = request.plan->translation.row;
    Prepared result = prepare(request, row, &Plan::rowPool);
    if (result)
        sqlite3_bind_int64(result.get(), int(row.values.size()) + 1, key);
    return result;
}

void Engine::noticeMissedChanges()
{
    if (!m_changes->hasMissed())
        return;
    m_search->forget();
    m_unions->forget();
}

std::shared_ptr<const UnionKeys> Engine::unionKeys(const Request& request, Way way)
{
    if (!m_unions || !request.plan->translation.parts)
        return {};
    noticeMissedChanges();
    return m_unions->keys(request, way);
}

Prepared Engine::prepareUnionRows(const Request& request, const std::vector<QByteArray>& lists)
{
    BoundTexts texts;
    texts.rowLists = lists;
    return prepare(request, request.plan->translation.parts->rows, &Plan::unionRowsPool, texts);
}

std::optional<sqlite3_int64> Engine::number(const QString& sql)
{
    const Prepared statement = prepareKept(sql);
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
        return {};
    return sqlite3_column_int64(statement.get(), 0);
}

void Engine::forgetTables()
{
    m_plans.forget();
    m_catalog.forget();
    if (m_search)
        m_search->forget();
    if (m_unions)
        m_unions->forget();
}

// ---- steps to take back

void Engine::keepChanges(const QList<ColumnName>& labels)
{
    m_labels = labels;
    m_undo = isOpen() && !isReadOnly() ? std::make_unique<UndoLog>(*this, labels) : nullptr;
    if (m_undo)
        m_undo->setUpkeep(m_upkeeps > 0);
    tellSteps();
}

TakenBack Engine::moveStep(StepDirection direction)
{
    if (!m_undo || isInBatch() || m_openSteps > 0)
        return TakenBack::Nothing;
    beginBatch();
    TakenBack result = m_batch.isGone ? TakenBack::NotWritten : m_undo->write(direction);
    if (!endBatch(result == TakenBack::Done) && result == TakenBack::Done)
        result = TakenBack::NotWritten;
    m_undo->settle(direction, result);
    return result;
}

void Engine::beginStep(const QString& name)
{
    ++m_openSteps;
    if (m_undo)
        m_undo->beginStep(name);
}

void Engine::endStep()
{
    --m_openSteps;
    if (m_undo)
        m_undo->endStep();
}

void Engine::beginUpkeep()
{
    if (++m_upkeeps == 1 && m_undo)
        m_undo->setUpkeep(true);
}

void Engine::endUpkeep()
{
    if (--m_upkeeps == 0 && m_undo)
        m_undo->setUpkeep(false);
}

// ---- failures

void Engine::report(QStringView statement, const QString& reason, Failure::Cause cause)
{
    qCDebug(lcSql).noquote() << reason << "in" << statement.left(400);
    const Failure failure{cause, statement.toString(), reason};
    if (m_failureHandler)
        m_failureHandler(failure);
    m_lastReport = failure; // behind the handler, which may ask the database itself
}

void Engine::reportLast(QStringView statement)
{
    if (!m_refusal.isEmpty())
        return report(statement, std::exchange(m_refusal, QString()));
    const Failure failure = m_file.lastError();
    report(statement, failure.reason, failure.cause);
}

void Engine::reportRead(QStringView statement)
{
    reportLast(statement);
    if (m_lastReport.isOfStorage() && m_batch.failures == 0)
        m_lastFailure = m_lastReport;
}

} // namespace jet
