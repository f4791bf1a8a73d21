#pragma once

#include <optional>
#include <vector>

namespace widgets {

/// The lines of a grid whose rows stand in groups under heading lines that fold. Knows numbers only: rows are
/// those of the list, 0 to n-1, lines what is shown, headings included.
class RowOutline {
public:
    struct Line {
        int group = -1;
        std::optional<int> row; ///< none for the heading
    };

    /// One group of all rows, until the groups are known.
    void begin(int rows);
    /// Where each group begins, rising from 0. All are unfolded.
    void setGroups(std::vector<int> firstRows);
    void clear();

    bool isActive() const { return !m_firstRows.empty(); }
    int groups() const { return int(m_firstRows.size()); }
    int lines() const;
    Line at(int line) const;
    int headingOf(int group) const { return m_headings[size_t(group)]; }
    /// The line of a row, or of its heading while the group is folded.
    int lineOf(int row) const;
    int firstRow(int group) const { return m_firstRows[size_t(group)]; }
    int rowsIn(int group) const;

    bool isFolded(int group) const { return m_folded[size_t(group)]; }
    void fold(int group, bool folded);
    void foldAll(bool folded);

private:
    void countLines(int fromGroup);

    int m_rows = 0;
    std::vector<int> m_firstRows; ///< by group
    std::vector<int> m_headings; ///< line of the heading, by group
    std::vector<bool> m_folded;
};

} // namespace widgets
