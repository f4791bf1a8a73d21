#include "jet/step_rows.h"

#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// To be left for what the program itself has to write.
constexpr qint64 kRoomToLeave = 64 * 1024 * 1024;

template <class T> void append(QByteArray* bytes, T value)
{
    bytes->append(reinterpret_cast<const char*>(&value), sizeof value);
}

template <class T> T take(const char** at)
{
    T value;
    std::memcpy(&value, *at, sizeof value);
    *at += sizeof value;
    return value;
}

void appendValue(QByteArray* bytes, sqlite3_value* value)
{
    const int type = value ? sqlite3_value_type(value) : SQLITE_NULL;
    append(bytes, char(type));
    switch (type) {
    case SQLITE_INTEGER: append(bytes, sqlite3_value_int64(value)); break;
    case SQLITE_FLOAT: append(bytes, sqlite3_value_double(value)); break;
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
        const int size = sqlite3_value_bytes(value);
        append(bytes, size);
        bytes->append(static_cast<const char*>(sqlite3_value_blob(value)), size);
        break;
    }
    default: break;
    }
}

bool isNull(sqlite3_value* value)
{
    return !value || sqlite3_value_type(value) == SQLITE_NULL;
}

CellValue takeValue(const char** at)
{
    CellValue value;
    value.type = take<char>(at);
    switch (value.type) {
    case SQLITE_INTEGER: value.whole = take<sqlite3_int64>(at); break;
    case SQLITE_FLOAT: value.real = take<double>(at); break;
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
        const int size = take<int>(at);
        value.bytes = QByteArray(*at, size);
        *at += size;
        break;
    }
    default: break;
    }
    return value;
}

} // namespace

CellValue CellValue::of(sqlite3_value* value)
{
    CellValue copy;
    copy.type = sqlite3_value_type(value);
    switch (copy.type) {
    case SQLITE_INTEGER: copy.whole = sqlite3_value_int64(value); break;
    case SQLITE_FLOAT: copy.real = sqlite3_value_double(value); break;
    case SQLITE_TEXT:
    case SQLITE_BLOB:
        copy.bytes
            = QByteArray(static_cast<const char*>(sqlite3_value_blob(value)), sqlite3_value_bytes(value));
        break;
    default: break;
    }
    return copy;
}

void CellValue::bind(sqlite3_stmt* statement, int place) const
{
    switch (type) {
    case SQLITE_INTEGER: sqlite3_bind_int64(statement, place, whole); break;
    case SQLITE_FLOAT: sqlite3_bind_double(statement, place, real); break;
    case SQLITE_TEXT:
        sqlite3_bind_text(statement, place, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT);
        break;
    case SQLITE_BLOB:
        sqlite3_bind_blob(statement, place, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT);
        break;
    default: sqlite3_bind_null(statement, place); break;
    }
}

StepRows::StepRows(const QString& fileBeside)
    : m_fileBeside(fileBeside)
{
}
StepRows::~StepRows() = default;
StepRows::StepRows(StepRows&&) noexcept = default;
StepRows& StepRows::operator=(StepRows&&) noexcept = default;

void StepRows::begin(const Row& row)
{
    if (m_bytes.size() > kMostInMemory && m_isKept)
        m_isKept = moveToFile();
    m_blanksAt = -1;
    m_rows.push_back(row);
    m_rows.back().at = m_inFile + m_bytes.size();
}

void StepRows::add(int column, sqlite3_value* before, sqlite3_value* after)
{
    if (!m_isKept)
        return;
    if (isNull(before) && isNull(after))
        return addBlank(column);
    m_blanksAt = -1;
    append(&m_bytes, column);
    appendValue(&m_bytes, before);
    appendValue(&m_bytes, after);
}

// Most columns of a new contact are blank: those beside one another are one entry, the first of them as a
// negative number and how many there are.
void StepRows::addBlank(int column)
{
    if (m_blanksAt >= 0 && column == m_afterBlanks) {
        int count = 0;
        std::memcpy(&count, m_bytes.constData() + m_blanksAt, sizeof count);
        ++count;
        std::memcpy(m_bytes.data() + m_blanksAt, &count, sizeof count);
    } else {
        append(&m_bytes, ~column);
        m_blanksAt = m_bytes.size();
        append(&m_bytes, int(1));
    }
    m_afterBlanks = column + 1;
}

bool StepRows::moveToFile()
{
    const QByteArray bytes = std::exchange(m_bytes, {});
    if (QStorageInfo(QFileInfo(m_fileBeside).path()).bytesAvailable() < kRoomToLeave + bytes.size())
        return false;
    if (!m_file) {
        m_file = std::make_unique<QTemporaryFile>(m_fileBeside + u".XXXXXX"_s);
        if (!m_file->open())
            return false;
    }
    if (!m_file->seek(m_inFile) || m_file->write(bytes) != bytes.size() || !m_file->flush())
        return false;
    m_inFile += bytes.size();
    return true;
}

void StepRows::cutAt(size_t row)
{
    if (row >= m_rows.size())
        return;
    m_blanksAt = -1;
    const qint64 at = m_rows[row].at;
    m_rows.resize(row, Row{});
    m_bytes.truncate(std::max<qint64>(0, at - m_inFile));
    m_inFile = std::min(m_inFile, at);
    if (row == 0) {
        m_isKept = true;
        m_file.reset();
    }
}

QByteArray StepRows::bytesOf(size_t row) const
{
    const qint64 from = m_rows[row].at;
    const qint64 to = row + 1 < m_rows.size() ? m_rows[row + 1].at : m_inFile + m_bytes.size();
    if (from >= m_inFile)
        return m_bytes.mid(from - m_inFile, to - from);
    return m_file->seek(from) ? m_file->read(to - from) : QByteArray();
}

std::vector<StepRows::Cell> StepRows::cells(size_t row) const
{
    std::vector<Cell> result;
    const QByteArray bytes = bytesOf(row);
    const char* at = bytes.constData();
    while (at < bytes.constData() + bytes.size()) {
        Cell cell;
        cell.column = take<int>(&at);
        int cells = 1;
        if (cell.column < 0) {
            cell.column = ~cell.column;
            cells = take<int>(&at);
        } else {
            cell.before = takeValue(&at);
            cell.after = takeValue(&at);
        }
        for (; cells > 0; --cells, cell = Cell{.column = cell.column + 1, .before = {}, .after = {}}) {
            for (const Side side : {Side::Before, Side::After}) {
                const auto other = m_replaced[int(side)].find({row, cell.column});
                if (other != m_replaced[int(side)].end())
                    (side == Side::Before ? cell.before : cell.after) = other->second;
            }
            result.push_back(cell);
        }
    }
    return result;
}

const std::vector<size_t>& StepRows::rowsOf(Side side, const Key& key)
{
    auto& index = m_index[int(side)];
    if (index.empty()) {
        for (size_t row = 0; row < m_rows.size(); ++row)
            index[{m_rows[row].table, side == Side::Before ? m_rows[row].idBefore : m_rows[row].idAfter}]
                .push_back(row);
    }
    static const std::vector<size_t> kNone;
    const auto found = index.find(key);
    return found == index.end() ? kNone : found->second;
}

bool StepRows::replace(Side side, int table, sqlite3_int64 id, int column, const CellValue& value)
{
    // What the step ended with is in the last row that it wrote there, what it began with in the first.
    std::vector<size_t> candidates = rowsOf(side, {table, id});
    if (side == Side::After)
        std::reverse(candidates.begin(), candidates.end());
    for (const size_t row : candidates) {
        const auto touched = cells(row);
        if (std::any_of(touched.begin(), touched.end(),
                [column](const Cell& cell) { return cell.column == column; })) {
            m_replaced[int(side)][{row, column}] = value;
            return true;
        }
    }
    return false;
}

} // namespace jet
