#include "jet/recordset_data.h"

#include "jet/parser.h"
#include "jet/stored_value.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr int kMostAhead = 64; ///< rows
constexpr qint64 kMoment = 100; ///< milliseconds
constexpr qint64 kMostBlockBytes = 32 * 1024 * 1024;

} // namespace

RecordsetData::RecordsetData(std::shared_ptr<Engine> engine, Request request, Way way, QString text)
    : m_engine(std::move(engine))
    , m_request(std::move(request))
    , m_way(way)
    , m_text(std::move(text))
{
}

bool RecordsetData::load()
{
    const Translation& translation = m_request.plan->translation;
    m_isKeyset = translation.kind == Translation::Kind::Keyset;
    m_rowsHeld = !translation.idsOnly;
    const int width = int(translation.columns.size());
    m_held.reset(width);
    m_fetched.reset(width);
    std::optional<ReadTransaction> sameState;
    if ((translation.filter || translation.parts) && m_engine->isOpen())
        sameState.emplace(m_engine->connection());
    if ((m_union = m_engine->unionKeys(m_request, m_way))) {
        m_rowsHeld = false;
        m_blocks.resize(size_t(m_union->blocks()));
        if (!m_blocks.empty())
            block(0); // what is looked at first, in the same state of the file
        m_engine->readAhead();
        return true;
    }
    bool done = false;
    if (auto narrowed = m_engine->narrowed(m_request, m_way)) {
        m_keys.assign(narrowed->sure.begin(), narrowed->sure.end());
        m_rowsHeld = m_rowsHeld && m_keys.empty();
        done = readRows(narrowed->rest);
        if (!narrowed->sure.empty())
            std::sort(m_keys.begin(), m_keys.end());
    } else {
        done = readRows(m_engine->prepareMain(m_request, m_way));
    }
    if (!done)
        m_engine->reportRead(m_text);
    if (translation.filter || translation.parts)
        m_engine->readAhead();
    return done;
}

bool RecordsetData::readRows(const Prepared& statement)
{
    if (!statement)
        return false;
    int result = SQLITE_ERROR;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        if (m_isKeyset)
            m_keys.push_back(sqlite3_column_int64(statement.get(), 0));
        // The first row is current now and most often the only one. Fetched here it needs no transaction of
        // its own.
        if (!m_rowsHeld && m_keys.size() == 1)
            look(0);
        if (m_rowsHeld && !m_held.append(statement.get(), m_isKeyset ? 1 : 0))
            break;
        if (m_engine->isTooMuch(m_held.bytes() + qint64(m_keys.size() * sizeof(qint64)))) {
            m_engine->refuse(u"the rows are too many"_s);
            return false;
        }
    }
    return result == SQLITE_DONE;
}

int RecordsetData::columnIndex(QStringView name) const
{
    const auto& all = columns();
    for (size_t i = 0; i < all.size(); ++i) {
        if (name.size() == all[i].name.size() && name.compare(all[i].name, Qt::CaseInsensitive) == 0)
            return int(i);
    }
    return -1;
}

RecordsetData::Place RecordsetData::look(int row)
{
    if (m_rowsHeld)
        return {&m_held, row};
    if (m_union) {
        const int number = m_union->blockOf(row);
        const RowStore* rows = block(number);
        // A row that was deleted in the meantime reads as nulls.
        const int place = row - m_union->firstRow(number);
        return {rows && place < rows->rows() ? rows : nullptr, place};
    }
    const int changes = m_engine->isOpen() ? sqlite3_total_changes(m_engine->connection()) : m_changesAtFetch;
    const bool isUnchanged = m_changesAtFetch == changes;
    if (m_fetchedRow == row && isUnchanged)
        return {&m_fetched, row - m_firstFetched};
    const int behind = m_firstFetched + m_fetched.rows();
    // What was read ahead counts for a moment only: other programs may write meanwhile.
    const bool isAhead = isUnchanged && m_engine->isOpen() && row > m_fetchedRow && row < behind
        && !m_sinceFetch.hasExpired(kMoment);
    if (!isAhead) {
        const bool goesOn = isUnchanged && m_fetched.rows() > 0 && row == behind;
        fetch(row, goesOn ? std::min(2 * m_fetched.rows(), kMostAhead) : 1);
        m_changesAtFetch = changes;
    }
    // A row that was deleted in the meantime reads as nulls.
    m_fetchedRow = m_fetched.rows() > 0 ? row : -1;
    return {m_fetchedRow < 0 ? nullptr : &m_fetched, row - m_firstFetched};
}

const RowStore* RecordsetData::block(int number)
{
    std::unique_ptr<RowStore>& rows = m_blocks[size_t(number)];
    if (rows)
        return rows.get();
    const int arms = m_request.plan->translation.parts->arms;
    const Prepared statement = m_engine->prepareUnionRows(m_request, m_union->lists(number, arms));
    if (!statement)
        return nullptr;
    rows = std::make_unique<RowStore>();
    rows->reset(int(columns().size()));
    while (sqlite3_step(statement.get()) == SQLITE_ROW && rows->append(statement.get(), 0)) { }
    m_readBlocks.push_back(number);
    m_blockBytes += rows->bytes();
    while (m_blockBytes > kMostBlockBytes && m_readBlocks.size() > 1) {
        std::unique_ptr<RowStore>& oldest = m_blocks[size_t(m_readBlocks.front())];
        m_blockBytes -= oldest->bytes();
        oldest.reset();
        m_readBlocks.pop_front();
    }
    return rows.get();
}

int RecordsetData::leadingColumn() const
{
    if (!m_union || m_request.plan->translation.parts->leads == 0)
        return -1;
    return m_request.plan->translation.parts->leadPositions.front();
}

std::vector<Recordset::Run> RecordsetData::leadingRuns() const
{
    std::vector<Recordset::Run> runs;
    if (!m_union || m_request.plan->translation.parts->leads == 0)
        return runs;
    for (const UnionRef& ref : m_union->refs()) {
        if (runs.empty() || runs.back().numbers != ref.leads)
            runs.push_back({ref.leads, 0});
        runs.back().rows += int(ref.rows);
    }
    return runs;
}

int RecordsetData::rowOf(int column, qint64 wanted)
{
    if (m_union && column == m_request.plan->translation.parts->keyPosition) {
        for (const int number : m_union->blocksOf(wanted)) {
            const RowStore* rows = block(number);
            for (int row = 0; rows && row < rows->rows(); ++row) {
                if (rows->number(row, column) == wanted)
                    return m_union->firstRow(number) + row;
            }
        }
        return -1;
    }
    for (int row = 0; row < count(); ++row) {
        if (number(row, column) == wanted)
            return row;
    }
    return -1;
}

// Who reads row after row gets the next ones at once, which spares the beginning and end of a transaction for
// each.
void RecordsetData::fetch(int row, int rows)
{
    m_fetched.clear();
    m_firstFetched = row;
    std::optional<ReadTransaction> together;
    if (rows > 1 && m_engine->isOpen())
        together.emplace(m_engine->connection());
    const Prepared statement = m_engine->prepareRow(m_request, m_keys[size_t(row)]);
    // The key is the last of its values.
    const int keyPlace = statement ? sqlite3_bind_parameter_count(statement.get()) : 0;
    for (int next = row; statement && next < std::min(row + rows, count()); ++next) {
        if (next > row) {
            sqlite3_reset(statement.get());
            sqlite3_bind_int64(statement.get(), keyPlace, m_keys[size_t(next)]);
        }
        if (sqlite3_step(statement.get()) != SQLITE_ROW || !m_fetched.append(statement.get(), 0))
            break;
    }
    m_sinceFetch.start();
}

QString RecordsetData::text(int row, int column)
{
    const Place place = look(row);
    if (!place.store)
        return {};
    return place.store->text(place.row, column);
}

qint64 RecordsetData::number(int row, int column)
{
    const Place place = look(row);
    return place.store ? place.store->number(place.row, column) : 0;
}

bool RecordsetData::isSameText(int row, int otherRow, int column)
{
    const Place a = look(row);
    const Place b = look(otherRow);
    if (a.store && a.store == b.store && (m_rowsHeld || m_union))
        return a.store->isSameText(a.row, b.row, column);
    return text(row, column).compare(text(otherRow, column), Qt::CaseInsensitive) == 0;
}

QVariant RecordsetData::value(int row, int column)
{
    const Place place = look(row);
    return place.store ? place.store->value(place.row, column, columns()[size_t(column)].type) : QVariant();
}

int RecordsetData::find(QStringView criterion, int from)
{
    const Lexed lexed = lex(criterion);
    QString error = lexed.error;
    const ExpressionPtr condition = error.isEmpty() ? parseCondition(lexed.tokens, &error) : nullptr;
    std::optional<Piece> piece;
    const Translation& translation = m_request.plan->translation;
    std::vector<Literal> literals = lexed.literals;
    if (condition && m_isKeyset) {
        piece = translateCondition(
            *condition, translation.table, translation.tableAlias, m_engine->catalog(), m_way, &error);
    } else if (condition) {
        piece = translateSnapshotCondition(*condition, translation, m_way, &error);
        // The criterion's values come behind those of the selection that stands inside.
        if (piece) {
            literals = *m_request.literals;
            literals.insert(literals.end(), lexed.literals.begin(), lexed.literals.end());
            for (size_t i = translation.main.values.size(); i < piece->values.size(); ++i)
                piece->values[i].literal += int(m_request.literals->size());
        }
    }
    if (!piece) {
        m_engine->report(criterion, error);
        return -1;
    }
    const Prepared statement = m_engine->prepareText(piece->sql);
    if (!statement || !m_engine->bind(statement.get(), piece->values, literals)) {
        m_engine->reportLast(criterion);
        return -1;
    }
    if (!m_isKeyset) {
        int result = SQLITE_ERROR;
        while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
            if (const int found = sqlite3_column_int(statement.get(), 0); found >= from)
                return found;
        }
        if (result != SQLITE_DONE)
            m_engine->reportLast(criterion);
        return -1;
    }
    std::vector<qint64> matches;
    int result = SQLITE_ERROR;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW)
        matches.push_back(sqlite3_column_int64(statement.get(), 0));
    if (result != SQLITE_DONE) {
        m_engine->reportLast(criterion);
        return -1;
    }
    std::sort(matches.begin(), matches.end());
    if (from >= count())
        return -1;
    const auto found = std::find_if(m_keys.begin() + from, m_keys.end(),
        [&](qint64 key) { return std::binary_search(matches.begin(), matches.end(), key); });
    return found == m_keys.end() ? -1 : int(found - m_keys.begin());
}

bool RecordsetData::isEditable() const
{
    return m_isKeyset && !m_engine->isReadOnly();
}

void RecordsetData::begin(bool adding)
{
    m_changes.clear();
    m_editing = !m_isKeyset ? Editing::Nothing : adding ? Editing::NewRow : Editing::Row;
}

bool RecordsetData::set(QStringView columnName, const QVariant& value)
{
    if (m_editing == Editing::Nothing || !m_isKeyset) {
        m_engine->report(
            m_text, u"assignment to "_s + columnName.toString() + u" without a row that is edited"_s);
        return false;
    }
    const int index = columnIndex(columnName);
    const ResultColumn* column = index < 0 ? nullptr : &columns()[size_t(index)];
    QVariant stored;
    if (!column || column->source.isEmpty() || !toStored(value, column->type, &stored)) {
        m_engine->report(m_text, u"the value does not fit the column "_s + columnName.toString());
        return false;
    }
    const auto before = std::find_if(m_changes.begin(), m_changes.end(),
        [&](const Change& change) { return change.column == column->source; });
    if (before != m_changes.end())
        before->stored = stored;
    else
        m_changes.push_back({column->source, stored});
    return true;
}

bool RecordsetData::update()
{
    const bool done = updateNow();
    m_engine->endWrite(done);
    return done;
}

bool RecordsetData::updateNow()
{
    const Editing editing = std::exchange(m_editing, Editing::Nothing);
    const QString table = u'[' + m_request.plan->translation.table + u']';
    if (editing == Editing::NewRow) {
        QString names;
        QString marks;
        for (const Change& change : m_changes) {
            names += (names.isEmpty() ? u"["_s : u", ["_s) + change.column + u']';
            marks += marks.isEmpty() ? u"?"_s : u", ?"_s;
        }
        const QString sql = m_changes.empty()
            ? u"INSERT INTO "_s + table + u" DEFAULT VALUES"_s
            : u"INSERT INTO "_s + table + u" ("_s + names + u") VALUES ("_s + marks + u')';
        if (!write(sql, {}))
            return false;
        lastAddedKey = sqlite3_last_insert_rowid(m_engine->connection());
        forgetHeldRows();
        m_keys.push_back(lastAddedKey);
        return true;
    }
    if (editing != Editing::Row || position < 0 || position >= count()) {
        m_engine->report(m_text, u"update without a row that is edited"_s);
        return false;
    }
    if (m_changes.empty())
        return true;
    QString assignments;
    for (const Change& change : m_changes)
        assignments += (assignments.isEmpty() ? u"["_s : u", ["_s) + change.column + u"] = ?"_s;
    forgetHeldRows();
    return write(
        u"UPDATE "_s + table + u" SET "_s + assignments + u" WHERE rowid = ?"_s, m_keys[size_t(position)]);
}

bool RecordsetData::write(const QString& sql, std::optional<qint64> key)
{
    if (!m_engine->mayWrite(m_text))
        return false;
    const Prepared statement = m_engine->prepareKept(sql);
    int place = 0;
    for (const Change& change : m_changes)
        bindStored(statement.get(), ++place, change.stored);
    if (key)
        sqlite3_bind_int64(statement.get(), ++place, *key);
    if (!statement || m_engine->stepWrite(statement.get()) != SQLITE_DONE) {
        m_engine->reportLast(m_text);
        return false;
    }
    // Somebody else may have removed the row; then nothing was stored.
    if (sqlite3_changes(m_engine->connection()) > 0)
        return true;
    m_engine->report(m_text, u"the row is gone"_s);
    return false;
}

bool RecordsetData::removeCurrent()
{
    const bool done = removeNow();
    m_engine->endWrite(done);
    return done;
}

bool RecordsetData::removeNow()
{
    if (!m_isKeyset || position < 0 || position >= count()) {
        m_engine->report(m_text, u"no row to delete"_s);
        return false;
    }
    m_changes.clear();
    if (!write(u"DELETE FROM ["_s + m_request.plan->translation.table + u"] WHERE rowid = ?"_s,
            m_keys[size_t(position)]))
        return false;
    forgetHeldRows();
    m_keys.erase(m_keys.begin() + position);
    return true;
}

void RecordsetData::forgetHeldRows()
{
    m_rowsHeld = false;
    m_held.clear();
    m_fetched.clear();
    m_fetchedRow = -1;
}

} // namespace jet
