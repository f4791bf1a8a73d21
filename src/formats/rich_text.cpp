#include "formats/rich_text.h"

#include <algorithm>

namespace formats {

QString TextParagraph::plain() const
{
    QString text;
    for (const TextRun& run : runs)
        text += run.text;
    return text;
}

RichText RichText::fromPlain(const QString& text)
{
    RichText rich;
    for (const QString& line : text.split(u'\n')) {
        TextParagraph paragraph;
        if (!line.isEmpty())
            paragraph.runs = {{line}};
        rich.paragraphs << paragraph;
    }
    return rich;
}

QString RichText::plain() const
{
    QStringList lines;
    for (const TextParagraph& paragraph : paragraphs)
        lines << paragraph.plain();
    return lines.join(u'\n');
}

bool RichText::isFormatted() const
{
    return std::any_of(paragraphs.begin(), paragraphs.end(), [](const TextParagraph& paragraph) {
        return paragraph.align != TextParagraph::Align::Left || paragraph.list != TextParagraph::List::None
            || paragraph.indent != 0
            || std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                [](const TextRun& run) { return run.style != CharStyle(); });
    });
}

bool RichText::isEmpty() const
{
    return std::all_of(paragraphs.begin(), paragraphs.end(),
        [](const TextParagraph& paragraph) { return paragraph.plain().isEmpty(); });
}

void RichText::append(const RichText& text)
{
    paragraphs << text.paragraphs;
}

} // namespace formats
