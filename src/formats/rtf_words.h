#pragma once

#include <cstdint>
#include <string_view>

/// The words of the RTF format that our texts know a meaning for.
namespace formats {

enum class RtfAct : std::uint8_t {
    Letter, ///< value: the letter that it stands for
    Break, ///< value: what goes to an end, an RtfBreak
    Look, ///< value: an RtfLook, switched on, or off by a parameter of 0
    LookOff,
    Align, ///< value: a TextParagraph::Align
    Group, ///< value: what the group that begins so holds, an RtfGroup
    CodePage, ///< value: the code page, 0 for the parameter
    Plain,
    ParagraphPlain,
    FontNumber,
    FontSize,
    FontCharset,
    FontCodePage,
    Color,
    Red,
    Green,
    Blue,
    LeftIndent,
    FirstIndent,
    Unicode,
    UnicodeSkip,
    Binary,
    ListBegins,
    ListId,
    LevelFormat,
    ListOverride,
    BulletedParagraph,
    NumberedParagraph,
};

enum class RtfBreak { Paragraph, Part, Line, Cell }; ///< a part is a page, a section or the row of a table
enum class RtfLook { Bold, Italic, Underlined, StruckOut, Hidden };
enum class RtfGroup { Text, Skipped, Fonts, Colors, Lists, ListOverrides, ListMark, ListStyle };

struct RtfWord {
    std::string_view name;
    RtfAct act;
    int value = 0;
};

/// Null for a word without a meaning here.
const RtfWord* rtfWord(std::string_view name);
/// The name of a character set by the number of its code page, as decoders know it; empty when none is known.
std::string_view charsetOfCodePage(int codePage);
/// The code page of the character set of a font; 0 when it says nothing.
int codePageOfFontCharset(int charset);

} // namespace formats
