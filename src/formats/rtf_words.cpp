#include "formats/rtf_words.h"

#include "formats/rich_text.h"

#include <algorithm>
#include <span>
#include <unordered_map>

namespace formats {

namespace {

template <class Value> constexpr int as(Value value)
{
    return static_cast<int>(value);
}

constexpr int kSkipped = as(RtfGroup::Skipped);

constexpr RtfWord kWords[] = {
    {"par", RtfAct::Break, as(RtfBreak::Paragraph)},
    {"sect", RtfAct::Break, as(RtfBreak::Part)},
    {"page", RtfAct::Break, as(RtfBreak::Part)},
    {"row", RtfAct::Break, as(RtfBreak::Part)},
    {"nestrow", RtfAct::Break, as(RtfBreak::Part)},
    {"line", RtfAct::Break, as(RtfBreak::Line)},
    {"lbr", RtfAct::Break, as(RtfBreak::Line)},
    {"cell", RtfAct::Break, as(RtfBreak::Cell)},
    {"nestcell", RtfAct::Break, as(RtfBreak::Cell)},
    {"tab", RtfAct::Letter, u'\t'},
    {"lquote", RtfAct::Letter, 0x2018},
    {"rquote", RtfAct::Letter, 0x2019},
    {"ldblquote", RtfAct::Letter, 0x201c},
    {"rdblquote", RtfAct::Letter, 0x201d},
    {"bullet", RtfAct::Letter, 0x2022},
    {"endash", RtfAct::Letter, 0x2013},
    {"emdash", RtfAct::Letter, 0x2014},
    {"enspace", RtfAct::Letter, 0x2002},
    {"emspace", RtfAct::Letter, 0x2003},
    {"qmspace", RtfAct::Letter, 0x2005},
    {"zwj", RtfAct::Letter, 0x200d},
    {"zwnj", RtfAct::Letter, 0x200c},
    {"ltrmark", RtfAct::Letter, 0x200e},
    {"rtlmark", RtfAct::Letter, 0x200f},
    {"b", RtfAct::Look, as(RtfLook::Bold)},
    {"i", RtfAct::Look, as(RtfLook::Italic)},
    {"v", RtfAct::Look, as(RtfLook::Hidden)},
    {"deleted", RtfAct::Look, as(RtfLook::Hidden)},
    {"strike", RtfAct::Look, as(RtfLook::StruckOut)},
    {"striked", RtfAct::Look, as(RtfLook::StruckOut)},
    {"ul", RtfAct::Look, as(RtfLook::Underlined)},
    {"uld", RtfAct::Look, as(RtfLook::Underlined)},
    {"uldb", RtfAct::Look, as(RtfLook::Underlined)},
    {"uldash", RtfAct::Look, as(RtfLook::Underlined)},
    {"uldashd", RtfAct::Look, as(RtfLook::Underlined)},
    {"uldashdd", RtfAct::Look, as(RtfLook::Underlined)},
    {"ulth", RtfAct::Look, as(RtfLook::Underlined)},
    {"ulw", RtfAct::Look, as(RtfLook::Underlined)},
    {"ulwave", RtfAct::Look, as(RtfLook::Underlined)},
    {"ulnone", RtfAct::LookOff, as(RtfLook::Underlined)},
    {"ql", RtfAct::Align, as(TextParagraph::Align::Left)},
    {"qc", RtfAct::Align, as(TextParagraph::Align::Center)},
    {"qr", RtfAct::Align, as(TextParagraph::Align::Right)},
    {"qj", RtfAct::Align, as(TextParagraph::Align::Justified)},
    {"qd", RtfAct::Align, as(TextParagraph::Align::Justified)},
    {"fonttbl", RtfAct::Group, as(RtfGroup::Fonts)},
    {"colortbl", RtfAct::Group, as(RtfGroup::Colors)},
    {"listtable", RtfAct::Group, as(RtfGroup::Lists)},
    {"listoverridetable", RtfAct::Group, as(RtfGroup::ListOverrides)},
    {"pntext", RtfAct::Group, as(RtfGroup::ListMark)},
    {"listtext", RtfAct::Group, as(RtfGroup::ListMark)},
    {"pn", RtfAct::Group, as(RtfGroup::ListStyle)},
    {"stylesheet", RtfAct::Group, kSkipped},
    {"info", RtfAct::Group, kSkipped},
    {"pict", RtfAct::Group, kSkipped},
    {"object", RtfAct::Group, kSkipped},
    {"fldinst", RtfAct::Group, kSkipped},
    {"nonshppict", RtfAct::Group, kSkipped},
    {"nonesttables", RtfAct::Group, kSkipped},
    {"header", RtfAct::Group, kSkipped},
    {"headerl", RtfAct::Group, kSkipped},
    {"headerr", RtfAct::Group, kSkipped},
    {"headerf", RtfAct::Group, kSkipped},
    {"footer", RtfAct::Group, kSkipped},
    {"footerl", RtfAct::Group, kSkipped},
    {"footerr", RtfAct::Group, kSkipped},
    {"footerf", RtfAct::Group, kSkipped},
    {"footnote", RtfAct::Group, kSkipped},
    {"xe", RtfAct::Group, kSkipped},
    {"tc", RtfAct::Group, kSkipped},
    {"private", RtfAct::Group, kSkipped},
    {"ansi", RtfAct::CodePage, 1252},
    {"mac", RtfAct::CodePage, 10000},
    {"pc", RtfAct::CodePage, 437},
    {"pca", RtfAct::CodePage, 850},
    {"ansicpg", RtfAct::CodePage, 0},
    {"plain", RtfAct::Plain},
    {"pard", RtfAct::ParagraphPlain},
    {"f", RtfAct::FontNumber},
    {"fs", RtfAct::FontSize},
    {"fcharset", RtfAct::FontCharset},
    {"cpg", RtfAct::FontCodePage},
    {"cf", RtfAct::Color},
    {"red", RtfAct::Red},
    {"green", RtfAct::Green},
    {"blue", RtfAct::Blue},
    {"li", RtfAct::LeftIndent},
    {"lin", RtfAct::LeftIndent},
    {"fi", RtfAct::FirstIndent},
    {"u", RtfAct::Unicode},
    {"uc", RtfAct::UnicodeSkip},
    {"bin", RtfAct::Binary},
    {"list", RtfAct::ListBegins},
    {"listid", RtfAct::ListId},
    {"levelnfc", RtfAct::LevelFormat},
    {"levelnfcn", RtfAct::LevelFormat},
    {"ls", RtfAct::ListOverride},
    {"pnlvlblt", RtfAct::BulletedParagraph},
    {"pnlvlbody", RtfAct::NumberedParagraph},
    {"pnlvl", RtfAct::NumberedParagraph},
};

struct CodePageName {
    int codePage;
    std::string_view charset;
};
constexpr CodePageName kCodePages[] = {
    {437, "IBM437"},
    {850, "IBM850"},
    {852, "IBM852"},
    {866, "IBM866"},
    {874, "windows-874"},
    {932, "Shift_JIS"},
    {936, "GBK"},
    {949, "EUC-KR"},
    {950, "Big5"},
    {1250, "windows-1250"},
    {1251, "windows-1251"},
    {1252, "windows-1252"},
    {1253, "windows-1253"},
    {1254, "windows-1254"},
    {1255, "windows-1255"},
    {1256, "windows-1256"},
    {1257, "windows-1257"},
    {1258, "windows-1258"},
    {10000, "macintosh"},
    {65001, "UTF-8"},
};

struct FontCharset {
    int charset;
    int codePage;
};
constexpr FontCharset kFontCharsets[] = {
    {0, 1252},
    {2, 1252},
    {77, 10000},
    {128, 932},
    {129, 949},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
    {255, 850},
};

} // namespace

const RtfWord* rtfWord(std::string_view name)
{
    static const auto byName = [] {
        std::unordered_map<std::string_view, const RtfWord*> words;
        for (const RtfWord& word : kWords)
            words.emplace(word.name, &word);
        return words;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

std::string_view charsetOfCodePage(int codePage)
{
    const auto* found = std::ranges::find(kCodePages, codePage, &CodePageName::codePage);
    return found == std::end(kCodePages) ? std::string_view() : found->charset;
}

int codePageOfFontCharset(int charset)
{
    const auto* found = std::ranges::find(kFontCharsets, charset, &FontCharset::charset);
    return found == std::end(kFontCharsets) ? 0 : found->codePage;
}

} // namespace formats
