#include "formats/rtf_reader.h"

#include "formats/charset_text.h"
#include "formats/rtf_words.h"
#include "formats/rtf_writer.h"

#include <QHash>

#include <algorithm>
#include <utility>
#include <vector>

namespace formats {

namespace {

using List = TextParagraph::List;

constexpr int kDeepestIndent = 20;
constexpr qsizetype kLongestName = 32; ///< of a word of the format
constexpr qsizetype kLongestMark = 16; ///< of a list
constexpr int kBulletFormat = 23;
constexpr int kNoListFormat = 255;
constexpr int kStandardCodePage = 1252;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    c = char(c | 0x20);
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

/// A number within what a sane file says.
int bounded(int value)
{
    return std::clamp(value, -100'000, 100'000);
}

class Reader {
public:
    Reader(const QByteArray& bytes, const RtfLimits& limits)
        : m_bytes(bytes)
        , m_end(std::min(bytes.size(), limits.bytes))
        , m_limits(limits)
    {
        m_groups.emplace_back();
    }

    RichText read();

private:
    struct ParagraphStyle {
        TextParagraph::Align align = TextParagraph::Align::Left;
        List list = List::None;
        int left = 0; ///< twips
        int first = 0;
    };
    /// What ends with its group.
    struct Group {
        RtfGroup holds = RtfGroup::Text;
        CharStyle style = {};
        ParagraphStyle paragraph = {};
        bool isHidden = false;
        int codePage = 0; ///< of its font; 0 for that of the file
        int unicodeSkip = 1;
    };
    struct Font {
        QString name = {};
        int codePage = 0;
    };

    Group& group() { return m_groups.back(); }
    void openGroup();
    void closeGroup();
    void readEscape();
    void readWord();
    void readHex();
    void apply(const RtfWord& word, int value, bool hasValue);
    void applyLook(RtfLook look, bool on);
    void applyListWord(RtfAct act, int value);
    void beginGroup(RtfGroup holds);
    void takeBreak(RtfBreak what);
    void takeByte(char byte);
    void takeLetter(char16_t letter);
    void takeUnicode(int value);
    void flush();
    void put(const QString& text);
    void putIntoTable(const QString& text);
    void endFont();
    void endColor();
    void setFont(int number);
    void endParagraph(const ParagraphStyle& style);
    bool isText() const { return m_groups.back().holds == RtfGroup::Text && !m_groups.back().isHidden; }

    const QByteArray& m_bytes;
    qsizetype m_end;
    RtfLimits m_limits;
    qsizetype m_at = 0;
    std::vector<Group> m_groups;
    qsizetype m_beyond = 0; ///< groups that lie too deep
    bool m_isStarred = false; ///< the group may be passed over by who does not know its word
    int m_toSkip = 0; ///< letters that stand for the one before, for readers who know no Unicode
    QByteArray m_pending; ///< bytes of text in one character set
    int m_codePage = kStandardCodePage;

    RichText m_text;
    TextParagraph m_paragraph;
    ParagraphStyle m_lastStyle;
    QString m_mark; ///< of the list, as it stands in front of the paragraph

    QHash<int, Font> m_fonts;
    int m_fontNumber = 0;
    Font m_font;
    QList<quint32> m_colors;
    quint32 m_color = 0;
    bool m_hasColor = false;
    QHash<int, List> m_lists;
    QHash<int, List> m_overrides;
    List m_list = List::None;
    bool m_hasLevel = false;
    int m_listId = 0;
};

RichText Reader::read()
{
    while (m_at < m_end && !m_groups.empty()) {
        const char c = m_bytes[m_at++];
        switch (c) {
        case '{': openGroup(); break;
        case '}': closeGroup(); break;
        case '\\': readEscape(); break;
        case '\r':
        case '\n':
        case '\0': break;
        default: takeByte(c);
        }
        if (m_groups.size() == 1)
            break; // What stands behind the text does not belong to it.
    }
    flush();
    if (!m_paragraph.runs.isEmpty())
        endParagraph(m_lastStyle);
    return std::move(m_text);
}

void Reader::openGroup()
{
    flush();
    m_toSkip = 0;
    m_isStarred = false;
    if (qsizetype(m_groups.size()) > m_limits.depth)
        ++m_beyond;
    else
        m_groups.push_back(m_groups.back());
}

void Reader::closeGroup()
{
    flush();
    m_toSkip = 0;
    m_isStarred = false;
    if (m_beyond > 0) {
        --m_beyond;
        return;
    }
    if (group().holds == RtfGroup::Fonts)
        endFont();
    if (m_groups.size() > 1)
        m_groups.pop_back();
}

void Reader::readEscape()
{
    if (m_at >= m_end)
        return;
    const char c = m_bytes[m_at];
    if (isLetter(c))
        return readWord();
    ++m_at;
    switch (c) {
    case '\'': return readHex();
    case '*': m_isStarred = true; return;
    case '~': return takeLetter(u'\u00a0');
    case '_': return takeLetter(u'\u2011');
    case '-':
    case ':':
    case '|': return;
    case '\r':
    case '\n': return takeBreak(RtfBreak::Paragraph);
    default: return takeByte(c);
    }
}

void Reader::readWord()
{
    const qsizetype begin = m_at;
    while (m_at < m_end && isLetter(m_bytes[m_at]))
        ++m_at;
    const std::string_view name(m_bytes.constData() + begin, std::min(m_at - begin, kLongestName));
    const bool isNegative
        = m_at + 1 < m_end && m_bytes[m_at] == '-' && m_bytes[m_at + 1] >= '0' && m_bytes[m_at + 1] <= '9';
    if (isNegative)
        ++m_at;
    int value = 0;
    const qsizetype digits = m_at;
    for (; m_at < m_end && m_bytes[m_at] >= '0' && m_bytes[m_at] <= '9'; ++m_at)
        value = value < 100'000'000 ? value * 10 + (m_bytes[m_at] - '0') : value;
    const bool hasValue = m_at > digits;
    if (m_at < m_end && m_bytes[m_at] == ' ')
        ++m_at;
    const bool isStarred = std::exchange(m_isStarred, false);
    if (m_toSkip > 0 && name != "bin") {
        --m_toSkip;
        return;
    }
    const RtfWord* word = rtfWord(name);
    if (word)
        apply(*word, isNegative ? -value : value, hasValue);
    else if (isStarred)
        beginGroup(RtfGroup::Skipped);
}

void Reader::readHex()
{
    if (m_end - m_at < 2) {
        m_at = m_end;
        return;
    }
    const int high = hexDigit(m_bytes[m_at]);
    const int low = hexDigit(m_bytes[m_at + 1]);
    if (high < 0 || low < 0)
        return;
    m_at += 2;
    takeByte(char(high * 16 + low));
}

void Reader::apply(const RtfWord& word, int value, bool hasValue)
{
    if (word.act != RtfAct::Unicode && word.act != RtfAct::Letter)
        flush();
    Group& now = group();
    switch (word.act) {
    case RtfAct::Letter: return takeLetter(char16_t(word.value));
    case RtfAct::Break: return takeBreak(RtfBreak(word.value));
    case RtfAct::Look: return applyLook(RtfLook(word.value), !hasValue || value != 0);
    case RtfAct::LookOff: return applyLook(RtfLook(word.value), false);
    case RtfAct::Align: now.paragraph.align = TextParagraph::Align(word.value); return;
    case RtfAct::Group: return beginGroup(RtfGroup(word.value));
    case RtfAct::CodePage: m_codePage = word.value > 0 ? word.value : value; return;
    case RtfAct::Plain:
        now.style = {};
        now.isHidden = false;
        now.codePage = 0;
        return;
    case RtfAct::ParagraphPlain: now.paragraph = {}; return;
    case RtfAct::FontNumber: return setFont(value);
    case RtfAct::FontSize: now.style.points = std::clamp(value, 0, 2000) / 2.0; return;
    case RtfAct::FontCharset: m_font.codePage = codePageOfFontCharset(value); return;
    case RtfAct::FontCodePage: m_font.codePage = value; return;
    case RtfAct::Color: now.style.color = value > 0 && value < m_colors.size() ? m_colors[value] : 0; return;
    case RtfAct::Red:
    case RtfAct::Green:
    case RtfAct::Blue: {
        const int shift = word.act == RtfAct::Red ? 16 : word.act == RtfAct::Green ? 8 : 0;
        m_color |= quint32(std::clamp(value, 0, 255)) << shift;
        m_hasColor = true;
        return;
    }
    case RtfAct::LeftIndent: now.paragraph.left = bounded(value); return;
    case RtfAct::FirstIndent: now.paragraph.first = bounded(value); return;
    case RtfAct::Unicode: return takeUnicode(value);
    case RtfAct::UnicodeSkip: now.unicodeSkip = std::clamp(value, 0, 32); return;
    case RtfAct::Binary: m_at += std::clamp<qsizetype>(value, 0, m_end - m_at); return;
    default: return applyListWord(word.act, value);
    }
}

void Reader::applyLook(RtfLook look, bool on)
{
    CharStyle& style = group().style;
    switch (look) {
    case RtfLook::Bold: style.isBold = on; return;
    case RtfLook::Italic: style.isItalic = on; return;
    case RtfLook::Underlined: style.isUnderlined = on; return;
    case RtfLook::StruckOut: style.isStruckOut = on; return;
    case RtfLook::Hidden: group().isHidden = on; return;
    }
}

// What lists there are stands at the head of the file, in two steps: a list, and the numbers by which
// paragraphs call it. An older way says it at each paragraph, in a group of its own.
void Reader::applyListWord(RtfAct act, int value)
{
    const RtfGroup holds = group().holds;
    switch (act) {
    case RtfAct::ListBegins:
        m_list = List::None;
        m_hasLevel = false;
        return;
    case RtfAct::LevelFormat:
        if (!std::exchange(m_hasLevel, true))
            m_list = value == kBulletFormat ? List::Bullets
                : value == kNoListFormat    ? List::None
                                            : List::Numbers;
        return;
    case RtfAct::ListId:
        if (holds == RtfGroup::Lists && m_lists.size() < m_limits.tableRows)
            m_lists.insert(value, m_list);
        m_listId = value;
        return;
    case RtfAct::ListOverride:
        if (holds != RtfGroup::ListOverrides)
            group().paragraph.list = m_overrides.value(value, List::None);
        else if (m_overrides.size() < m_limits.tableRows)
            m_overrides.insert(value, m_lists.value(m_listId, List::None));
        return;
    case RtfAct::BulletedParagraph:
    case RtfAct::NumberedParagraph:
        if (holds != RtfGroup::ListStyle)
            return;
        for (Group& each : m_groups) {
            if (each.holds == RtfGroup::Text)
                each.paragraph.list = act == RtfAct::BulletedParagraph ? List::Bullets : List::Numbers;
        }
        return;
    default: return;
    }
}

void Reader::beginGroup(RtfGroup holds)
{
    if (group().holds == RtfGroup::Skipped)
        return;
    group().holds = holds;
    if (holds == RtfGroup::ListMark)
        m_mark.clear();
    if (holds == RtfGroup::Colors)
        m_colors.clear();
}

void Reader::takeBreak(RtfBreak what)
{
    flush();
    if (group().holds != RtfGroup::Text)
        return;
    switch (what) {
    case RtfBreak::Paragraph: return endParagraph(group().paragraph);
    case RtfBreak::Part:
        if (!m_paragraph.runs.isEmpty())
            endParagraph(group().paragraph);
        return;
    case RtfBreak::Line: return put(QStringLiteral("\n"));
    case RtfBreak::Cell: return put(QStringLiteral("\t"));
    }
}

void Reader::takeByte(char byte)
{
    m_isStarred = false;
    if (m_toSkip > 0)
        --m_toSkip;
    else if (group().holds != RtfGroup::Skipped)
        m_pending += byte;
}

void Reader::takeLetter(char16_t letter)
{
    if (m_toSkip > 0) {
        --m_toSkip;
        return;
    }
    flush();
    put(QString(QChar(letter)));
}

void Reader::takeUnicode(int value)
{
    flush();
    m_toSkip = group().unicodeSkip;
    if (value < -0x8000 || value > 0xffff)
        return;
    char16_t letter = char16_t(value);
    // Symbol fonts lie in an area of their own; what they have most in letters is the bullet.
    if (letter >= 0xf020 && letter <= 0xf0ff)
        letter = letter == 0xf0b7 ? u'\u2022' : char16_t(letter & 0xff);
    if (letter >= u' ' && letter != 0xfeff && (letter < 0x7f || letter >= 0xa0))
        put(QString(QChar(letter)));
}

void Reader::flush()
{
    if (m_pending.isEmpty())
        return;
    const bool isAscii
        = std::all_of(m_pending.cbegin(), m_pending.cend(), [](char c) { return c >= ' ' && c < 0x7f; });
    if (isAscii) {
        put(QString::fromLatin1(m_pending));
    } else {
        const int codePage = group().codePage > 0 ? group().codePage : m_codePage;
        std::string_view charset = charsetOfCodePage(codePage);
        if (charset.empty())
            charset = charsetOfCodePage(kStandardCodePage);
        QString text = textOfBytes(m_pending, QByteArray(charset.data(), qsizetype(charset.size())));
        put(text.remove(u'\r'));
    }
    m_pending.clear();
}

void Reader::put(const QString& text)
{
    if (text.isEmpty())
        return;
    if (!isText())
        return putIntoTable(text);
    m_lastStyle = group().paragraph;
    auto& runs = m_paragraph.runs;
    if (!runs.isEmpty() && runs.constLast().style == group().style)
        runs.last().text += text;
    else
        runs << TextRun{text, group().style};
}

void Reader::putIntoTable(const QString& text)
{
    switch (group().holds) {
    case RtfGroup::Fonts:
        for (const QChar c : text) {
            if (c == u';')
                endFont();
            else if (m_font.name.size() < 100)
                m_font.name += c;
        }
        return;
    case RtfGroup::Colors:
        for (const QChar c : text) {
            if (c == u';')
                endColor();
        }
        return;
    case RtfGroup::ListMark:
        if (m_mark.size() < kLongestMark)
            m_mark += text.left(kLongestMark);
        return;
    default: return;
    }
}

void Reader::endFont()
{
    m_font.name = m_font.name.simplified();
    if (!m_font.name.isEmpty() && m_fonts.size() < m_limits.tableRows)
        m_fonts.insert(m_fontNumber, m_font);
    m_font = {};
}

void Reader::endColor()
{
    if (m_colors.size() < m_limits.tableRows)
        m_colors << (m_hasColor ? 0xff000000 | m_color : 0);
    m_color = 0;
    m_hasColor = false;
}

void Reader::setFont(int number)
{
    if (group().holds == RtfGroup::Fonts) {
        m_fontNumber = number;
        return;
    }
    const Font font = m_fonts.value(number);
    group().style.family = font.name;
    group().codePage = font.codePage;
}

void Reader::endParagraph(const ParagraphStyle& style)
{
    m_paragraph.align = style.align;
    m_paragraph.list = style.list;
    const QString mark = std::exchange(m_mark, QString()).trimmed();
    if (style.list == List::None && !mark.isEmpty())
        m_paragraph.list = mark[0].isDigit() ? List::Numbers : List::Bullets;
    const int hanging = m_paragraph.list == List::None ? 0 : std::min(0, style.first);
    // A list begins one list mark further in than other paragraphs do; files say half a step or less.
    const int twips = style.left + hanging;
    const int half = m_paragraph.list == List::None ? kRtfIndentStep / 2 : 0;
    m_paragraph.indent = std::clamp((twips + half) / kRtfIndentStep, 0, kDeepestIndent);
    for (TextRun& run : m_paragraph.runs) {
        if (!run.text.isValidUtf16())
            run.text = QString::fromUtf8(run.text.toUtf8());
        run.text.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
    }
    m_text.paragraphs << std::exchange(m_paragraph, {});
}

} // namespace

bool isRtf(const QByteArray& bytes)
{
    const qsizetype begin = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    qsizetype at = begin;
    while (at < std::min<qsizetype>(bytes.size(), 64)
        && (bytes[at] == ' ' || bytes[at] == '\r' || bytes[at] == '\n'))
        ++at;
    return QByteArrayView(bytes).sliced(at).startsWith("{\\rtf");
}

std::optional<RichText> readRtf(const QByteArray& bytes, const RtfLimits& limits)
{
    if (!isRtf(bytes))
        return {};
    const qsizetype begin = bytes.indexOf('{');
    return Reader(begin == 0 ? bytes : bytes.sliced(begin), limits).read();
}

} // namespace formats
