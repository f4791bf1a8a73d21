#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

class LikePattern;

/// Texts in lower case, each kept once, one behind the other, so that a search runs over all of them in one
/// go. They are known by number; the empty text has the number 0.
class TextPool {
public:
    TextPool();
    std::uint32_t numberOf(std::string_view lowered); ///< adds a text that is not there yet
    size_t size() const { return m_starts.size(); }
    std::string_view text(std::uint32_t number) const;
    /// The texts that hold a lowered word and fit the pattern, marked by number; nothing when there are none.
    std::vector<char> matching(std::string_view word, const LikePattern& pattern) const;
    /// No more texts will come.
    void close();
    size_t bytes() const;

private:
    size_t placeOf(std::string_view text) const;
    void grow();

    std::string m_texts; ///< each ended by a zero byte
    std::vector<std::uint32_t> m_starts;
    std::vector<std::uint32_t> m_places; ///< numbers, hashed by text; 0 is a free place
};

/// Some columns of one table in memory, for finding the rows that hold a piece of text. Each row keeps the
/// numbers of its texts: cities and categories cost next to nothing.
class TextIndex {
public:
    /// What may be kept. A table with more text than that is read from the file as it always was.
    static constexpr size_t kMostBytes = 96 * 1024 * 1024;

    /// Reads a statement whose rows are an id and then the texts. False when it failed or was too much.
    bool read(sqlite3_stmt* rows);

    size_t rows() const { return m_ids.size(); }
    sqlite3_int64 idAt(size_t row) const { return m_ids[row]; }
    /// In lower case.
    std::string_view text(size_t column, size_t row) const
    {
        return m_columns[column].texts.text(m_columns[column].numbers[row]);
    }
    /// Marks the rows whose text in a column fits the pattern, which asks for that lowered word. `marks` has
    /// a place for each row.
    void mark(
        size_t column, std::string_view word, const LikePattern& pattern, std::vector<char>& marks) const;
    size_t bytes() const;

private:
    struct Column {
        TextPool texts;
        std::vector<std::uint32_t> numbers; ///< of the text, by row
    };

    std::vector<sqlite3_int64> m_ids;
    std::vector<Column> m_columns;
};

} // namespace jet
