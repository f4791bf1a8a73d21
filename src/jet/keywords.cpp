#include "jet/keywords.h"

#include "jet/same_name.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace jet {

namespace {

struct Entry {
    std::u16string_view text;
    Keyword keyword;
};

constexpr Entry kKeywords[] = {
    {u"select", Keyword::Select},
    {u"and", Keyword::And},
    {u"or", Keyword::Or},
    {u"not", Keyword::Not},
    {u"like", Keyword::Like},
    {u"in", Keyword::In},
    {u"between", Keyword::Between},
    {u"is", Keyword::Is},
    {u"union", Keyword::Union},
    {u"where", Keyword::Where},
    {u"having", Keyword::Having},
    {u"null", Keyword::Null},
    {u"true", Keyword::True},
    {u"false", Keyword::False},
    {u"on", Keyword::On},
    {u"inner", Keyword::Inner},
    {u"left", Keyword::Left},
    {u"right", Keyword::Right},
    {u"join", Keyword::Join},
    {u"set", Keyword::Set},
    {u"all", Keyword::All},
    {u"as", Keyword::As},
    {u"asc", Keyword::Asc},
    {u"by", Keyword::By},
    {u"delete", Keyword::Delete},
    {u"desc", Keyword::Desc},
    {u"distinct", Keyword::Distinct},
    {u"drop", Keyword::Drop},
    {u"exists", Keyword::Exists},
    {u"from", Keyword::From},
    {u"group", Keyword::Group},
    {u"insert", Keyword::Insert},
    {u"into", Keyword::Into},
    {u"mod", Keyword::Mod},
    {u"order", Keyword::Order},
    {u"table", Keyword::Table},
    {u"update", Keyword::Update},
    {u"values", Keyword::Values},
    {u"rowid", Keyword::HiddenKey},
    {u"oid", Keyword::HiddenKey},
    {u"_rowid_", Keyword::HiddenKey},
};

constexpr size_t kPlaces = 256;
constexpr size_t kLongest = 8;

constexpr size_t placeOf(std::u16string_view word)
{
    return (size_t(word.front() | 0x20) * 5 + size_t(word.back() | 0x20) * 31 + word.size() * 64) % kPlaces;
}

/// Where each keyword stands in the list, by its first and last letter and its length; one that comes later
/// moves on.
constexpr auto kPlaced = [] {
    std::array<signed char, kPlaces> places{};
    places.fill(-1);
    for (size_t i = 0; i < std::size(kKeywords); ++i) {
        size_t place = placeOf(kKeywords[i].text);
        while (places[place] >= 0)
            place = (place + 1) % kPlaces;
        places[place] = static_cast<signed char>(i);
    }
    return places;
}();

} // namespace

Keyword keywordOf(QStringView word)
{
    if (word.isEmpty() || size_t(word.size()) > kLongest)
        return Keyword::None;
    for (size_t place = placeOf(std::u16string_view(word.utf16(), size_t(word.size()))); kPlaced[place] >= 0;
         place = (place + 1) % kPlaces) {
        const Entry& entry = kKeywords[size_t(kPlaced[place])];
        if (sameName(word, entry.text))
            return entry.keyword;
    }
    return Keyword::None;
}

QStringView textOf(Keyword keyword)
{
    const auto found = std::find_if(std::begin(kKeywords), std::end(kKeywords),
        [keyword](const Entry& entry) { return entry.keyword == keyword; });
    return found == std::end(kKeywords) ? QStringView() : QStringView(found->text);
}

} // namespace jet
