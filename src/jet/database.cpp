#include "jet/database.h"

#include "jet/engine.h"
#include "jet/recordset_data.h"
#include "jet/stored_value.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

QString bracketed(QStringView name)
{
    return u'[' + name.toString() + u']';
}

QString columnDefinition(const SchemaColumn& column)
{
    QString definition = bracketed(column.name);
    switch (column.type) {
    case ColumnType::AutoNumber: return definition + u" INTEGER PRIMARY KEY AUTOINCREMENT"_s;
    case ColumnType::Memo: definition += u" MEMOTEXT COLLATE JET"_s; break;
    case ColumnType::Number: definition += u" NUMBER"_s; break;
    case ColumnType::YesNo: return definition + u" YESNOINT NOT NULL ON CONFLICT REPLACE DEFAULT 0"_s;
    case ColumnType::Date: definition += u" DATETEXT"_s; break;
    default: definition += u" TEXT COLLATE JET"_s; break;
    }
    if (!column.defaultValue.isEmpty())
        definition += u" DEFAULT '"_s + QString(column.defaultValue).replace(u'\'', u"''"_s) + u'\'';
    return definition;
}

QString createTable(const SchemaTable& table)
{
    QStringList definitions;
    for (const SchemaColumn& column : table.columns)
        definitions << columnDefinition(column);
    return u"CREATE TABLE "_s + bracketed(table.name) + u" ("_s + definitions.join(u", "_s) + u')';
}

QString createIndex(const SchemaIndex& index)
{
    const QString sql = u"CREATE INDEX IF NOT EXISTS "_s + bracketed(index.name) + u" ON "_s
        + bracketed(index.table) + u" (["_s + index.columns.join(u"], ["_s) + u"])"_s;
    return index.condition.isEmpty() ? sql : sql + u" WHERE "_s + index.condition;
}

} // namespace

Database::Database()
    : m_engine(std::make_shared<Engine>())
{
}
Database::~Database() = default;
Database::Database(const Database&) = default;
Database& Database::operator=(const Database&) = default;

// Recordsets of a file that was open before keep their own engine, so the new file starts with a fresh one.
Database::OpenResult Database::open(const QString& path, Kind kind)
{
    auto engine = std::make_shared<Engine>();
    engine->takeSettings(*m_engine);
    const OpenResult result = engine->open(path, kind);
    m_engine = std::move(engine);
    return result;
}

void Database::close()
{
    auto closed = std::make_shared<Engine>();
    closed->takeSettings(*m_engine);
    m_engine->close();
    m_engine = std::move(closed);
}

bool Database::isOpen() const
{
    return m_engine->isOpen();
}
bool Database::isReadOnly() const
{
    return m_engine->isReadOnly();
}
QString Database::path() const
{
    return m_engine->path();
}
void Database::setFailureHandler(FailureHandler handler)
{
    m_engine->setFailureHandler(std::move(handler));
}
void Database::setWaitHandler(WaitHandler handler)
{
    m_engine->setWaitHandler(std::move(handler));
}
void Database::setColumnsNeverEqualToNull(const QList<ColumnName>& columns)
{
    m_engine->setColumnsNeverEqualToNull(columns);
}
void Database::setLimits(const StatementLimits& limits)
{
    m_engine->setLimits(limits);
}
std::optional<Failure> Database::lastFailure() const
{
    return m_engine->lastFailure();
}

Recordset Database::openRecordset(QStringView sql, Way way)
{
    const auto request = m_engine->request(sql, way);
    if (!request)
        return {};
    const auto kind = request->plan->translation.kind;
    if (kind != Translation::Kind::Keyset && kind != Translation::Kind::Snapshot) {
        m_engine->report(sql, u"an action has no rows"_s);
        return {};
    }
    auto data = std::make_unique<RecordsetData>(m_engine, *request, way, sql.toString());
    return data->load() ? Recordset(std::move(data)) : Recordset();
}

Outcome Database::execute(QStringView sql, Way way)
{
    const Outcome outcome = m_engine->execute(sql, way);
    m_engine->endWrite(outcome.ok);
    return outcome;
}

std::optional<bool> Database::givesRows(QStringView sql, Way way)
{
    const auto request = m_engine->request(sql, way);
    if (!request)
        return {};
    const auto kind = request->plan->translation.kind;
    return kind == Translation::Kind::Keyset || kind == Translation::Kind::Snapshot;
}

QString Database::state() const
{
    const Prepared read = m_engine->isOpen() ? m_engine->prepareKept(u"PRAGMA data_version"_s) : Prepared();
    if (!read || sqlite3_step(read.get()) != SQLITE_ROW)
        return {};
    return u"%1 %2 %3"_s.arg(m_engine->path(), QString::number(sqlite3_column_int64(read.get(), 0)),
        QString::number(sqlite3_total_changes(m_engine->connection())));
}

void Database::keepChanges(const QList<ColumnName>& labels)
{
    m_engine->keepChanges(labels);
}

std::optional<ChangeStep> Database::lastChange() const
{
    const ChangeStep* last = m_engine->undoLog() ? m_engine->undoLog()->last() : nullptr;
    return last ? std::optional(*last) : std::nullopt;
}

std::optional<ChangeStep> Database::lastUndone() const
{
    const ChangeStep* last = m_engine->undoLog() ? m_engine->undoLog()->lastUndone() : nullptr;
    return last ? std::optional(*last) : std::nullopt;
}

TakenBack Database::undoLastChange()
{
    return m_engine->moveStep(StepDirection::Back);
}

TakenBack Database::redoLastChange()
{
    return m_engine->moveStep(StepDirection::Again);
}

void Database::setStepsHandler(StepsHandler handler)
{
    m_engine->setStepsHandler(std::move(handler));
}

size_t Database::searchMemory() const
{
    return m_engine->searchMemory();
}

QString Database::checkSoundness()
{
    const Prepared check
        = m_engine->isOpen() ? m_engine->prepareText(u"PRAGMA quick_check(1)"_s) : Prepared();
    if (!check || sqlite3_step(check.get()) != SQLITE_ROW)
        return m_engine->isOpen() ? QString::fromUtf8(sqlite3_errmsg(m_engine->connection())) : u"not open"_s;
    const auto text = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(check.get(), 0)));
    return text == u"ok" ? QString() : text;
}

QString Database::engineVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

int Database::version() const
{
    const Prepared read = m_engine->isOpen() ? m_engine->prepareText(u"PRAGMA user_version"_s) : Prepared();
    return read && sqlite3_step(read.get()) == SQLITE_ROW ? sqlite3_column_int(read.get(), 0) : 0;
}

bool Database::setVersion(int version)
{
    return m_engine->isOpen() && m_engine->runWrite(u"PRAGMA user_version = "_s + QString::number(version));
}

QStringList Database::tables() const
{
    QStringList names;
    const Prepared read = m_engine->isOpen()
        ? m_engine->prepareText(
            u"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY name"_s)
        : Prepared();
    while (read && sqlite3_step(read.get()) == SQLITE_ROW)
        names << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(read.get(), 0)));
    return names;
}

QStringList Database::columns(const QString& table) const
{
    QStringList names;
    if (const CatalogTable* known = m_engine->table(table)) {
        for (const CatalogColumn& column : known->columns)
            names << column.name;
    }
    return names;
}

bool Database::backUpTo(const QString& path)
{
    const QString partial = path + u".part"_s;
    QFile::remove(partial);
    sqlite3* target = nullptr;
    bool done = false;
    if (m_engine->isOpen() && sqlite3_open(partial.toUtf8().constData(), &target) == SQLITE_OK) {
        if (sqlite3_backup* copy = sqlite3_backup_init(target, "main", m_engine->connection(), "main")) {
            done = sqlite3_backup_step(copy, -1) == SQLITE_DONE;
            done = sqlite3_backup_finish(copy) == SQLITE_OK && done;
        }
        // A copy is one file, without a log beside it.
        done = sqlite3_exec(target, "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr) == SQLITE_OK
            && done;
    }
    sqlite3_close(target);
    done = done && !QFileInfo::exists(path) && QFile::rename(partial, path);
    if (!done) {
        QFile::remove(partial);
        m_engine->report(
            u"backup", u"the copy "_s + path + u" could not be written"_s, Failure::Cause::Storage);
    }
    return done;
}

bool Database::applySchema(const Schema& schema, const QString& databaseName)
{
    if (!m_engine->isOpen())
        return false;
    Batch batch(*this);
    bool done = true;
    const auto step = [&](const QString& sql) { done = done && m_engine->runWrite(sql); };
    QStringList made;
    for (const SchemaTable& table : schema.tables) {
        if (table.database != databaseName)
            continue;
        made << table.name.toLower();
        const CatalogTable* known = m_engine->table(table.name);
        if (!known) {
            step(createTable(table));
            continue;
        }
        for (const SchemaColumn& column : table.columns) {
            if (!known->column(column.name))
                step(
                    u"ALTER TABLE "_s + bracketed(table.name) + u" ADD COLUMN "_s + columnDefinition(column));
        }
    }
    for (const SchemaIndex& index : schema.indexes) {
        if (made.contains(index.table.toLower()))
            step(createIndex(index));
    }
    done = batch.commit() && done;
    m_engine->forgetTables();
    return done;
}

bool Database::appendRows(const QString& table, const QStringList& columns, const QList<QStringList>& rows)
{
    const CatalogTable* known = m_engine->table(table);
    if (!known)
        return false;
    std::vector<ColumnType> types;
    QStringList names;
    QStringList marks;
    for (const QString& name : columns) {
        const CatalogColumn* column = known->column(name);
        if (!column) {
            m_engine->report(table, u"no such column: "_s + name);
            return false;
        }
        types.push_back(column->type);
        names << bracketed(column->name);
        marks << u"?"_s;
    }
    Batch batch(*this);
    const Prepared insert = m_engine->prepareText(u"INSERT INTO "_s + bracketed(table) + u" ("_s
        + names.join(u", "_s) + u") VALUES ("_s + marks.join(u", "_s) + u')');
    bool done = bool(insert) && m_engine->mayWrite(table);
    for (const QStringList& row : rows) {
        for (int i = 0; done && i < int(types.size()); ++i) {
            // Most cells of a book are blank.
            if (i >= row.size() || row[i].isEmpty()) {
                sqlite3_bind_null(insert.get(), i + 1);
                continue;
            }
            const ColumnType type = types[size_t(i)];
            if (type == ColumnType::Text || type == ColumnType::Memo) {
                bindText(insert.get(), i + 1, row[i]);
                continue;
            }
            QVariant stored;
            done = toStored(row[i], type, &stored);
            bindStored(insert.get(), i + 1, stored);
        }
        done = done && sqlite3_step(insert.get()) == SQLITE_DONE;
        if (!done)
            break;
        sqlite3_reset(insert.get());
    }
    if (!done)
        m_engine->reportLast(table);
    m_engine->endWrite(done);
    return batch.commit() && done;
}

bool Database::isWithoutTable(const QString& path, const QString& table)
{
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded() + "?mode=ro&immutable=1";
    const QByteArray name = table.toUtf8();
    sqlite3* connection = nullptr;
    sqlite3_stmt* look = nullptr;
    bool isWithout = false;
    if (sqlite3_open_v2(uri.constData(), &connection,
            SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOFOLLOW, nullptr)
            == SQLITE_OK
        && sqlite3_prepare_v2(connection,
               "select count(*) from sqlite_master where type = 'table' and name = ?1 collate nocase", -1,
               &look, nullptr)
            == SQLITE_OK) {
        sqlite3_bind_text(look, 1, name.constData(), int(name.size()), SQLITE_STATIC);
        isWithout = sqlite3_step(look) == SQLITE_ROW && sqlite3_column_int(look, 0) == 0;
    }
    sqlite3_finalize(look);
    sqlite3_close(connection);
    return isWithout;
}

bool Database::create(const QString& path)
{
    if (QFileInfo::exists(path))
        return false;
    sqlite3* connection = nullptr;
    bool done = sqlite3_open_v2(QFile::encodeName(path).constData(), &connection,
                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr)
        == SQLITE_OK;
    done = done
        && sqlite3_exec(connection, "PRAGMA encoding = 'UTF-8'; PRAGMA page_size = 4096; VACUUM", nullptr,
               nullptr, nullptr)
            == SQLITE_OK;
    sqlite3_close(connection);
    return done;
}

} // namespace jet
