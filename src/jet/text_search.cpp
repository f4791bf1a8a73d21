#include "jet/text_search.h"

#include "jet/letter_case.h"
#include "jet/like_pattern.h"
#include "jet/sql_functions.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/// Below that many rows a search through the file is as quick as anybody can type.
constexpr sqlite3_int64 kFewRows = 5'000;
/// A single letter is in nearly every row.
constexpr size_t kShortestWord = 2;
/// So many changed rows in so many are looked at anyway; with more the index is read anew.
constexpr size_t kMostChangedPart = 20;
void collectColumns(const TextFilter& filter, QStringList* columns)
{
    if (filter.kind == TextFilter::Kind::Pattern && !columns->contains(filter.column))
        *columns << filter.column;
    for (const TextFilter& part : filter.parts)
        collectColumns(part, columns);
}

} // namespace

/// One search: the filter with its patterns.
struct TextSearch::Query {
    struct Pattern {
        std::optional<LikePattern> compiled;
        std::string word; ///< that the pattern asks for
    };
    const Table& table;
    const std::vector<Literal>& literals;
    Way way;
    std::unordered_map<int, Pattern> patterns = {}; ///< by literal
    bool isBroken
        = false; ///< a pattern that can not be understood: the statement is to fail as it always does

    const Pattern& pattern(int literal)
    {
        const auto [known, isNew] = patterns.try_emplace(literal);
        if (isNew) {
            Pattern& made = known->second;
            made.compiled = LikePattern::compile(literals[size_t(literal)].text.toUtf8().toStdString(), way);
            isBroken = isBroken || !made.compiled;
            if (made.compiled)
                made.word = made.compiled->longestWithin();
            if (made.compiled && made.word.empty() && takesBeginnings) {
                for (const char32_t letter : made.compiled->beginning())
                    appendLetter(made.word, letter);
            }
        }
        return known->second;
    }

    /// The rows that fit; nothing when all may.
    std::optional<std::vector<char>> marks(const TextFilter& filter)
    {
        if (filter.kind == TextFilter::Kind::Pattern) {
            const Pattern& asked = pattern(filter.literal);
            if (asked.word.size() < (takesBeginnings ? 1 : kShortestWord))
                return {};
            std::vector<char> found(table.index.rows());
            table.index.mark(
                size_t(table.columns.indexOf(filter.column)), asked.word, *asked.compiled, found);
            return found;
        }
        const bool any = filter.kind == TextFilter::Kind::Any;
        std::optional<std::vector<char>> result;
        for (const TextFilter& part : filter.parts) {
            auto partly = marks(part);
            isWhole = isWhole && partly;
            if (!partly && any)
                return {};
            if (partly && !result)
                result = std::move(partly);
            else if (partly)
                std::transform(result->begin(), result->end(), partly->begin(), result->begin(),
                    [any](char a, char b) { return any ? a | b : a & b; });
        }
        return result;
    }

    bool isWhole = true; ///< every pattern was looked for
    /// Also patterns that say how a text begins, and of one letter: for those who look at no row.
    bool takesBeginnings = false;
};

/// The texts of a table on their way into memory. Ends the thread when it goes.
class TextSearch::Reading {
public:
    Reading(const QString& file, const QByteArray& sql)
    {
        if (sqlite3_open_v2(file.toUtf8().constData(), &m_connection,
                SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW, nullptr)
            == SQLITE_OK) {
            registerDialect(m_connection); // its indexes are sorted by our own collation
            m_thread = std::thread([this, sql] { read(m_connection, sql); });
        } else {
            m_isDone = true;
        }
    }
    ~Reading()
    {
        if (m_thread.joinable()) {
            m_isGivenUp = true;
            sqlite3_interrupt(m_connection);
            m_thread.join();
        }
        sqlite3_close_v2(m_connection);
    }
    Q_DISABLE_COPY_MOVE(Reading)

    bool isDone() const { return m_isDone; }
    /// Nothing when it failed, or was too much.
    std::optional<TextIndex> result()
    {
        if (m_thread.joinable())
            m_thread.join();
        return std::move(m_result);
    }

private:
    void read(sqlite3* connection, const QByteArray& sql)
    {
        sqlite3_stmt* rows = nullptr;
        TextIndex index;
        if (!m_isGivenUp
            && sqlite3_prepare_v2(connection, sql.constData(), int(sql.size()), &rows, nullptr) == SQLITE_OK
            && index.read(rows))
            m_result = std::move(index);
        sqlite3_finalize(rows);
        m_isDone = true;
    }

    sqlite3* m_connection = nullptr;
    std::thread m_thread;
    std::atomic<bool> m_isDone = false;
    std::atomic<bool> m_isGivenUp = false;
    std::optional<TextIndex> m_result;
};

TextSearch::TextSearch(sqlite3* connection, const QString& fileAside)
    : m_connection(connection)
    , m_fileAside(fileAside)
{
}

TextSearch::~TextSearch() = default;

void TextSearch::forget()
{
    m_tables.clear();
}

void TextSearch::rowChanged(const char* table, sqlite3_int64 id)
{
    if (m_tables.empty())
        return;
    const auto known = m_tables.find(table);
    if (known == m_tables.end() || known->second->isTooMuch)
        return;
    if (!m_assigned.isEmpty() && m_assignedTable == table)
        return noteAssigned(*known->second, m_assigned, id);
    auto& changed = known->second->changed;
    changed.insert(id);
    if (!known->second->reading && !known->second->isWanted
        && changed.size() * kMostChangedPart > known->second->index.rows())
        m_tables.erase(known);
}

void TextSearch::setAssigned(const QString& table, const QStringList& columns)
{
    m_assignedTable = table.toStdString();
    m_assigned = columns;
}

void TextSearch::noteAssigned(Table& table, const QStringList& columns, sqlite3_int64 id)
{
    for (const QString& column : columns) {
        if (!table.columns.contains(column) || table.stale.contains(column))
            continue;
        auto& changed = table.changedIn[column];
        changed.insert(id);
        if (!table.reading && !table.isWanted && changed.size() * kMostChangedPart > table.index.rows()) {
            table.changedIn.erase(column);
            table.stale << column;
        }
    }
}

std::unordered_set<sqlite3_int64> TextSearch::changedOf(const Table& table, const QStringList& columns)
{
    std::unordered_set<sqlite3_int64> changed = table.changed;
    for (const auto& [column, ids] : table.changedIn) {
        if (columns.contains(column))
            changed.insert(ids.begin(), ids.end());
    }
    return changed;
}

std::optional<TextSearch::Rows> TextSearch::rows(const QString& name, const TextFilter& filter,
    const std::vector<Literal>& literals, Way way, AskedBy askedBy)
{
    QStringList columns;
    collectColumns(filter, &columns);
    const bool isUpdate = askedBy == AskedBy::Update;
    Table* table = isUpdate ? known(name, columns) : prepared(name, columns);
    if (!table)
        return {};
    Query query{*table, literals, way};
    query.takesBeginnings = isUpdate;
    const auto marks = query.marks(filter);
    if (!marks || query.isBroken)
        return {};
    Rows found;
    found.all = marks->size();
    const auto changed = changedOf(*table, columns);
    found.doubtful.assign(changed.begin(), changed.end());
    auto& fitting = filter.isWhole && query.isWhole ? found.sure : found.doubtful;
    for (size_t row = 0; row < marks->size(); ++row) {
        const sqlite3_int64 id = table->index.idAt(row);
        if ((*marks)[row] && !changed.contains(id))
            fitting.push_back(id);
    }
    return found;
}

std::optional<TextSearch::ArmRows> TextSearch::rowsOfArms(
    const UnionParts& parts, const std::vector<Literal>& literals, Way way)
{
    QStringList columns;
    for (const TextFilter& filter : parts.filters)
        collectColumns(filter, &columns);
    const Table* table = prepared(parts.table, columns);
    if (!table)
        return {};
    Query query{*table, literals, way};
    query.takesBeginnings = true;
    std::vector<quint32> arms(table->index.rows());
    for (size_t arm = 0; arm < parts.filters.size(); ++arm) {
        const auto marks = query.marks(parts.filters[arm]);
        if (!marks || query.isBroken)
            return {};
        for (size_t row = 0; row < arms.size(); ++row)
            arms[row] |= quint32((*marks)[row]) << arm;
    }
    const bool isSure = query.isWhole && !parts.varyingColumns.empty();
    std::vector<size_t> places;
    for (const QString& column : parts.varyingColumns)
        places.push_back(size_t(table->columns.indexOf(column)));
    ArmRows found;
    const auto changed = changedOf(*table, columns);
    found.doubtful.assign(changed.begin(), changed.end());
    for (size_t row = 0; row < arms.size(); ++row) {
        const sqlite3_int64 id = table->index.idAt(row);
        if (arms[row] == 0 || changed.contains(id))
            continue;
        if (isSure)
            found.sure.push_back({id, arms[row], mayRepeat(*table, places, row, arms[row])});
        else
            found.doubtful.push_back(id);
    }
    return found;
}

bool TextSearch::mayRepeat(const Table& table, const std::vector<size_t>& columns, size_t row, quint32 arms)
{
    for (size_t a = 0; a < columns.size(); ++a) {
        for (size_t b = a + 1; b < columns.size(); ++b) {
            if ((arms >> a & arms >> b & 1)
                && compareJet(table.index.text(columns[a], row), table.index.text(columns[b], row)) == 0)
                return true;
        }
    }
    return false;
}

/// Whether what is kept of these columns is how the file is.
bool TextSearch::isFresh(const Table& table, const QStringList& columns)
{
    return table.fileVersion == number(u"PRAGMA data_version"_s)
        && std::all_of(columns.cbegin(), columns.cend(), [&table](const QString& column) {
               return table.columns.contains(column) && !table.stale.contains(column);
           });
}

TextSearch::Table* TextSearch::known(const QString& name, const QStringList& columns)
{
    const auto found = m_tables.find(name.toStdString());
    if (found == m_tables.end())
        return nullptr;
    Table& table = *found->second;
    takeWhatWasRead(table);
    const bool isThere = !table.reading && !table.isWanted && !table.isTooMuch;
    return isThere && isFresh(table, columns) ? &table : nullptr;
}

TextSearch::Table* TextSearch::prepared(const QString& name, const QStringList& columns)
{
    const auto version = number(u"PRAGMA data_version"_s);
    const std::string key = name.toStdString();
    const auto known = m_tables.find(key);
    Table* table = known == m_tables.end() ? nullptr : known->second.get();
    if (!table && !isWorthwhile(name))
        return nullptr;
    if (!table)
        table = m_tables.emplace(key, std::make_unique<Table>()).first->second.get();
    takeWhatWasRead(*table);
    if (table->reading || table->isWanted)
        return nullptr;
    if (isFresh(*table, columns))
        return table->isTooMuch ? nullptr : table;
    for (const QString& column : columns) {
        if (!table->columns.contains(column))
            table->columns << column;
    }
    // What this connection has written and not committed can not be seen from aside.
    if (!version || (!m_fileAside.isEmpty() && sqlite3_txn_state(m_connection, "main") == SQLITE_TXN_WRITE)) {
        m_tables.erase(key);
        return nullptr;
    }
    table->fileVersion = *version;
    table->index = {};
    table->changed.clear(); // from here on each change is noted
    table->changedIn.clear();
    table->stale.clear();
    table->isWanted = !m_fileAside.isEmpty();
    if (!table->isWanted)
        readNow(key, *table);
    return table->isWanted || table->isTooMuch ? nullptr : table;
}

QByteArray TextSearch::readingSql(const std::string& name, const Table& table) const
{
    return (u"SELECT rowid, ["_s + table.columns.join(u"], ["_s) + u"] FROM ["_s
        + QString::fromStdString(name) + u']')
        .toUtf8();
}

void TextSearch::readNow(const std::string& name, Table& table)
{
    const QByteArray sql = readingSql(name, table);
    sqlite3_stmt* rows = nullptr;
    table.isTooMuch
        = sqlite3_prepare_v2(m_connection, sql.constData(), int(sql.size()), &rows, nullptr) != SQLITE_OK
        || !table.index.read(rows);
    sqlite3_finalize(rows);
    if (table.isTooMuch)
        table.index = {};
}

void TextSearch::readAhead()
{
    for (const auto& [name, table] : m_tables) {
        if (std::exchange(table->isWanted, false))
            table->reading = std::make_unique<Reading>(m_fileAside, readingSql(name, *table));
    }
}

void TextSearch::takeWhatWasRead(Table& table)
{
    if (!table.reading || !table.reading->isDone())
        return;
    auto index = table.reading->result();
    table.reading.reset();
    table.isTooMuch = !index;
    if (index)
        table.index = std::move(*index);
    // Nearly all was changed in the meantime: the next search has it read anew.
    if (index && table.changed.size() * kMostChangedPart > table.index.rows())
        table.fileVersion = -1;
}

bool TextSearch::isWorthwhile(const QString& name)
{
    return number(u"SELECT max(rowid) FROM ["_s + name + u']').value_or(0) >= kFewRows;
}

std::optional<sqlite3_int64> TextSearch::number(const QString& sql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    std::optional<sqlite3_int64> result;
    if (sqlite3_prepare_v2(m_connection, utf8.constData(), int(utf8.size()), &statement, nullptr) == SQLITE_OK
        && sqlite3_step(statement) == SQLITE_ROW)
        result = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return result;
}

size_t TextSearch::memory()
{
    size_t sum = 0;
    for (const auto& [name, table] : m_tables) {
        takeWhatWasRead(*table);
        sum += table->index.bytes();
    }
    return sum;
}

ReadTransaction::ReadTransaction(sqlite3* connection)
    : m_connection(sqlite3_get_autocommit(connection) ? connection : nullptr)
{
    if (m_connection && sqlite3_exec(m_connection, "BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK)
        m_connection = nullptr;
}

ReadTransaction::~ReadTransaction()
{
    if (m_connection)
        sqlite3_exec(m_connection, "COMMIT", nullptr, nullptr, nullptr);
}

} // namespace jet
