#include "jet/text_index.h"

#include "jet/letter_case.h"
#include "jet/like_pattern.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace jet {

TextPool::TextPool()
    : m_texts(1, '\0')
    , m_starts{0}
    , m_places(64)
{
}

std::string_view TextPool::text(std::uint32_t number) const
{
    const size_t end = number + 1 < m_starts.size() ? m_starts[number + 1] : m_texts.size();
    return std::string_view(m_texts).substr(m_starts[number], end - m_starts[number] - 1);
}

// The place where the text's number stands, or would.
size_t TextPool::placeOf(std::string_view wanted) const
{
    const size_t mask = m_places.size() - 1;
    size_t place = std::hash<std::string_view>()(wanted) & mask;
    while (m_places[place] != 0 && text(m_places[place]) != wanted)
        place = (place + 1) & mask;
    return place;
}

std::uint32_t TextPool::numberOf(std::string_view lowered)
{
    if (lowered.empty())
        return 0;
    size_t place = placeOf(lowered);
    if (m_places[place] != 0)
        return m_places[place];
    if (m_starts.size() * 2 > m_places.size()) {
        grow();
        place = placeOf(lowered);
    }
    const auto number = std::uint32_t(m_starts.size());
    m_places[place] = number;
    m_starts.push_back(std::uint32_t(m_texts.size()));
    m_texts.append(lowered);
    m_texts.push_back('\0');
    return number;
}

void TextPool::grow()
{
    m_places.assign(m_places.size() * 2, 0);
    for (std::uint32_t number = 1; number < m_starts.size(); ++number)
        m_places[placeOf(text(number))] = number;
}

std::vector<char> TextPool::matching(std::string_view word, const LikePattern& pattern) const
{
    std::vector<char> marks;
    const char* at = m_texts.data();
    const char* const end = at + m_texts.size();
    while (const void* found = memmem(at, size_t(end - at), word.data(), word.size())) {
        const auto offset = std::uint32_t(static_cast<const char*>(found) - m_texts.data());
        const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
        const auto number = std::uint32_t(next - m_starts.begin()) - 1;
        if (pattern.matches(text(number))) {
            marks.resize(m_starts.size());
            marks[number] = 1;
        }
        at = next == m_starts.end() ? end : m_texts.data() + *next;
    }
    return marks;
}

void TextPool::close()
{
    m_places = std::vector<std::uint32_t>();
    m_texts.shrink_to_fit();
    m_starts.shrink_to_fit();
}

size_t TextPool::bytes() const
{
    return m_texts.capacity() + (m_starts.capacity() + m_places.capacity()) * sizeof(std::uint32_t);
}

bool TextIndex::read(sqlite3_stmt* rows)
{
    const int width = sqlite3_column_count(rows) - 1;
    m_ids.clear();
    m_columns.assign(size_t(width), {});
    std::string lower;
    int result = SQLITE_ERROR;
    while ((result = sqlite3_step(rows)) == SQLITE_ROW) {
        m_ids.push_back(sqlite3_column_int64(rows, 0));
        for (int i = 0; i < width; ++i) {
            const auto* stored = reinterpret_cast<const char*>(sqlite3_column_text(rows, i + 1));
            lower.clear();
            appendLowered(lower, {stored ? stored : "", size_t(sqlite3_column_bytes(rows, i + 1))});
            Column& column = m_columns[size_t(i)];
            column.numbers.push_back(column.texts.numberOf(lower));
        }
        constexpr size_t kRowsBetweenLooks = 1024;
        if (m_ids.size() % kRowsBetweenLooks == 0 && bytes() > kMostBytes)
            return false;
    }
    for (Column& column : m_columns) {
        column.texts.close();
        column.numbers.shrink_to_fit();
    }
    return result == SQLITE_DONE;
}

void TextIndex::mark(
    size_t columnIndex, std::string_view word, const LikePattern& pattern, std::vector<char>& marks) const
{
    const Column& column = m_columns[columnIndex];
    const std::vector<char> fits = column.texts.matching(word, pattern);
    if (fits.empty())
        return;
    for (size_t row = 0; row < marks.size(); ++row)
        marks[row] |= fits[column.numbers[row]];
}

size_t TextIndex::bytes() const
{
    size_t sum = m_ids.capacity() * sizeof(sqlite3_int64);
    for (const Column& column : m_columns)
        sum += column.texts.bytes() + column.numbers.capacity() * sizeof(std::uint32_t);
    return sum;
}

} // namespace jet
