#include "output/report/report_files.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kRowsAStep = 100;

QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(u"\n"_s, u"<br>"_s);
}

constexpr QStringView kClasses[] = {u"v", u"s", u"l", u"q", u"g", u"t"};

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
.b{border:1px solid}
.c{text-align:center}.e{text-align:right}
@media print{body{margin:0;max-width:none}}
)"_s.arg(9 * report.textScale)
        .arg(std::round((report.paper.width - 2 * report.paper.margin) / 20));
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
    return html + escaped(cell.text()) + u"</td>"_s;
}

QString blockHtml(const Block& block, const Report& report, double textWidth, const PictureOf& pictures)
{
    QString html = u"<section"_s;
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
            + u"</title>\n<style>"_s + styleOf(report) + u"</style>\n</head>\n<body>\n<p class=\"q\">"_s
            + escaped(report.printDate) + u"</p>\n"_s))
        return false;
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
