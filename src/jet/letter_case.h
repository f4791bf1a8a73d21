#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace jet {

/// The lower-case letter of a code point, by a table of our own: indexes in the files are sorted by it, so it
/// must never change with a library or a locale. It knows the Latin, Greek and Cyrillic letters; others stand
/// for themselves.
char32_t foldCase(char32_t letter);

/// The letter under an accent (e for é), by which lists are sorted first; the letter itself when it has none.
char32_t baseLetter(char32_t folded);

/// Reads one code point and steps behind it. A byte that is no UTF-8 stands for itself above the code points'
/// range.
char32_t nextCodePoint(const unsigned char*& at, const unsigned char* end);

/// A text in the lower case of `like`, as UTF-8. A text can only be like a pattern when the lowered text
/// holds the lowered letters that follow one another in the pattern.
void appendLowered(std::string& lower, std::string_view text);
void appendLetter(std::string& utf8, char32_t letter);

inline constexpr auto kAsciiLower = [] {
    struct Table {
        unsigned char of[256];
    } table{};
    for (int i = 0; i < 256; ++i)
        table.of[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 32 : i);
    return table;
}();

/// Compares two UTF-8 texts without regard to case: by base letters first, then by accents. 0 means equal;
/// accents and trailing blanks count.
int compareJet(std::string_view a, std::string_view b);

} // namespace jet
