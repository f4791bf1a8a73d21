#pragma once

#include "jet/types.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// One compiled pattern of `like`. Compares without regard to case; a pattern without wildcards is equality
/// of the whole text.
class LikePattern {
public:
    /// Nothing when the pattern is broken, as in 'Mu[*'.
    static std::optional<LikePattern> compile(std::string_view pattern, Way way);

    bool matches(std::string_view text) const;
    /// The letters, in lower case, with which everything begins that fits.
    std::u32string beginning() const;
    /// The longest piece of letters that stands anywhere in what fits, in the lower case of appendLowered();
    /// empty for a pattern that says how a text begins.
    std::string longestWithin() const;

private:
    struct Item {
        enum class Kind { Letter, AnyRun, AnyOne, Digit, Set };
        Kind kind = Kind::Letter;
        char32_t letter = 0;
        bool negated = false;
        std::vector<std::pair<char32_t, char32_t>> ranges;
    };
    enum class Shape { Everything, Equal, Begins, Ends, Contains, General };

    bool parse(std::string_view pattern, Way way);
    bool parseSet(const unsigned char*& at, const unsigned char* end, Way way);
    void recognise();
    static bool fits(const Item& item, char32_t letter);
    bool matchesPlain(std::string_view text) const;
    bool matchesGeneral(std::string_view text) const;

    std::vector<Item> m_items;
    Shape m_shape = Shape::General;
    std::string m_word; ///< the lower-case text of the plain shapes, ASCII only
};

} // namespace jet
