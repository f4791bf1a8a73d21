#include "output/report/report_files.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kRowsAStep = 100;
constexpr double kTwipsAPoint = 20;

QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(u"\n"_s, u"<br>"_s);
}

constexpr QStringView kClasses[] = {u"v", u"s", u"l", u"q", u"g", u"t"};

/// Printed, the page is the sheet, and nothing but its labels takes room.
QString sheetStyle(const Paper& paper)
{
    return u"@page{size:%1pt %2pt;margin:0}\n@media print{body{padding:0}}\n"
           ".sheet:last-child{break-after:auto}\n"_s.arg(paper.width / kTwipsAPoint)
               .arg(paper.height / kTwipsAPoint);
}

QString styleOf(const Report& report)
{
    return uR"(
body{font-family:Inter,"Segoe UI",Helvetica,Arial,sans-serif;font-size:%1pt;color:#111;max-width:%2pt;margin:2em auto;padding:0 1em}
table{width:100%;border-collapse:collapse;table-layout:fixed}
td{vertical-align:top;padding:1px 6px 1px 0;overflow-wrap:anywhere}
.s,.g,.t{font-weight:bold}.s{font-size:117%}.g{font-size:144%}.t{font-size:189%}
.l,.q{font-size:82%;opacity:.7}
.r td{border-bottom:1px solid #d1d5db}
section{padding:4px 6px;margin:0 0 6px 0;break-inside:avoid}
img{float:right;max-width:63pt;max-height:75pt;margin-left:8px}
.p{margin:0;min-height:1em;white-space:pre-wrap;tab-size:4em}
.b{border:1px solid}
.w{break-after:page}
.sheet{position:relative;break-after:page;max-width:none}
.label{position:absolute;overflow:hidden;margin:0;padding:0;box-sizing:border-box}
.label.f{padding:%3pt}
.label td{padding:0;line-height:1.2}
.c{text-align:center}.e{text-align:right}
@media print{body{margin:0;max-width:none}}
%4)"_s.arg(9 * report.textScale)
        .arg(std::round((report.paper.width - 2 * report.paper.margin) / kTwipsAPoint))
        .arg(kLabelPadding / kTwipsAPoint)
        .arg(report.sheet ? sheetStyle(report.paper) : QString());
}

QString runHtml(const formats::TextRun& run)
{
    const formats::CharStyle& style = run.style;
    QString css;
    if (style.isBold)
        css += u"font-weight:bold;"_s;
    if (style.isItalic)
        css += u"font-style:italic;"_s;
    if (style.isUnderlined || style.isStruckOut)
        css += u"text-decoration:"_s + (style.isUnderlined ? u"underline "_s : QString())
            + (style.isStruckOut ? u"line-through"_s : QString()) + u';';
    if (!style.family.isEmpty())
        css += u"font-family:'"_s + QString(style.family).remove(QRegularExpression(u"[^\\w -]"_s)) + u"';"_s;
    if (style.points > 0)
        css += u"font-size:%1pt;"_s.arg(style.points);
    if (style.color != 0)
        css += u"color:"_s + QColor::fromRgba(style.color).name() + u';';
    const QString text = escaped(run.text);
    return css.isEmpty() ? text : u"<span style=\""_s + css + u"\">"_s + text + u"</span>"_s;
}

QString richHtml(const formats::RichText& text)
{
    static constexpr QStringView kAligned[] = {u"left", u"center", u"right", u"justify"};
    QString html;
    int number = 0;
    for (const formats::TextParagraph& paragraph : text.paragraphs) {
        number = paragraph.list == formats::TextParagraph::List::Numbers ? number + 1 : 0;
        html += u"<p class=\"p\" style=\"text-align:%1;margin-left:%2em\">"_s.arg(
            kAligned[static_cast<int>(paragraph.align)], QString::number(3 * paragraph.indent));
        if (paragraph.list == formats::TextParagraph::List::Bullets)
            html += u"\u2022\t"_s;
        else if (number > 0)
            html += QString::number(number) + u".\t"_s;
        for (const formats::TextRun& run : paragraph.runs)
            html += runHtml(run);
        html += u"</p>"_s;
    }
    return html;
}

QString cellHtml(const Cell& cell, double lineWidth)
{
    QStringList classes;
    if (cell.role != TextRole::Value)
        classes << kClasses[static_cast<int>(cell.role)].toString();
    if (cell.align != Align::Left)
        classes << (cell.align == Align::Right ? u"e"_s : u"c"_s);
    QString html = u"<td style=\"width:"_s + QString::number(100 * cell.width / lineWidth, 'f', 1) + u"%\""_s;
    if (!classes.isEmpty())
        html += u" class=\""_s + classes.join(u' ') + u'"';
    html += u'>';
    if (!cell.label.isEmpty())
        html += u"<span class=\"l\">"_s + escaped(cell.label) + u"</span><br>"_s;
    if (cell.looks)
        return html + richHtml(*cell.looks) + u"</td>"_s;
    return html + escaped(cell.text()) + u"</td>"_s;
}

QString blockHtml(const Block& block, const Report& report, double textWidth, const PictureOf& pictures)
{
    const bool endsPage = report.rowsBeginPages && block.kind == BlockKind::Detail;
    QString html = endsPage ? u"<section class=\"w\""_s : u"<section"_s;
    if (report.colors.back.isValid() && block.kind != BlockKind::ColumnHeads && !block.isBoxed)
        html += u" style=\"background:%1;color:%2\""_s.arg(
            report.colors.back.name(), report.colors.text.name());
    if (block.isBoxed)
        html
            += u" class=\"b\" style=\"margin-left:%1%;width:%2%\""_s.arg(100 * block.x / textWidth, 0, 'f', 1)
                   .arg(100 * block.width / textWidth, 0, 'f', 1);
    html += u'>';
    if (const QByteArray picture = jpegOf(pictures, block.picture); !picture.isEmpty())
        html += u"<img alt=\"\" src=\"data:image/jpeg;base64,"_s + QString::fromLatin1(picture.toBase64())
            + u"\">"_s;
    // Cells of one line share a table, so that columns stand below one another wherever their shares agree.
    for (const Line& line : block.lines) {
        if (line.goesOn)
            continue;
        if (line.isSpace) {
            html += u"<div style=\"height:%1pt\"></div>"_s.arg(qRound(line.height / kTwipsAPoint));
            continue;
        }
        double width = 0;
        for (const Cell& cell : line.cells)
            width += cell.width;
        html += line.isRuled ? u"<table class=\"r\"><tr>"_s : u"<table><tr>"_s;
        for (const Cell& cell : line.cells)
            html += cellHtml(cell, width);
        html += u"</tr></table>"_s;
    }
    return html + u"</section>\n"_s;
}

QString labelHtml(const PlacedBlock& placed, bool isFramed)
{
    const QRectF frame = placed.frame.value_or(
        QRectF(placed.x, placed.y, placed.block.width * placed.scale, placed.height * placed.scale));
    const auto points = [](double twips) { return QString::number(twips / kTwipsAPoint, 'f', 1); };
    QString html
        = u"<section class=\"label%1\" style=\"left:%2pt;top:%3pt;width:%4pt;height:%5pt;font-size:%6%\">"_s
              .arg(placed.frame ? (isFramed ? u" f b"_s : u" f"_s) : QString(), points(frame.x()),
                  points(frame.y()), points(frame.width()), points(frame.height()),
                  QString::number(100 * placed.scale, 'f', 0));
    for (const Line& line : placed.block.lines) {
        double width = 0;
        for (const Cell& cell : line.cells)
            width += cell.width;
        html += line.isRuled ? u"<table class=\"r\"><tr>"_s : u"<table><tr>"_s;
        if (line.cells.empty())
            html += u"<td></td>"_s;
        for (const Cell& cell : line.cells)
            html += cellHtml(cell, width);
        html += u"</tr></table>"_s;
    }
    return html + u"</section>\n"_s;
}

/// Labels stand on a page where they stand on their sheet.
bool writeSheets(const ReportPager& pager, const std::function<bool(const QString&)>& write,
    const ReportProgress& progress)
{
    const Report& report = pager.report();
    for (int number = 1; number <= pager.pageCount(); ++number) {
        QString html = u"<div class=\"sheet\" style=\"width:%1pt;height:%2pt\">\n"_s
                           .arg(report.paper.width / kTwipsAPoint)
                           .arg(report.paper.height / kTwipsAPoint);
        for (const PlacedBlock& placed : pager.page(number).blocks)
            html += labelHtml(placed, report.sheet->isFramed || report.sheet->hasCrosses);
        if (!write(html + u"</div>\n"_s))
            return false;
        const int rows = number * report.sheet->labels() / report.sheet->copies;
        if (progress && !progress(std::min(rows, report.source->count())))
            return false;
    }
    return true;
}

} // namespace

bool writeHtmlReport(
    const Report& report, QIODevice& file, const PictureOf& pictures, const ReportProgress& progress)
{
    const auto write = [&file](const QString& text) {
        const QByteArray bytes = text.toUtf8();
        return file.write(bytes) == bytes.size();
    };
    const ReportSetter setter(report);
    if (!write(u"<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>"_s + escaped(report.title)
            + u"</title>\n<style>"_s + styleOf(report) + u"</style>\n</head>\n<body>\n"_s))
        return false;
    if (report.hasPageMarks && !write(u"<p class=\"q\">"_s + escaped(report.printDate) + u"</p>\n"_s))
        return false;
    if (report.sheet)
        return writeSheets(ReportPager(report), write, progress) && write(u"</body>\n</html>\n"_s);
    if (const Block heads = setter.columnHeads(); !heads.isEmpty())
        if (!write(blockHtml(heads, report, setter.textWidth(), pictures)))
            return false;
    for (Place place = setter.first(); !place.atEnd; place = setter.after(place)) {
        const Block block = setter.block(place);
        if (!block.isEmpty() && !write(blockHtml(block, report, setter.textWidth(), pictures)))
            return false;
        if (place.kind == BlockKind::Detail && place.row % kRowsAStep == 0 && progress
            && !progress(place.row))
            return false;
    }
    return write(u"</body>\n</html>\n"_s);
}

} // namespace output
