#include "jet/row_store.h"

#include "jet/date_text.h"
#include "jet/letter_case.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace jet {

namespace {

template <class Number> Number readNumber(const std::string& bytes, quint32 offset)
{
    Number number;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

} // namespace

void RowStore::reset(int columns)
{
    clear();
    m_columns = columns;
}

void RowStore::clear()
{
    m_cells.clear();
    m_bytes.clear();
}

bool RowStore::append(sqlite3_stmt* statement, int firstColumn)
{
    for (int i = 0; i < m_columns; ++i) {
        const int column = firstColumn + i;
        Cell cell;
        if (m_bytes.size() > std::numeric_limits<quint32>::max() / 2)
            return false;
        cell.offset = quint32(m_bytes.size());
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL: break;
        case SQLITE_INTEGER: {
            const sqlite3_int64 number = sqlite3_column_int64(statement, column);
            m_bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
            cell.sizeAndKind = quint32(sizeof number) << 2 | Whole;
            break;
        }
        case SQLITE_FLOAT: {
            const double number = sqlite3_column_double(statement, column);
            m_bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
            cell.sizeAndKind = quint32(sizeof number) << 2 | Real;
            break;
        }
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            const int size = sqlite3_column_bytes(statement, column);
            m_bytes.append(text, size_t(size));
            cell.sizeAndKind = quint32(size) << 2 | Text;
        }
        }
        m_cells.push_back(cell);
    }
    return true;
}

bool RowStore::isNull(int row, int column) const
{
    return (cell(row, column).sizeAndKind & 3) == Null;
}

bool RowStore::isSameText(int row, int otherRow, int column) const
{
    const Cell& a = cell(row, column);
    const Cell& b = cell(otherRow, column);
    const auto isText = [](const Cell& c) { return (c.sizeAndKind & 3) == Text || c.sizeAndKind == Null; };
    if (!isText(a) || !isText(b))
        return text(row, column) == text(otherRow, column);
    const auto bytes
        = [this](const Cell& c) { return std::string_view(m_bytes.data() + c.offset, c.sizeAndKind >> 2); };
    return bytes(a) == bytes(b) || compareJet(bytes(a), bytes(b)) == 0;
}

QString RowStore::text(int row, int column) const
{
    const Cell& c = cell(row, column);
    switch (c.sizeAndKind & 3) {
    case Text: return QString::fromUtf8(m_bytes.data() + c.offset, c.sizeAndKind >> 2);
    case Whole: return QString::number(readNumber<sqlite3_int64>(m_bytes, c.offset));
    case Real: return QString::number(readNumber<double>(m_bytes, c.offset), 'g', 15);
    default: return {};
    }
}

qint64 RowStore::number(int row, int column) const
{
    const Cell& c = cell(row, column);
    switch (c.sizeAndKind & 3) {
    case Text: return qint64(text(row, column).toDouble());
    case Whole: return readNumber<sqlite3_int64>(m_bytes, c.offset);
    case Real: return std::llround(readNumber<double>(m_bytes, c.offset));
    default: return 0;
    }
}

QVariant RowStore::value(int row, int column, ColumnType type) const
{
    const Cell& c = cell(row, column);
    switch (c.sizeAndKind & 3) {
    case Null: return {};
    case Whole:
        return type == ColumnType::YesNo ? QVariant(number(row, column) != 0) : QVariant(number(row, column));
    case Real: return readNumber<double>(m_bytes, c.offset);
    default: break;
    }
    const QString plain = text(row, column);
    if (type == ColumnType::Date) {
        const QVariant date = dateFromIso(plain);
        if (date.isValid())
            return date;
    }
    return plain;
}

} // namespace jet
