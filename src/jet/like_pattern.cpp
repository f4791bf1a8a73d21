#include "jet/like_pattern.h"

#include "jet/letter_case.h"

#include <algorithm>

namespace jet {

namespace {

const unsigned char* bytes(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

bool sameLetters(const unsigned char* text, const std::string& word)
{
    for (size_t i = 0; i < word.size(); ++i) {
        if (kAsciiLower.of[text[i]] != static_cast<unsigned char>(word[i]))
            return false;
    }
    return true;
}

} // namespace

std::optional<LikePattern> LikePattern::compile(std::string_view pattern, Way way)
{
    LikePattern result;
    if (!result.parse(pattern, way))
        return {};
    result.recognise();
    return result;
}

bool LikePattern::parse(std::string_view pattern, Way way)
{
    const char32_t anyRun = way == Way::Dao ? U'*' : U'%';
    const char32_t anyOne = way == Way::Dao ? U'?' : U'_';
    const unsigned char* at = bytes(pattern);
    const unsigned char* const end = at + pattern.size();
    while (at < end) {
        const char32_t letter = nextCodePoint(at, end);
        Item item;
        if (letter == U'[') {
            if (!parseSet(at, end, way))
                return false;
            continue;
        }
        if (letter == anyRun) {
            if (!m_items.empty() && m_items.back().kind == Item::Kind::AnyRun)
                continue;
            item.kind = Item::Kind::AnyRun;
        } else if (letter == anyOne) {
            item.kind = Item::Kind::AnyOne;
        } else if (letter == U'#' && way == Way::Dao) {
            item.kind = Item::Kind::Digit;
        } else {
            item.letter = foldCase(letter);
        }
        m_items.push_back(std::move(item));
    }
    return true;
}

bool LikePattern::parseSet(const unsigned char*& at, const unsigned char* end, Way way)
{
    const unsigned char* const close = std::find(at, end, static_cast<unsigned char>(']'));
    if (close == end)
        return false;
    Item item;
    item.kind = Item::Kind::Set;
    const unsigned char negation = way == Way::Dao ? '!' : '^';
    if (close - at > 1 && *at == negation) {
        item.negated = true;
        ++at;
    }
    while (at < close) {
        const char32_t first = foldCase(nextCodePoint(at, close));
        if (close - at >= 2 && *at == '-') {
            ++at;
            const char32_t last = foldCase(nextCodePoint(at, close));
            if (last < first)
                return false;
            item.ranges.emplace_back(first, last);
        } else {
            item.ranges.emplace_back(first, first);
        }
    }
    at = close + 1;
    // Empty brackets stand for no character at all.
    if (!item.ranges.empty())
        m_items.push_back(std::move(item));
    return true;
}

void LikePattern::recognise()
{
    const auto isRun = [](const Item& item) { return item.kind == Item::Kind::AnyRun; };
    auto from = m_items.begin();
    auto to = m_items.end();
    const bool runBefore = from != to && isRun(*from);
    if (runBefore)
        ++from;
    const bool runBehind = from != to && isRun(*std::prev(to));
    if (runBehind)
        --to;
    for (auto item = from; item != to; ++item) {
        if (item->kind != Item::Kind::Letter || item->letter >= 0x80)
            return;
        m_word += static_cast<char>(item->letter);
    }
    if (m_word.empty())
        m_shape = runBefore ? Shape::Everything : Shape::Equal;
    else if (runBefore)
        m_shape = runBehind ? Shape::Contains : Shape::Ends;
    else
        m_shape = runBehind ? Shape::Begins : Shape::Equal;
}

bool LikePattern::matches(std::string_view text) const
{
    return m_shape == Shape::General ? matchesGeneral(text) : matchesPlain(text);
}

bool LikePattern::matchesPlain(std::string_view text) const
{
    if (m_shape == Shape::Everything)
        return true;
    if (text.size() < m_word.size())
        return false;
    const unsigned char* const at = bytes(text);
    const size_t slack = text.size() - m_word.size();
    switch (m_shape) {
    case Shape::Equal: return slack == 0 && sameLetters(at, m_word);
    case Shape::Begins: return sameLetters(at, m_word);
    case Shape::Ends: return sameLetters(at + slack, m_word);
    default: break;
    }
    const unsigned char first = static_cast<unsigned char>(m_word.front());
    for (size_t i = 0; i <= slack; ++i) {
        if (kAsciiLower.of[at[i]] == first && sameLetters(at + i, m_word))
            return true;
    }
    return false;
}

std::u32string LikePattern::beginning() const
{
    std::u32string letters;
    for (const Item& item : m_items) {
        if (item.kind != Item::Kind::Letter)
            break;
        letters += item.letter;
    }
    return letters;
}

std::string LikePattern::longestWithin() const
{
    std::string longest;
    if (m_items.empty() || m_items.front().kind != Item::Kind::AnyRun)
        return longest;
    std::string piece;
    for (const Item& item : m_items) {
        if (item.kind == Item::Kind::Letter)
            appendLetter(piece, item.letter);
        else
            piece.clear();
        if (piece.size() > longest.size())
            longest = piece;
    }
    return longest;
}

bool LikePattern::fits(const Item& item, char32_t letter)
{
    switch (item.kind) {
    case Item::Kind::Letter: return item.letter == letter;
    case Item::Kind::AnyOne: return true;
    case Item::Kind::Digit: return letter >= U'0' && letter <= U'9';
    case Item::Kind::Set: {
        const bool in = std::any_of(item.ranges.begin(), item.ranges.end(),
            [letter](const auto& range) { return letter >= range.first && letter <= range.second; });
        return in != item.negated;
    }
    case Item::Kind::AnyRun: break;
    }
    return false;
}

// Goes back to the last run only, so the time is bounded by length of text times length of pattern.
bool LikePattern::matchesGeneral(std::string_view text) const
{
    const unsigned char* at = bytes(text);
    const unsigned char* const end = at + text.size();
    size_t item = 0;
    size_t itemBehindRun = m_items.size() + 1;
    const unsigned char* retry = nullptr;
    while (at < end) {
        if (item < m_items.size() && m_items[item].kind == Item::Kind::AnyRun) {
            itemBehindRun = ++item;
            retry = at;
            continue;
        }
        const unsigned char* next = at;
        const char32_t letter = foldCase(nextCodePoint(next, end));
        if (item < m_items.size() && fits(m_items[item], letter)) {
            ++item;
            at = next;
            continue;
        }
        if (!retry)
            return false;
        nextCodePoint(retry, end);
        at = retry;
        item = itemBehindRun;
    }
    while (item < m_items.size() && m_items[item].kind == Item::Kind::AnyRun)
        ++item;
    return item == m_items.size();
}

} // namespace jet
