#include "jet/undo_log.h"

#include "jet/engine.h"
#include "jet/same_name.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace jet {

using namespace Qt::StringLiterals;

namespace {

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
            && (size == 0 || std::memcmp(sqlite3_value_blob(a), sqlite3_value_blob(b), size_t(size)) == 0);
    }
    }
}

QString textOf(sqlite3_value* value)
{
    const int size = sqlite3_value_bytes(value);
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(value)), size);
}

} // namespace

UndoLog::UndoLog(Engine& engine, const QList<ColumnName>& labels)
    : m_engine(engine)
    , m_connection(engine.connection())
    , m_fileBeside(
          QFileInfo(engine.path()).path() + u'/' + QFileInfo(engine.path()).completeBaseName() + u".undo"_s)
    , m_current(emptyStep())
{
    for (const ColumnName& label : labels) {
        const CatalogTable* table = engine.table(label.table);
        const CatalogColumn* column = table ? table->column(label.column) : nullptr;
        m_labels.push_back({label.table, column ? int(column - table->columns.data()) : -1});
    }
    // What a run that was killed left behind.
    const QFileInfo beside(m_fileBeside);
    for (const QString& left : QDir(beside.path()).entryList({beside.fileName() + u".??????"_s}, QDir::Files))
        QFile::remove(beside.dir().filePath(left));
    sqlite3_preupdate_hook(m_connection, &UndoLog::beforeChange, this);
}

UndoLog::~UndoLog()
{
    sqlite3_preupdate_hook(m_connection, nullptr, nullptr);
}

UndoLog::Step UndoLog::emptyStep() const
{
    return Step{{}, StepRows(m_fileBeside)};
}

// ---- what is changed

void UndoLog::beforeChange(void* self, sqlite3*, int operation, const char*, const char* table,
    sqlite3_int64 oldId, sqlite3_int64 newId)
{
    auto* log = static_cast<UndoLog*>(self);
    if (log->m_isWriting)
        return;
    const int number = log->tableNumber(table);
    // What the program does by itself is nothing to take back, but for contacts that it deletes.
    if (log->m_isUpkeep && operation == SQLITE_UPDATE)
        log->noteUpkeep(number, oldId);
    if (!log->m_isUpkeep || (operation == SQLITE_DELETE && log->m_tables[size_t(number)].label == 0))
        log->note(operation, number, oldId, newId);
}

int UndoLog::tableNumber(const char* name)
{
    if (m_lastTable >= 0 && m_tables[size_t(m_lastTable)].name == name)
        return m_lastTable;
    for (size_t i = 0; i < m_tables.size(); ++i) {
        if (m_tables[i].name == name)
            return m_lastTable = int(i);
    }
    Table table{.name = name};
    for (size_t i = 0; i < m_labels.size() && table.label < 0; ++i) {
        if (sameName(m_labels[i].table, QString::fromUtf8(name))) {
            table.label = int(i);
            table.labelColumn = m_labels[i].column;
        }
    }
    m_tables.push_back(table);
    return m_lastTable = int(m_tables.size()) - 1;
}

void UndoLog::note(int operation, int table, sqlite3_int64 oldId, sqlite3_int64 newId)
{
    const auto kind = operation == SQLITE_INSERT ? ChangeStep::Kind::Added
        : operation == SQLITE_DELETE             ? ChangeStep::Kind::Deleted
                                                 : ChangeStep::Kind::Changed;
    const bool isWhole = kind != ChangeStep::Kind::Changed;
    const size_t row = m_current.rows.rows().size();
    m_current.rows.begin({kind, table, kind == ChangeStep::Kind::Added ? newId : oldId,
        kind == ChangeStep::Kind::Deleted ? oldId : newId});
    bool isChanged = isWhole;
    const int columns = sqlite3_preupdate_count(m_connection);
    for (int column = 0; column < columns; ++column) {
        sqlite3_value* before = nullptr;
        sqlite3_value* after = nullptr;
        if (kind != ChangeStep::Kind::Added)
            sqlite3_preupdate_old(m_connection, column, &before);
        if (kind != ChangeStep::Kind::Deleted)
            sqlite3_preupdate_new(m_connection, column, &after);
        if (column == m_tables[size_t(table)].labelColumn)
            noteName(table, before, after);
        // Of a whole row nulls are noted as well: the columns may have defaults.
        if (!isWhole && isSame(before, after))
            continue;
        m_current.rows.add(column, before, after);
        isChanged = true;
    }
    if (isChanged)
        return;
    m_current.rows.cutAt(row);
    if (!m_names.empty() && m_names.back().row == row)
        m_names.pop_back();
}

void UndoLog::noteName(int table, sqlite3_value* before, sqlite3_value* after)
{
    const int label = m_tables[size_t(table)].label;
    if (m_names.empty() || label < m_names.back().label)
        m_names.push_back({m_current.rows.rows().size() - 1, label, textOf(before ? before : after)});
}

void UndoLog::noteUpkeep(int table, sqlite3_int64 id)
{
    if (m_done.empty() && m_undone.empty())
        return;
    for (int column = 0; column < sqlite3_preupdate_count(m_connection); ++column) {
        sqlite3_value* before = nullptr;
        sqlite3_value* after = nullptr;
        sqlite3_preupdate_old(m_connection, column, &before);
        sqlite3_preupdate_new(m_connection, column, &after);
        if (before && after && !isSame(before, after))
            m_upkept.push_back({table, id, column, CellValue::of(after)});
    }
}

// ---- the end of what belongs together

void UndoLog::endStatement(bool succeeded)
{
    if (!succeeded) {
        rollBack(m_sureRows);
        m_upkept.resize(std::min(m_sureUpkept, m_upkept.size()));
    }
    m_sureRows = pendingRows();
    m_sureUpkept = m_upkept.size();
    if (sqlite3_get_autocommit(m_connection) != 0)
        endTransaction();
}

void UndoLog::endTransaction()
{
    m_committedRows = m_sureRows = pendingRows();
    applyUpkeep();
    if (m_openSteps == 0)
        closeStep();
}

void UndoLog::rollBack(size_t toRows)
{
    m_current.rows.cutAt(toRows);
    while (!m_names.empty() && m_names.back().row >= toRows)
        m_names.pop_back();
    m_sureRows = std::min(m_sureRows, pendingRows());
    if (toRows == m_committedRows) {
        m_upkept.clear();
        m_sureUpkept = 0;
    }
}

/// A column that the program itself filled in since must not stand in the way of the steps before.
void UndoLog::applyUpkeep()
{
    const auto replaceLast = [](std::deque<Step>& steps, StepRows::Side side, const Upkept& cell) {
        for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
            if (step->rows.replace(side, cell.table, cell.id, cell.column, cell.value))
                return;
        }
    };
    for (const Upkept& cell : m_upkept) {
        replaceLast(m_done, StepRows::Side::After, cell);
        replaceLast(m_undone, StepRows::Side::Before, cell);
    }
    m_upkept.clear();
    m_sureUpkept = 0;
}

void UndoLog::beginStep(const QString& name)
{
    if (++m_openSteps == 1)
        m_current.change.name = name;
}

void UndoLog::endStep()
{
    if (--m_openSteps == 0 && sqlite3_get_autocommit(m_connection) != 0)
        closeStep();
}

void UndoLog::follow(StepFollower follower)
{
    m_current.followers.push_back(std::move(follower));
}

void UndoLog::closeStep()
{
    Step step = std::exchange(m_current, emptyStep());
    if (!step.rows.rows().empty()) {
        describe(step);
        step.change.id = m_nextId++;
        m_undone.clear();
        m_done.push_back(std::move(step));
        m_engine.tellSteps();
    }
    if (m_done.size() > kMostSteps)
        m_done.pop_front();
    m_names.clear();
    m_sureRows = m_committedRows = 0;
}

void UndoLog::describe(Step& step) const
{
    const auto& rows = step.rows.rows();
    const StepRows::Row& named = rows[m_names.empty() ? 0 : m_names.back().row];
    step.change.kind = named.kind;
    step.change.table = QString::fromUtf8(m_tables[size_t(named.table)].name);
    step.change.rowId = named.kind == ChangeStep::Kind::Deleted ? named.idBefore : named.idAfter;
    step.change.label = m_names.empty() ? QString() : m_names.back().text;
    step.change.isKept = step.rows.isKept();
    // A row that was written twice counts once, and so do the rows that other tables have for it.
    std::vector<sqlite3_int64> ids;
    for (const StepRows::Row& row : rows) {
        if (row.table == named.table)
            ids.push_back(row.idAfter);
    }
    std::sort(ids.begin(), ids.end());
    step.change.rows = int(std::unique(ids.begin(), ids.end()) - ids.begin());
}

// ---- back and forth

TakenBack UndoLog::write(StepDirection direction)
{
    const bool isBack = direction == StepDirection::Back;
    const auto& steps = isBack ? m_done : m_undone;
    if (steps.empty())
        return TakenBack::Nothing;
    const StepRows& rows = steps.back().rows;
    if (!rows.isKept())
        return TakenBack::NotKept;
    m_isWriting = true;
    bool isDone = true;
    bool isStorageFault = false;
    const size_t count = rows.rows().size();
    for (size_t i = 0; isDone && i < count; ++i)
        isDone = writeRow(rows, isBack ? count - 1 - i : i, direction, &isStorageFault);
    m_isWriting = false;
    return isDone ? TakenBack::Done : isStorageFault ? TakenBack::NotWritten : TakenBack::ChangedSince;
}

void UndoLog::settle(StepDirection direction, TakenBack result)
{
    const bool isBack = direction == StepDirection::Back;
    auto& from = isBack ? m_done : m_undone;
    auto& to = isBack ? m_undone : m_done;
    if (from.empty() || result == TakenBack::NotWritten)
        return; // another time it may be possible
    Step step = std::move(from.back());
    from.pop_back();
    m_engine.tellSteps();
    if (result != TakenBack::Done)
        return;
    const std::vector<StepFollower> followers = step.followers;
    to.push_back(std::move(step));
    for (const StepFollower& follower : followers)
        follower(direction);
}

// A row is only touched while it is as the step left it. What is blank may have become null or an empty text:
// lists and saves make no difference there.
bool UndoLog::writeRow(const StepRows& rows, size_t index, StepDirection direction, bool* isStorageFault)
{
    const StepRows::Row& row = rows.rows()[index];
    const CatalogTable* table = m_engine.table(QString::fromUtf8(m_tables[size_t(row.table)].name));
    const bool isBack = direction == StepDirection::Back;
    const bool isThere = row.kind != (isBack ? ChangeStep::Kind::Deleted : ChangeStep::Kind::Added);
    const bool stays = row.kind != (isBack ? ChangeStep::Kind::Added : ChangeStep::Kind::Deleted);
    const auto cells = rows.cells(index);
    QStringList names;
    QStringList marks;
    QStringList changes;
    std::vector<const CellValue*> found;
    std::vector<const CellValue*> wanted;
    for (const StepRows::Cell& cell : cells) {
        if (!table || size_t(cell.column) >= table->columns.size())
            return false;
        const CatalogColumn& column = table->columns[size_t(cell.column)];
        if (column.type == ColumnType::AutoNumber && !(isThere && stays))
            continue; // the row's own id says it
        names << u'[' + column.name + u']';
        marks << u"?"_s;
        changes << names.constLast() + u" = ?"_s;
        found.push_back(isBack ? &cell.after : &cell.before);
        wanted.push_back(isBack ? &cell.before : &cell.after);
    }
    if (names.isEmpty())
        return false;
    const QString name = u'[' + table->name + u']';
    const sqlite3_int64 id = isBack ? row.idAfter : row.idBefore;
    const auto run = [&](const QString& sql, const std::vector<const CellValue*>& values) {
        const Prepared statement = m_engine.prepareKept(sql);
        int place = 0;
        for (const CellValue* value : values)
            value->bind(statement.get(), ++place);
        sqlite3_bind_int64(statement.get(), ++place, id);
        const int result = statement ? sqlite3_step(statement.get()) : SQLITE_ERROR;
        *isStorageFault = result != SQLITE_DONE && m_engine.isStorageFault();
        return result == SQLITE_DONE && sqlite3_changes(m_connection) == 1;
    };
    if (!isThere)
        return run(u"INSERT INTO "_s + name + u" ("_s + names.join(u", "_s) + u", rowid) VALUES ("_s
                + marks.join(u", "_s) + u", ?)"_s,
            wanted);
    {
        const Prepared look = m_engine.prepareKept(
            u"SELECT "_s + names.join(u", "_s) + u" FROM "_s + name + u" WHERE rowid = ?"_s);
        sqlite3_bind_int64(look.get(), 1, id);
        if (!look || sqlite3_step(look.get()) != SQLITE_ROW) {
            *isStorageFault = m_engine.isStorageFault();
            return false;
        }
        for (size_t i = 0; i < found.size(); ++i) {
            const CellValue now = CellValue::of(look.get(), int(i));
            if (now != *found[i] && !(now.isBlank() && found[i]->isBlank()))
                return false;
        }
    }
    if (!stays)
        return run(u"DELETE FROM "_s + name + u" WHERE rowid = ?"_s, {});
    return run(u"UPDATE "_s + name + u" SET "_s + changes.join(u", "_s) + u" WHERE rowid = ?"_s, wanted);
}

} // namespace jet
