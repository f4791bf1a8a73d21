#include "formats/rtf_text.h"
#include "output/report/report_files.h"

#include <array>

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

QByteArray number(double value)
{
    return QByteArray::number(qRound(value));
}

QByteArray colorEntry(const QColor& color)
{
    return "\\red" + number(color.red()) + "\\green" + number(color.green()) + "\\blue" + number(color.blue())
        + ";";
}

QByteArray runOf(const QString& text, TextRole role, const Report& report)
{
    const auto index = static_cast<std::size_t>(role);
    const bool isBold = role == TextRole::Strong || role == TextRole::GroupTitle || role == TextRole::Title;
    const bool isQuiet = role == TextRole::Label || role == TextRole::Quiet;
    const bool isDarkPaper = report.colors.text == QColor(Qt::white);
    return QByteArray("{\\fs") + number(kHalfPoints[index] * report.textScale) + (isBold ? "\\b" : "")
        + "\\cf" + QByteArray::number(isQuiet && !isDarkPaper ? kQuietColor : kTextColor) + " "
        + formats::rtfText(text) + "}";
}

QByteArray head(const Report& report)
{
    QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;";
    rtf += colorEntry(QColor(0x5f, 0x68, 0x76)) + colorEntry(QColor(0xd1, 0xd5, 0xdb));
    rtf += colorEntry(report.colors.back.isValid() ? report.colors.back : QColor(Qt::white))
        + colorEntry(report.colors.text) + "}\n";
    const Paper& paper = report.paper;
    const QByteArray margin = number(paper.margin);
    rtf += "\\paperw" + number(paper.width) + "\\paperh" + number(paper.height) + "\\margl" + margin
        + "\\margr" + margin + "\\margt" + margin + "\\margb" + margin;
    if (paper.width > paper.height)
        rtf += "\\landscape";
    rtf += "\n{\\header\\pard\\tqr\\tx" + number(paper.width - 2 * paper.margin) + " {\\fs16\\cf1 "
        + formats::rtfText(report.title) + "\\tab " + formats::rtfText(report.printDate) + "}\\par}\n";
    rtf += "{\\footer\\pard\\qc{\\fs16\\cf1 {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}\\par}\n";
    return rtf;
}

QByteArray lineRtf(const Line& line, const Block& block, const Report& report, bool isHeading)
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
        if (report.colors.back.isValid() && !isHeading)
            row += "\\clcbpat" + QByteArray::number(kBackColor);
        row += "\\cellx" + number(cell.x + cell.width);
    }
    for (const Cell& cell : line.cells) {
        static constexpr const char* kAligned[] = {"\\ql", "\\qr", "\\qc"};
        row += "\\pard\\intbl";
        row += kAligned[cell.align == Align::Left ? 0 : cell.align == Align::Right ? 1 : 2];
        row += " ";
        if (!cell.label.isEmpty())
            row += runOf(cell.label, TextRole::Label, report) + "\\line ";
        if (!cell.lines.isEmpty())
            row += runOf(cell.text(), cell.role, report);
        row += "\\cell";
    }
    return row + "\\row\n";
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
    if (!write(head(report)))
        return false;
    const Block heads = setter.columnHeads();
    for (const Line& line : heads.lines)
        if (!write(lineRtf(line, heads, report, true)))
            return false;
    for (Place place = setter.first(); !place.atEnd; place = setter.after(place)) {
        const Block block = setter.block(place);
        QByteArray rtf = pictureRtf(block, pictures);
        for (const Line& line : block.lines)
            rtf += lineRtf(line, block, report, false);
        if (block.spaceBelow > 0 && !block.isEmpty())
            rtf += "\\pard\\fs" + number(block.spaceBelow / 10) + "\\par\n";
        if (!write(rtf))
            return false;
        if (place.kind == BlockKind::Detail && place.row % kRowsAStep == 0 && progress
            && !progress(place.row))
            return false;
    }
    return write("\\pard}\n");
}

} // namespace output
