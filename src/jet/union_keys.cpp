#include "jet/union_keys.h"

#include "jet/bound_values.h"
#include "jet/letter_case.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

namespace jet {

namespace {

/// So many rows are read in one go, or more when their leading numbers are the same.
constexpr int kRowsOfBlock = 64;

// Texts that are not the same for the order of lists are not the same for a union either.
bool mayBeSame(sqlite3_stmt* row, int a, int b)
{
    const bool isText = sqlite3_column_type(row, a) == SQLITE_TEXT;
    if (isText != (sqlite3_column_type(row, b) == SQLITE_TEXT))
        return false;
    if (!isText)
        return sqlite3_column_double(row, a) == sqlite3_column_double(row, b);
    const auto text = [row](int column) {
        return std::string_view(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
            size_t(sqlite3_column_bytes(row, column)));
    };
    return compareJet(text(a), text(b)) == 0;
}

constexpr qint32 kNull = std::numeric_limits<qint32>::min();

/// Sorts refs that stand in the order of their keys: each into the place of its leads, which are few as the
/// days of a year are. False, with nothing done, when there may be many.
bool sortByFewLeads(std::vector<UnionRef>& refs)
{
    constexpr qint64 kMostPlaces = 1 << 17;
    std::array<qint64, UnionParts::kMostLeads> least{};
    std::array<qint64, UnionParts::kMostLeads> widths{};
    qint64 places = 1;
    for (size_t i = 0; i < widths.size(); ++i) {
        qint64 low = std::numeric_limits<qint64>::max();
        qint64 high = std::numeric_limits<qint64>::min();
        for (const UnionRef& ref : refs) {
            if (ref.leads[i] == kNull)
                continue;
            low = std::min<qint64>(low, ref.leads[i]);
            high = std::max<qint64>(high, ref.leads[i]);
        }
        least[i] = low;
        widths[i] = high < low ? 1 : high - low + 2; // the first one for null
        if (widths[i] > kMostPlaces || (places *= widths[i]) > kMostPlaces)
            return false;
    }
    const auto placeOf = [&](const UnionRef& ref) {
        qint64 place = 0;
        for (size_t i = 0; i < widths.size(); ++i)
            place = place * widths[i] + (ref.leads[i] == kNull ? 0 : ref.leads[i] - least[i] + 1);
        return size_t(place);
    };
    std::vector<size_t> starts(size_t(places) + 1);
    for (const UnionRef& ref : refs)
        ++starts[placeOf(ref) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<UnionRef> sorted(refs.size());
    for (const UnionRef& ref : refs)
        sorted[starts[placeOf(ref)]++] = ref;
    refs = std::move(sorted);
    return true;
}

} // namespace

UnionKeys::UnionKeys(std::vector<UnionRef> sorted, bool byKey)
    : m_refs(std::move(sorted))
{
    for (size_t i = 0; i < m_refs.size(); ++i) {
        const bool mayBegin = byKey || i == 0 || m_refs[i].leads != m_refs[i - 1].leads;
        if (m_blocks.empty() || (mayBegin && m_rows - m_blocks.back().firstRow >= kRowsOfBlock))
            m_blocks.push_back({m_rows, i});
        m_rows += int(m_refs[i].rows);
    }
}

int UnionKeys::blockOf(int row) const
{
    const auto next = std::upper_bound(m_blocks.begin(), m_blocks.end(), row,
        [](int wanted, const Block& block) { return wanted < block.firstRow; });
    return int(next - m_blocks.begin()) - 1;
}

std::vector<QByteArray> UnionKeys::lists(int block, int arms) const
{
    const size_t from = m_blocks[size_t(block)].firstRef;
    const size_t to = block + 1 < blocks() ? m_blocks[size_t(block) + 1].firstRef : m_refs.size();
    return listsOf(m_refs.data() + from, m_refs.data() + to, arms);
}

std::vector<int> UnionKeys::blocksOf(sqlite3_int64 id) const
{
    std::vector<int> found;
    for (size_t i = 0; i < m_refs.size(); ++i) {
        if (m_refs[i].id != id)
            continue;
        const auto next = std::upper_bound(m_blocks.begin(), m_blocks.end(), i,
            [](size_t wanted, const Block& block) { return wanted < block.firstRef; });
        const int block = int(next - m_blocks.begin()) - 1;
        if (found.empty() || found.back() != block)
            found.push_back(block);
    }
    return found;
}

std::optional<qint32> leadAt(sqlite3_stmt* row, int column)
{
    const int type = sqlite3_column_type(row, column);
    if (type == SQLITE_NULL)
        return kNull;
    const double lead = sqlite3_column_double(row, column);
    const bool isNumber = type == SQLITE_INTEGER || type == SQLITE_FLOAT;
    if (!isNumber || lead != std::floor(lead) || lead <= kNull || lead > std::numeric_limits<qint32>::max())
        return {};
    return qint32(lead);
}

/// The same of a column of the keys, which may be a date of which the lead is a part.
std::optional<qint32> leadOf(sqlite3_stmt* row, int column, const UnionParts::Reading& reading)
{
    if (!reading.part || sqlite3_column_type(row, column) == SQLITE_NULL)
        return leadAt(row, column);
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    const auto part = partOfIso({text ? text : "", size_t(sqlite3_column_bytes(row, column))}, *reading.part);
    return part && reading.minuend ? std::optional(*reading.minuend - *part) : part;
}

std::vector<QByteArray> listsOf(const UnionRef* begin, const UnionRef* end, int arms)
{
    std::vector<QByteArray> lists;
    std::vector<sqlite3_int64> ids;
    for (int arm = 0; arm < arms; ++arm) {
        ids.clear();
        for (const UnionRef* ref = begin; ref != end; ++ref) {
            if (ref->arms >> arm & 1)
                ids.push_back(ref->id);
        }
        lists.push_back(jsonList(ids));
    }
    return lists;
}

bool UnionReader::read(sqlite3_stmt* rows)
{
    int result = SQLITE_ERROR;
    while ((result = sqlite3_step(rows)) == SQLITE_ROW) {
        if (!readRow(rows))
            return false;
    }
    return result == SQLITE_DONE;
}

bool UnionReader::readRow(sqlite3_stmt* row)
{
    const int width = 1 + m_parts.leads + m_parts.varying;
    const size_t before = m_refs.size();
    for (int arm = 0; arm < m_parts.arms; ++arm) {
        const int* places = &m_parts.places[size_t(arm * width)];
        if (sqlite3_column_int(row, places[0]) == 0)
            continue;
        UnionRef ref;
        ref.id = sqlite3_column_int64(row, 0);
        ref.arms = 1U << arm;
        for (int i = 0; i < m_parts.leads; ++i) {
            const auto lead = leadOf(row, places[1 + i], m_parts.readings[size_t(i)]);
            if (!lead)
                return false;
            ref.leads[size_t(i)] = *lead;
        }
        const auto same = std::find_if(m_refs.begin() + qsizetype(before), m_refs.end(),
            [&](const UnionRef& other) { return other.leads == ref.leads; });
        if (same != m_refs.end())
            same->arms |= ref.arms;
        else
            m_refs.push_back(ref);
    }
    for (size_t i = before; i < m_refs.size(); ++i) {
        UnionRef& ref = m_refs[i];
        ref.rows = quint32(std::popcount(ref.arms));
        ref.isDoubtful = ref.rows > 1 && (m_parts.varying == 0 || mayRepeat(row, ref.arms));
    }
    return true;
}

bool UnionReader::mayRepeat(sqlite3_stmt* row, quint32 arms) const
{
    const int width = 1 + m_parts.leads + m_parts.varying;
    const auto place
        = [&](int arm, int i) { return m_parts.places[size_t(arm * width + 1 + m_parts.leads + i)]; };
    for (int a = 0; a < m_parts.arms; ++a) {
        for (int b = a + 1; b < m_parts.arms; ++b) {
            if ((arms >> a & arms >> b & 1) == 0)
                continue;
            bool same = true;
            for (int i = 0; same && i < m_parts.varying; ++i)
                same = mayBeSame(row, place(a, i), place(b, i));
            if (same)
                return true;
        }
    }
    return false;
}

void UnionReader::add(sqlite3_int64 id, quint32 arms, bool isDoubtful)
{
    UnionRef ref;
    ref.id = id;
    ref.arms = arms;
    ref.rows = quint32(std::popcount(arms));
    ref.isDoubtful = isDoubtful;
    m_refs.push_back(ref);
}

std::vector<UnionRef> UnionReader::take()
{
    const bool isByKey = std::is_sorted(
        m_refs.begin(), m_refs.end(), [](const UnionRef& a, const UnionRef& b) { return a.id < b.id; });
    if (!std::is_sorted(m_refs.begin(), m_refs.end()) && !(isByKey && sortByFewLeads(m_refs)))
        std::sort(m_refs.begin(), m_refs.end());
    return std::move(m_refs);
}

} // namespace jet
