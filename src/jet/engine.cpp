#include "jet/engine.h"

#include "jet/letter_case.h"
#include "jet/like_pattern.h"
#include "jet/parser.h"

#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

Q_LOGGING_CATEGORY(lcSql, "orvane.sql", QtCriticalMsg)

constexpr qsizetype kLongestKeptText = 8 * 1024;
/// So many rows of a search are read at once.
constexpr size_t kFewRows = 256;
/// To look at more rows than this part one by one takes as long as all of them in their order.
constexpr size_t kWorthwhilePart = 4;

ColumnType columnTypeOf(const QString& declared)
{
    static const QHash<QString, ColumnType> types{
        {u"TEXT"_s, ColumnType::Text},
        {u"MEMOTEXT"_s, ColumnType::Memo},
        {u"DATETEXT"_s, ColumnType::Date},
        {u"NUMBER"_s, ColumnType::Number},
        {u"YESNOINT"_s, ColumnType::YesNo},
        {u"INTEGER"_s, ColumnType::AutoNumber},
    };
    return types.value(declared.toUpper(), ColumnType::Unknown);
}

QString columnText(sqlite3_stmt* statement, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
        sqlite3_column_bytes(statement, column));
}

/// The literals of all patterns.
std::vector<int> patternsOf(const TextFilter& filter)
{
    std::vector<int> literals;
    if (filter.kind == TextFilter::Kind::Pattern)
        literals.push_back(filter.literal);
    for (const TextFilter& part : filter.parts) {
        const std::vector<int> within = patternsOf(part);
        literals.insert(literals.end(), within.begin(), within.end());
    }
    return literals;
}

QByteArray jsonList(const std::vector<sqlite3_int64>& numbers)
{
    QByteArray list = "[";
    for (const sqlite3_int64 number : numbers) {
        if (list.size() > 1)
            list += ',';
        list += QByteArray::number(qlonglong(number));
    }
    return list + ']';
}

QString lowered(QStringView name)
{
    return name.toString().toLower();
}

} // namespace

Prepared::~Prepared()
{
    if (!m_statement)
        return;
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
    constexpr size_t kMostWaiting = 4;
    if (m_pool && m_pool->size() < kMostWaiting)
        m_pool->push_back(m_statement);
    else
        sqlite3_finalize(m_statement);
}

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
    for (auto& cache : m_byText)
        cache.clear();
    for (auto& cache : m_byShape)
        cache.clear();
    m_tables.clear();
    m_kept.clear();
    *m_isOpen = false;
    m_search.reset();
    m_undo.reset();
}

void Engine::takeUp()
{
    m_isOpen = std::make_shared<bool>(true);
    m_search
        = std::make_unique<TextSearch>(connection(), m_file.isReadableAside() ? m_file.path() : QString());
    if (m_labels)
        keepChanges(QList<ChangeLabel>(*m_labels));
}

void Engine::takeHandlers(const Engine& other)
{
    m_failureHandler = other.m_failureHandler;
    m_file.setWaitHandler(other.m_file.waitHandler());
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
        const Prepared statement = prepareMain(*request, way);
        if (statement)
            result = stepWrite(statement.get());
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

// ---- translations

std::optional<Request> Engine::request(QStringView sql, Way way)
{
    if (!isOpen()) {
        report(sql, u"no database is open"_s, Failure::Cause::Storage);
        return {};
    }
    m_file.startClock();
    auto& byText = m_byText[size_t(way)];
    const QString key = QString::fromRawData(sql.data(), sql.size());
    if (const Request* kept = byText.object(key); kept && kept->plan->generation == m_generation)
        return *kept;
    Lexed lexed = lex(sql);
    QString error = lexed.error;
    Request result;
    if (error.isEmpty())
        result.plan = plan(lexed, way, &error);
    if (!result.plan) {
        report(sql, error);
        return {};
    }
    result.literals = std::make_shared<const std::vector<Literal>>(std::move(lexed.literals));
    if (sql.size() <= kLongestKeptText)
        byText.insert(sql.toString(), new Request(result));
    return result;
}

std::shared_ptr<Plan> Engine::plan(const Lexed& lexed, Way way, QString* error)
{
    auto& byShape = m_byShape[size_t(way)];
    if (const auto* kept = byShape.object(lexed.shape); kept && (*kept)->generation == m_generation)
        return *kept;
    const auto statement = parseStatement(lexed.tokens, error);
    if (!statement)
        return {};
    auto translation = translate(*statement, catalog(), way, error);
    if (!translation)
        return {};
    auto result = std::make_shared<Plan>(m_isOpen);
    result->translation = std::move(*translation);
    result->generation = m_generation;
    if (lexed.shape.size() <= kLongestKeptText)
        byShape.insert(lexed.shape, new std::shared_ptr<Plan>(result));
    return result;
}

Prepared Engine::prepare(const QString& sql, const std::shared_ptr<Prepared::Pool>& pool, bool pooled)
{
    // A recordset may outlive its file, and the statements in the pools of its plan ended with the file.
    if (!isOpen())
        return {};
    if (pooled)
        pool->serve(m_isOpen);
    if (pooled && !pool->empty()) {
        Prepared waiting(pool->back(), pool);
        pool->pop_back();
        return waiting;
    }
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    if (sqlite3_prepare_v3(connection(), utf8.constData(), int(utf8.size()),
            pooled ? SQLITE_PREPARE_PERSISTENT : 0, &statement, &rest)
        != SQLITE_OK) {
        sqlite3_finalize(statement);
        return {};
    }
    return Prepared(statement, pooled ? pool : nullptr);
}

Prepared Engine::prepareMain(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (const auto stretch = stretchOf(request, way)) {
        Prepared result = prepare(translation.stretch.sql, request.plan->stretchPool, true);
        if (result && !bind(result.get(), translation.stretch.values, *request.literals, *stretch))
            return {};
        return result;
    }
    Prepared result = prepare(translation.main.sql, request.plan->mainPool, true);
    if (result && !bind(result.get(), translation.main.values, *request.literals))
        return {};
    return result;
}

// Texts are sorted by base letters first, so what begins with "É" stands among what begins with "E".
std::optional<BoundTexts> Engine::stretchOf(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (translation.orderedLiteral < 0)
        return {};
    std::u32string beginning;
    for (const int literal : patternsOf(*translation.filter)) {
        const auto pattern
            = LikePattern::compile((*request.literals)[size_t(literal)].text.toUtf8().toStdString(), way);
        // A broken pattern has to fail, also when there is no row to which it would be put.
        if (!pattern)
            return {};
        if (literal == translation.orderedLiteral)
            beginning = pattern->beginning();
    }
    if (beginning.empty())
        return {};
    std::string least;
    for (const char32_t letter : beginning)
        appendLetter(least, baseLetter(letter));
    BoundTexts texts;
    texts.least = QByteArray::fromStdString(least);
    // No letter is sorted behind bytes that are no letter.
    texts.beyond = texts.least + QByteArray(8, char(0xFF));
    return texts;
}

std::optional<Engine::Narrowed> Engine::narrowed(const Request& request, Way way)
{
    const Translation& translation = request.plan->translation;
    if (!m_search || !translation.filter)
        return {};
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
    result.rest = prepare(translation.narrowed.sql, request.plan->narrowedPool, true);
    BoundTexts texts;
    texts.rowList = jsonList(rows->doubtful);
    if (!result.rest || !bind(result.rest.get(), translation.narrowed.values, *request.literals, texts))
        return {};
    return result;
}

Prepared Engine::prepareRow(const Request& request, qint64 key)
{
    const Piece& row = request.plan->translation.row;
    Prepared result = prepare(row.sql, request.plan->rowPool, true);
    if (result && !bind(result.get(), row.values, *request.literals))
        return {};
    if (result)
        sqlite3_bind_int64(result.get(), int(row.values.size()) + 1, key);
    return result;
}

Prepared Engine::prepareText(const QString& sql)
{
    return prepare(sql, nullptr, false);
}

Prepared Engine::prepareKept(const QString& sql)
{
    constexpr size_t kMostKept = 32;
    if (m_kept.size() >= kMostKept && !m_kept.contains(sql)) {
        m_kept.clear();
    }
    auto& pool = m_kept[sql];
    if (!pool)
        pool = std::make_shared<Prepared::Pool>(m_isOpen);
    return prepare(sql, pool, true);
}

bool Engine::bind(sqlite3_stmt* statement, const std::vector<Slot>& slots,
    const std::vector<Literal>& literals, const BoundTexts& texts)
{
    const auto bound = [&texts](Slot::Reading reading) {
        return reading == Slot::Reading::RowList ? &texts.rowList
            : reading == Slot::Reading::Least    ? &texts.least
            : reading == Slot::Reading::Beyond   ? &texts.beyond
                                                 : nullptr;
    };
    int place = 0;
    for (const Slot& slot : slots) {
        if (const QByteArray* text = bound(slot.reading)) {
            sqlite3_bind_text(statement, ++place, text->constData(), int(text->size()), SQLITE_TRANSIENT);
            continue;
        }
        const Literal& literal = literals[size_t(slot.literal)];
        ColumnType type = literal.kind == Literal::Kind::Number ? ColumnType::Number : ColumnType::Text;
        switch (slot.reading) {
        case Slot::Reading::Date: type = ColumnType::Date; break;
        case Slot::Reading::Number: type = ColumnType::Number; break;
        case Slot::Reading::YesNo: type = ColumnType::YesNo; break;
        default: break;
        }
        QVariant stored;
        if (!toStored(literal.text, type, &stored) || !stored.isValid()) {
            m_refusal = u"the value does not fit its column: "_s + literal.text.left(40);
            return false;
        }
        bindStored(statement, ++place, stored);
    }
    return true;
}

// ---- tables

const CatalogTable* Engine::table(QStringView name)
{
    const QString key = lowered(name);
    if (const auto known = m_tables.find(key); known != m_tables.end())
        return known->second.get();
    if (!isOpen() || key.startsWith(u"sqlite_"))
        return nullptr;
    const Prepared columns
        = prepareText(u"SELECT t.name, c.name, c.type FROM sqlite_master t, pragma_table_info(t.name) c "
                      "WHERE t.type = 'table' AND t.name = ?1 COLLATE NOCASE ORDER BY c.cid"_s);
    if (!columns)
        return nullptr;
    const QByteArray utf8 = key.toUtf8();
    sqlite3_bind_text(columns.get(), 1, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    std::unique_ptr<CatalogTable> table;
    while (sqlite3_step(columns.get()) == SQLITE_ROW) {
        if (!table)
            table = std::make_unique<CatalogTable>(CatalogTable{columnText(columns.get(), 0), {}});
        table->columns.push_back({columnText(columns.get(), 1), columnTypeOf(columnText(columns.get(), 2))});
    }
    if (!table)
        return nullptr;
    return m_tables.emplace(key, std::move(table)).first->second.get();
}

// Recordsets that are open keep their plans; new requests translate anew.
void Engine::forgetTables()
{
    ++m_generation;
    m_tables.clear();
    if (m_search)
        m_search->forget();
}

// ---- steps to take back

void Engine::keepChanges(const QList<ChangeLabel>& labels)
{
    m_labels = labels;
    m_undo = isOpen() && !isReadOnly() ? std::make_unique<UndoLog>(*this, labels) : nullptr;
    if (m_undo)
        m_undo->setUpkeep(m_upkeeps > 0);
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
