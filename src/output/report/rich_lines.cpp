#include "output/report/rich_lines.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace output {

namespace {

using formats::TextParagraph;

constexpr double kTabStop = 720; ///< half an inch
constexpr double kIndentStep = 720;
constexpr double kListIndent = 360;

struct Piece {
    int begin;
    int end;
    const formats::CharStyle* style;
};

class ParagraphSetter {
public:
    ParagraphSetter(const TextParagraph& paragraph, TextRole role, const TextMeasure& measure)
        : m_paragraph(paragraph)
        , m_role(role)
        , m_measure(measure)
        , m_text(paragraph.plain())
    {
        int at = 0;
        for (const formats::TextRun& run : paragraph.runs) {
            const int end = at + static_cast<int>(run.text.size());
            m_pieces.push_back({at, end, &run.style});
            at = end;
        }
        m_text.replace(u'\n', QChar::LineSeparator);
    }

    void set(double width, const QString& mark, std::vector<RichLine>& lines) const
    {
        const double indent = m_paragraph.indent * kIndentStep + (mark.isEmpty() ? 0 : kListIndent);
        QTextLayout layout(m_text, m_measure.font(m_role));
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTabStopDistance(kTabStop);
        layout.setTextOption(option);
        layout.setFormats(formatRanges());
        layout.beginLayout();
        const std::size_t first = lines.size();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(std::max(width - indent, kListIndent));
            lines.push_back(setLine(line, width, indent));
        }
        layout.endLayout();
        if (!mark.isEmpty() && lines.size() > first)
            lines[first].runs.insert(lines[first].runs.begin(), RunOnLine{indent - kListIndent, mark});
    }

private:
    QList<QTextLayout::FormatRange> formatRanges() const
    {
        QList<QTextLayout::FormatRange> ranges;
        for (const Piece& piece : m_pieces) {
            QTextLayout::FormatRange range;
            range.start = piece.begin;
            range.length = piece.end - piece.begin;
            range.format.setFont(m_measure.styled(m_role, *piece.style));
            ranges << range;
        }
        return ranges;
    }

    RichLine setLine(const QTextLine& line, double width, double indent) const
    {
        const int end = line.textStart() + line.textLength();
        const bool isLast = end >= m_text.size();
        RichLine set{.height = std::max(line.height(), m_measure.lineHeight(m_role)),
            .ascent = line.ascent(),
            .align = m_paragraph.align,
            .endsParagraph = isLast || (end > 0 && m_text[end - 1] == QChar::LineSeparator)};
        double shift = indent;
        const double free = width - indent - line.naturalTextWidth();
        if (m_paragraph.align == TextParagraph::Align::Right)
            shift += free;
        else if (m_paragraph.align == TextParagraph::Align::Center)
            shift += free / 2;
        const double spread = set.endsParagraph || m_paragraph.align != TextParagraph::Align::Justified
            ? 0
            : std::max(0.0, free);
        int lastWord = end;
        while (lastWord > line.textStart() && m_text[lastWord - 1] == u' ')
            --lastWord;
        const int words = blanks(line.textStart(), lastWord);
        set.wordSpace = words > 0 ? spread / words : 0;
        for (const Piece& piece : m_pieces)
            addRuns(set, line, std::max(piece.begin, line.textStart()), std::min(piece.end, end),
                *piece.style, shift);
        return set;
    }

    int blanks(int begin, int end) const
    {
        return static_cast<int>(QStringView(m_text).mid(begin, end - begin).count(u' '));
    }

    /// What stands between two tabs is a run: only the layout knows how far a tab goes.
    void addRuns(RichLine& set, const QTextLine& line, int begin, int end, const formats::CharStyle& style,
        double shift) const
    {
        for (int at = begin; at < end;) {
            int stop = at;
            while (stop < end && m_text[stop] != u'\t' && m_text[stop] != QChar::LineSeparator)
                ++stop;
            if (stop > at)
                set.runs.push_back({shift + line.cursorToX(at) + blanks(line.textStart(), at) * set.wordSpace,
                    m_text.mid(at, stop - at), style});
            at = stop + 1;
        }
    }

    const TextParagraph& m_paragraph;
    TextRole m_role;
    const TextMeasure& m_measure;
    QString m_text;
    std::vector<Piece> m_pieces;
};

} // namespace

std::vector<RichLine> richLines(
    const formats::RichText& text, TextRole role, const TextMeasure& measure, double width)
{
    std::vector<RichLine> lines;
    int number = 0;
    for (const TextParagraph& paragraph : text.paragraphs) {
        number = paragraph.list == TextParagraph::List::Numbers ? number + 1 : 0;
        const QString mark = paragraph.list == TextParagraph::List::Bullets ? u"\u2022"_s
            : number > 0                                                    ? QString::number(number) + u'.'
                                                                            : QString();
        ParagraphSetter(paragraph, role, measure).set(width, mark, lines);
    }
    return lines;
}

} // namespace output
