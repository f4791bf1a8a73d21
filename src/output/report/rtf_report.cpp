#include "formats/rtf_text.h"
#include "output/report/report_files.h"

#include <algorithm>
#include <array>
#include <vector>

namespace output {

namespace {

constexpr int kRowsAStep = 100;

/// \fs is half points.
constexpr std::array<int, 6> kHalfPoints{18, 21, 14, 16, 26, 34};

// Entries of the colour table.
constexpr int kQuietColor = 1;
constexpr int kRuleColor = 2;
constexpr int kBackColor = 3;
constexpr int kTextColor = 4;
constexpr int kFirstLookColor = 5;

QByteArray number(double value)
{
    return QByteArray::number(qRound(value));
}

QByteArray colorEntry(const QColor& color)
{
    return "\\red" + number(color.red()) + "\\green" + number(color.green()) + "\\blue" + number(color.blue())
        + ";";
}

/// What texts with looks need in the tables at the head of the file. Letters have the same looks in each row.
struct LookTables {
    QStringList families;
    QList<quint32> colors;

    void collect(const Block& block)
    {
        for (const Line& line : block.lines) {
            for (const Cell& cell : line.cells) {
                if (cell.looks && cell.looks != m_last)
                    collect(*cell.looks);
            }
        }
    }

private:
    void collect(const formats::RichText& text)
    {
        m_last = &text;
        for (const formats::TextParagraph& paragraph : text.paragraphs) {
            for (const formats::TextRun& run : paragraph.runs) {
                if (!run.style.family.isEmpty() && !families.contains(run.style.family))
                    families << run.style.family;
                if (run.style.color != 0 && !colors.contains(run.style.color))
                    colors << run.style.color;
            }
        }
    }

    const formats::RichText* m_last = nullptr;
};

class RtfReport {
public:
    explicit RtfReport(const Report& report)
        : m_report(report)
    {
    }

    QByteArray head(const LookTables& looks);
    QByteArray lineRtf(const Line& line, const Block& block, bool isHeading) const;
    QByteArray letterRtf(const Block& block, bool isFirst) const;
    QByteArray sheetRtf(const Page& page) const;

private:
    QByteArray runOf(const QString& text, TextRole role, double scale = 1) const;
    QByteArray richRtf(const formats::RichText& text, TextRole role, const QByteArray& within) const;
    QByteArray styleOf(const formats::CharStyle& style) const;
    QByteArray cellText(const Cell& cell, const QByteArray& within) const;
    QByteArray labelText(const PlacedBlock& label) const;
    QByteArray sheetHead(const Page& first) const;
    QByteArray sheetRow(const std::vector<const PlacedBlock*>& labels, bool beginsPage) const;

    const Report& m_report;
    LookTables m_looks;
};

QByteArray RtfReport::runOf(const QString& text, TextRole role, double scale) const
{
    const auto index = static_cast<std::size_t>(role);
    const bool isBold = role == TextRole::Strong || role == TextRole::GroupTitle || role == TextRole::Title;
    const bool isQuiet = role == TextRole::Label || role == TextRole::Quiet;
    const bool isDarkPaper = m_report.colors.text == QColor(Qt::white);
    return QByteArray("{\\fs") + number(kHalfPoints[index] * m_report.textScale * scale)
        + (isBold ? "\\b" : "") + "\\cf"
        + QByteArray::number(isQuiet && !isDarkPaper ? kQuietColor : kTextColor) + " "
        + formats::rtfText(text) + "}";
}

QByteArray RtfReport::styleOf(const formats::CharStyle& style) const
{
    QByteArray rtf;
    if (style.isBold)
        rtf += "\\b";
    if (style.isItalic)
        rtf += "\\i";
    if (style.isUnderlined)
        rtf += "\\ul";
    if (style.isStruckOut)
        rtf += "\\strike";
    if (const qsizetype font = m_looks.families.indexOf(style.family); font >= 0)
        rtf += "\\f" + QByteArray::number(font + 1);
    if (style.points > 0)
        rtf += "\\fs" + number(2 * style.points);
    if (const qsizetype color = m_looks.colors.indexOf(style.color); color >= 0)
        rtf += "\\cf" + QByteArray::number(color + kFirstLookColor);
    return rtf;
}

/// @param within what begins each paragraph, such as its place in a table
QByteArray RtfReport::richRtf(const formats::RichText& text, TextRole role, const QByteArray& within) const
{
    static constexpr const char* kAligned[] = {"\\ql", "\\qc", "\\qr", "\\qj"};
    const QByteArray size
        = "\\fs" + number(kHalfPoints[static_cast<std::size_t>(role)] * m_report.textScale) + "\\cf4";
    QByteArray rtf;
    int count = 0;
    for (const formats::TextParagraph& paragraph : text.paragraphs) {
        count = paragraph.list == formats::TextParagraph::List::Numbers ? count + 1 : 0;
        if (!rtf.isEmpty())
            rtf += "\\par\n";
        rtf += within + kAligned[static_cast<int>(paragraph.align)] + "\\li"
            + QByteArray::number(720 * paragraph.indent) + "{" + size + " ";
        if (paragraph.list == formats::TextParagraph::List::Bullets)
            rtf += "\\bullet\\tab ";
        else if (count > 0)
            rtf += QByteArray::number(count) + ".\\tab ";
        for (const formats::TextRun& run : paragraph.runs)
            rtf += "{" + styleOf(run.style) + " " + formats::rtfText(run.text) + "}";
        rtf += "}";
    }
    return rtf;
}

QByteArray RtfReport::head(const LookTables& looks)
{
    m_looks = looks;
    QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fswiss Arial;}";
    for (qsizetype font = 0; font < looks.families.size(); ++font)
        rtf += "{\\f" + QByteArray::number(font + 1) + "\\fnil "
            + formats::rtfText(QString(looks.families[font]).remove(u';')) + ";}";
    rtf += "}{\\colortbl;" + colorEntry(QColor(0x5f, 0x68, 0x76)) + colorEntry(QColor(0xd1, 0xd5, 0xdb))
        + colorEntry(m_report.colors.back.isValid() ? m_report.colors.back : QColor(Qt::white))
        + colorEntry(m_report.colors.text);
    for (const quint32 color : looks.colors)
        rtf += colorEntry(QColor::fromRgba(color));
    rtf += "}\n";
    const Paper& paper = m_report.paper;
    const bool isSheet = m_report.sheet.has_value();
    const double side = isSheet ? m_report.sheet->left : paper.margin;
    const double top = isSheet ? m_report.sheet->top : paper.margin;
    rtf += "\\paperw" + number(paper.width) + "\\paperh" + number(paper.height) + "\\margl" + number(side)
        + "\\margr" + number(isSheet ? 0 : side) + "\\margt" + number(top) + "\\margb"
        + number(isSheet ? 0 : top);
    if (paper.width > paper.height)
        rtf += "\\landscape";
    if (isSheet || !m_report.hasPageMarks)
        return rtf + "\n";
    rtf += "\n{\\header\\pard\\tqr\\tx" + number(paper.width - 2 * paper.margin) + " {\\fs16\\cf1 "
        + formats::rtfText(m_report.title) + "\\tab " + formats::rtfText(m_report.printDate) + "}\\par}\n";
    rtf += "{\\footer\\pard\\qc{\\fs16\\cf1 {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}\\par}\n";
    return rtf;
}

QByteArray RtfReport::cellText(const Cell& cell, const QByteArray& within) const
{
    static constexpr const char* kAligned[] = {"\\ql", "\\qr", "\\qc"};
    if (cell.looks)
        return richRtf(*cell.looks, cell.role, within);
    QByteArray rtf = within
        + kAligned[cell.align == Align::Left ? 0
                : cell.align == Align::Right ? 1
                                             : 2]
        + " ";
    if (!cell.label.isEmpty())
        rtf += runOf(cell.label, TextRole::Label) + "\\line ";
    if (!cell.lines.isEmpty())
        rtf += runOf(cell.text(), cell.role);
    return rtf;
}

QByteArray RtfReport::lineRtf(const Line& line, const Block& block, bool isHeading) const
{
    QByteArray row = "\\trowd\\trgaph0\\trkeep\\trleft" + number(block.x);
    if (isHeading)
        row += "\\trhdr";
    for (const Cell& cell : line.cells) {
        if (line.isRuled || (block.isBoxed && &line == &block.lines.back()))
            row += "\\clbrdrb\\brdrs\\brdrw10\\brdrcf" + QByteArray::number(kRuleColor);
        if (block.isBoxed)
            row += &line == &block.lines.front() ? "\\clbrdrl\\brdrs\\clbrdrr\\brdrs\\clbrdrt\\brdrs"
                                                 : "\\clbrdrl\\brdrs\\clbrdrr\\brdrs";
        if (m_report.colors.back.isValid() && !isHeading)
            row += "\\clcbpat" + QByteArray::number(kBackColor);
        row += "\\cellx" + number(cell.x + cell.width);
    }
    for (const Cell& cell : line.cells)
        row += cellText(cell, "\\pard\\intbl") + "\\cell";
    return row + "\\row\n";
}

/// A letter is paragraphs, so that it can be written on in a word processor.
QByteArray RtfReport::letterRtf(const Block& block, bool isFirst) const
{
    QByteArray rtf = isFirst ? QByteArray() : QByteArray("\\pard\\page\n");
    for (const Line& line : block.lines) {
        if (line.goesOn)
            continue;
        if (line.isSpace) {
            rtf += "\\pard\\fs2\\sl-" + number(line.height) + "\\slmult0\\par\n";
            continue;
        }
        if (line.cells.size() > 1) {
            rtf += lineRtf(line, block, false);
            continue;
        }
        for (const Cell& cell : line.cells)
            rtf += cellText(
                       cell, "\\pard" + (line.isRuled ? QByteArray("\\brdrb\\brdrs\\brdrw10") : QByteArray()))
                + "\\par\n";
    }
    return rtf;
}

QByteArray RtfReport::labelText(const PlacedBlock& label) const
{
    QByteArray rtf;
    for (const Line& line : label.block.lines) {
        if (!rtf.isEmpty())
            rtf += "\\line ";
        bool isFirst = true;
        for (const Cell& cell : line.cells) {
            if (!cell.lines.isEmpty() && !isFirst)
                rtf += "  ";
            if (!cell.label.isEmpty())
                rtf += runOf(cell.label + u' ', TextRole::Label, label.scale);
            if (!cell.lines.isEmpty())
                rtf += runOf(cell.text(), cell.role, label.scale);
            isFirst = isFirst && cell.lines.isEmpty();
        }
    }
    return rtf;
}

/// What stands above the labels of the first page, in the margin so that it moves none of them.
QByteArray RtfReport::sheetHead(const Page& first) const
{
    QByteArray texts;
    for (const PlacedBlock& placed : first.blocks) {
        for (const Line& line : placed.block.lines) {
            for (const Cell& cell : line.cells) {
                if (!placed.frame && !cell.lines.isEmpty())
                    texts += (texts.isEmpty() ? "" : "\\tab ") + formats::rtfText(cell.text());
            }
        }
    }
    if (texts.isEmpty())
        return {};
    const double width = m_report.paper.width - 2 * m_report.sheet->left;
    return "\\titlepg\\headery" + number(kSheetHeadTop)
        + "{\\headerf\\pard\\brdrt\\brdrs\\brdrw10\\brdrb\\brdrs\\brdrw10\\tqc\\tx" + number(width / 2)
        + "\\tqr\\tx" + number(width) + "{\\fs12\\cf1 " + texts + "}\\par}\n";
}

/// @param labels of one row of the sheet, null for those that are used up
QByteArray RtfReport::sheetRow(const std::vector<const PlacedBlock*>& labels, bool beginsPage) const
{
    const SheetLayout& sheet = *m_report.sheet;
    const double gap = sheet.columns > 1 ? sheet.pitchX - sheet.width : 0;
    QByteArray cells;
    QByteArray texts;
    double x = 0;
    for (const PlacedBlock* label : labels) {
        if (x > 0 && gap >= 1) {
            cells += "\\cellx" + number(x += gap);
            texts += "\\pard\\intbl\\cell";
        }
        if (label && sheet.isFramed)
            cells += "\\clbrdrt\\brdrs\\clbrdrl\\brdrs\\clbrdrb\\brdrs\\clbrdrr\\brdrs";
        cells += "\\clvertalc\\cellx" + number(x += sheet.width);
        texts += "\\pard\\intbl\\li" + number(kLabelPadding) + (beginsPage ? "\\pagebb " : " ");
        beginsPage = false;
        texts += (label ? labelText(*label) : QByteArray()) + "\\cell";
    }
    return "\\trowd\\trgaph0\\trleft0\\trrh-" + number(sheet.height) + cells + texts + "\\row\n";
}

/// The labels of a page as a table whose cells are as large as the labels are, and nothing moves them.
QByteArray RtfReport::sheetRtf(const Page& page) const
{
    const SheetLayout& sheet = *m_report.sheet;
    using Row = std::vector<const PlacedBlock*>;
    std::vector<Row> rows(
        static_cast<std::size_t>(sheet.rows), Row(static_cast<std::size_t>(sheet.columns), nullptr));
    for (const PlacedBlock& placed : page.blocks) {
        if (!placed.frame)
            continue;
        const int column = qRound((placed.frame->x() - sheet.left) / std::max(sheet.pitchX, 1.0));
        const int row = qRound((placed.frame->y() - sheet.top) / std::max(sheet.pitchY, 1.0));
        rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = &placed;
    }
    const double gap = sheet.pitchY - sheet.height;
    QByteArray rtf = page.number == 1 ? sheetHead(page) : QByteArray();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (row > 0 && gap >= 1)
            rtf += "\\trowd\\trgaph0\\trleft0\\trrh-" + number(gap) + "\\cellx" + number(sheet.width)
                + "\\pard\\intbl\\fs2\\cell\\row\n";
        rtf += sheetRow(rows[row], row == 0 && page.number > 1);
    }
    return rtf;
}

QByteArray pictureRtf(const Block& block, const PictureOf& pictures)
{
    const QByteArray picture = jpegOf(pictures, block.picture);
    if (picture.isEmpty())
        return {};
    return "\\pard\\qr{\\pict\\jpegblip\\picwgoal" + number(kPictureWidth) + "\\pichgoal"
        + number(kPictureHeight) + " " + picture.toHex() + "}\\par\n";
}

} // namespace

bool writeRtfReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress)
{
    const auto write = [&file](const QByteArray& bytes) { return file.write(bytes) == bytes.size(); };
    const ReportSetter setter(report);
    RtfReport rtf(report);
    LookTables looks;
    if (report.rowsBeginPages) {
        for (Place place = setter.first(); !place.atEnd; place = setter.after(place))
            looks.collect(setter.block(place));
    }
    if (!write(rtf.head(looks)))
        return false;
    if (report.sheet) {
        const ReportPager pager(report);
        for (int number = 1; number <= pager.pageCount(); ++number) {
            if (!write(rtf.sheetRtf(pager.page(number)))
                || (progress && !progress(std::min(report.source->count(), number * report.sheet->labels()))))
                return false;
        }
        return write("\\pard\\fs2\\sl-20\\slmult0\\par}\n");
    }
    const Block heads = setter.columnHeads();
    for (const Line& line : heads.lines)
        if (!write(rtf.lineRtf(line, heads, true)))
            return false;
    for (Place place = setter.first(); !place.atEnd; place = setter.after(place)) {
        const Block block = setter.block(place);
        if (block.isEmpty())
            continue;
        QByteArray text = pictureRtf(block, pictures);
        if (report.rowsBeginPages) {
            text += rtf.letterRtf(block, place.row == 0);
        } else {
            for (const Line& line : block.lines)
                text += rtf.lineRtf(line, block, false);
        }
        if (block.spaceBelow > 0)
            text += "\\pard\\fs" + number(block.spaceBelow / 10) + "\\par\n";
        if (!write(text))
            return false;
        if (place.kind == BlockKind::Detail && place.row % kRowsAStep == 0 && progress
            && !progress(place.row))
            return false;
    }
    return write("\\pard}\n");
}

} // namespace output
