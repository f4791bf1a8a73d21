#include "formats/rtf_writer.h"

#include "formats/rtf_text.h"

#include <algorithm>
#include <cmath>

namespace formats {

namespace {

constexpr int kDeepestIndent = 20;
/// Of the text that says nothing about its font.
constexpr const char* kDefaultFont = "{\\f0\\fswiss Helvetica;}";
constexpr const char* kSymbolFont = "{\\f1\\fnil\\fcharset2 Symbol;}";
constexpr int kOwnFonts = 2;

QByteArray word(const char* name, qint64 value)
{
    return '\\' + QByteArray(name) + QByteArray::number(value);
}

/// A table of what the texts use, in the order of its first use.
template <class Value> class Numbers {
public:
    int of(const Value& value)
    {
        const auto index = m_values.indexOf(value);
        if (index >= 0)
            return int(index);
        m_values << value;
        return int(m_values.size() - 1);
    }
    const QList<Value>& values() const { return m_values; }

private:
    QList<Value> m_values;
};

class Writer {
public:
    void add(const RichText& text);
    void startPage() { m_body += "\\page\n"; }
    QByteArray file() const;

private:
    void addParagraph(const TextParagraph& paragraph);
    void addRun(const TextRun& run);
    QByteArray wordsFor(const CharStyle& style);

    QByteArray m_body;
    Numbers<QString> m_fonts;
    Numbers<quint32> m_colors;
    int m_number = 0; ///< of the last paragraph of a numbered list
};

void Writer::add(const RichText& text)
{
    m_number = 0;
    for (const TextParagraph& paragraph : text.paragraphs)
        addParagraph(paragraph);
}

void Writer::addParagraph(const TextParagraph& paragraph)
{
    constexpr const char* kAligns[] = {"", "\\qc", "\\qr", "\\qj"};
    const bool isListed = paragraph.list != TextParagraph::List::None;
    const int left = std::clamp(paragraph.indent, 0, kDeepestIndent) * kRtfIndentStep;
    m_body += "\\pard";
    m_number = paragraph.list == TextParagraph::List::Numbers ? m_number + 1 : 0;
    if (isListed)
        m_body += word("fi", -kRtfListStep);
    if (isListed || left > 0)
        m_body += word("li", left + (isListed ? kRtfListStep : 0));
    m_body += kAligns[int(paragraph.align)];
    if (paragraph.list == TextParagraph::List::Bullets)
        m_body += "{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}";
    else if (isListed)
        m_body += "{\\pntext " + QByteArray::number(m_number)
            + ".\\tab}{\\*\\pn\\pnlvlbody\\pnstart1\\pndec{\\pntxta.}}";
    if (!isListed)
        m_body += ' ';
    for (const TextRun& run : paragraph.runs)
        addRun(run);
    m_body += "\\par\n";
}

void Writer::addRun(const TextRun& run)
{
    const QByteArray looks = wordsFor(run.style);
    const QByteArray text = rtfText(run.text);
    m_body += looks.isEmpty() ? text : '{' + looks + ' ' + text + '}';
}

QByteArray Writer::wordsFor(const CharStyle& style)
{
    QByteArray words;
    if (style.isBold)
        words += "\\b";
    if (style.isItalic)
        words += "\\i";
    if (style.isUnderlined)
        words += "\\ul";
    if (style.isStruckOut)
        words += "\\strike";
    if (!style.family.isEmpty())
        words += word("f", kOwnFonts + m_fonts.of(style.family));
    if (style.points > 0)
        words += word("fs", std::max(1L, std::lround(std::min(style.points, 1000.0) * 2)));
    if (style.color != 0)
        words += word("cf", 1 + m_colors.of(style.color));
    return words;
}

QByteArray Writer::file() const
{
    QByteArray file = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n{\\fonttbl";
    file += kDefaultFont;
    file += kSymbolFont;
    int number = kOwnFonts;
    for (QString family : m_fonts.values())
        file += '{' + word("f", number++) + "\\fnil " + rtfText(family.remove(u';')) + ";}";
    file += "}\n{\\colortbl;";
    for (const quint32 color : m_colors.values())
        file += word("red", color >> 16 & 0xff) + word("green", color >> 8 & 0xff)
            + word("blue", color & 0xff) + ';';
    return file + "}\n" + m_body + '}';
}

} // namespace

QByteArray writeRtf(const RichText& text)
{
    return writeRtf(QList<RichText>{text});
}

QByteArray writeRtf(const QList<RichText>& pages)
{
    Writer writer;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0)
            writer.startPage();
        writer.add(pages[i]);
    }
    return writer.file();
}

} // namespace formats
