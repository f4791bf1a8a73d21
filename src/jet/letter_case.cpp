#include "jet/letter_case.h"

#include <cstring>

namespace jet {

namespace {

// U+00C0 to U+017F without their accents, lower case; '.' stands for a letter that has no base.
constexpr char kBase[] = "aaaaaaaceeeeiiiidnooooo.ouuuuy.s"
                         "aaaaaaaceeeeiiiidnooooo.ouuuuy.y"
                         "aaaaaaccccccccddddeeeeeeeeeegggg"
                         "gggghhhhiiiiiiiiiiiijjkkklllllll"
                         "lllnnnnnnnnnoooooooorrrrrrssssss"
                         "ssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(sizeof kBase == 0x180 - 0xC0 + 1);

bool isPairOfLatinExtended(char32_t c)
{
    // Capitals stand on even places, but on odd ones between U+0139 and U+0148, and from U+0179.
    return c >= 0x100 && c <= 0x17E && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 && c != 0x178;
}

} // namespace

char32_t foldCase(char32_t c)
{
    if (c < 0x80)
        return kAsciiLower.of[c];
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7)
        return c + 0x20;
    if (isPairOfLatinExtended(c)) {
        const bool capitalsAreOdd = (c >= 0x139 && c <= 0x148) || c >= 0x179;
        return (c % 2 == 1) == capitalsAreOdd ? c + 1 : c;
    }
    if (c == 0x178)
        return 0xFF;
    if (c >= 0x391 && c <= 0x3A9 && c != 0x3A2)
        return c + 0x20;
    if (c == 0x3C2)
        return 0x3C3;
    if (c >= 0x410 && c <= 0x42F)
        return c + 0x20;
    if (c >= 0x400 && c <= 0x40F)
        return c + 0x50;
    return c;
}

char32_t baseLetter(char32_t c)
{
    if (c < 0xC0 || c > 0x17F)
        return c;
    const char base = kBase[c - 0xC0];
    return base == '.' ? c : static_cast<unsigned char>(base);
}

char32_t nextCodePoint(const unsigned char*& at, const unsigned char* end)
{
    const unsigned char first = *at++;
    if (first < 0x80)
        return first;
    const int length = first >= 0xF0 && first < 0xF5 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
    if (length == 0 || first >= 0xF5 || end - at < length)
        return 0x110000u + first;
    char32_t c = first & (0x3F >> length);
    for (int i = 0; i < length; ++i) {
        if ((at[i] & 0xC0) != 0x80)
            return 0x110000u + first;
        c = (c << 6) | (at[i] & 0x3F);
    }
    at += length;
    return c;
}

// A byte that is no UTF-8 has a number above all letters. Whatever stands for it here, no pattern has it.
void appendLetter(std::string& utf8, char32_t letter)
{
    const auto following = [letter](int shift) { return char(0x80 | (letter >> shift & 0x3F)); };
    if (letter < 0x80)
        utf8 += char(letter);
    else if (letter < 0x800)
        (utf8 += char(0xC0 | letter >> 6)) += following(0);
    else if (letter < 0x10000)
        ((utf8 += char(0xE0 | letter >> 12)) += following(6)) += following(0);
    else
        (((utf8 += char(0xF0 | (letter >> 18 & 7))) += following(12)) += following(6)) += following(0);
}

void appendLowered(std::string& lower, std::string_view text)
{
    const auto* at = reinterpret_cast<const unsigned char*>(text.data());
    const auto* const end = at + text.size();
    while (at < end) {
        if (*at < 0x80)
            lower += char(kAsciiLower.of[*at++]);
        else
            appendLetter(lower, foldCase(nextCodePoint(at, end)));
    }
}

int compareJet(std::string_view left, std::string_view right)
{
    auto a = reinterpret_cast<const unsigned char*>(left.data());
    auto b = reinterpret_cast<const unsigned char*>(right.data());
    const auto endA = a + left.size();
    const auto endB = b + right.size();
    // Equal bytes need no thought; most comparisons of a sort run through a common beginning.
    while (endA - a >= 8 && endB - b >= 8) {
        uint64_t wordA;
        uint64_t wordB;
        std::memcpy(&wordA, a, 8);
        std::memcpy(&wordB, b, 8);
        if (wordA != wordB || (wordA & 0x8080808080808080u))
            break;
        a += 8;
        b += 8;
    }
    while (a < endA && b < endB && (*a | *b) < 0x80) {
        const int difference = int(kAsciiLower.of[*a]) - int(kAsciiLower.of[*b]);
        if (difference != 0)
            return difference;
        ++a;
        ++b;
    }
    int accents = 0;
    while (a < endA && b < endB) {
        const char32_t letterA = foldCase(nextCodePoint(a, endA));
        const char32_t letterB = foldCase(nextCodePoint(b, endB));
        if (letterA == letterB)
            continue;
        const char32_t baseA = baseLetter(letterA);
        const char32_t baseB = baseLetter(letterB);
        if (baseA != baseB)
            return baseA < baseB ? -1 : 1;
        if (accents == 0)
            accents = letterA < letterB ? -1 : 1;
    }
    if (a < endA || b < endB)
        return a < endA ? 1 : -1;
    return accents;
}

} // namespace jet
