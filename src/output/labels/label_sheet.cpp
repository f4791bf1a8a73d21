#include "output/labels/label_sheet.h"

#include <QCoreApplication>

#include <cmath>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr double mm = kTwipsAMillimetre;
constexpr double inch = kTwipsAnInch;
constexpr double kLeastMargin = 0.25 * inch;

constexpr int kMostLabels = 400; ///< on one sheet
constexpr double kLeastSide = 5 * mm;
constexpr double kMostSide = 1200 * mm; ///< A0 is shorter
constexpr double kTolerance = 1; ///< of measures that were rounded

QString say(const char* text)
{
    return QCoreApplication::translate("output", text);
}

constexpr Paper a4{210 * mm, 297 * mm, 12 * mm};
constexpr Paper letter{8.5 * inch, 11 * inch, 0.5 * inch};

struct Grid {
    int columns;
    int rows;
    double width;
    double height;
    double pitchX;
    double pitchY;
};

/// As far from the left edge as from the right one, and from the top as from the foot.
SheetLayout centred(const Paper& paper, const Grid& grid)
{
    return {.columns = grid.columns,
        .rows = grid.rows,
        .left = (paper.width - (grid.columns - 1) * grid.pitchX - grid.width) / 2,
        .top = (paper.height - (grid.rows - 1) * grid.pitchY - grid.height) / 2,
        .width = grid.width,
        .height = grid.height,
        .pitchX = grid.pitchX,
        .pitchY = grid.pitchY};
}

} // namespace

const std::vector<LabelSheet>& builtinSheets()
{
    static const std::vector<LabelSheet> sheets{
        {say("A4, 24 labels of 63.5 x 33.9 mm"), a4,
            centred(a4, {3, 8, 63.5 * mm, 33.9 * mm, 66.0 * mm, 33.9 * mm})},
        {say("A4, 14 labels of 99.1 x 38.1 mm"), a4,
            centred(a4, {2, 7, 99.1 * mm, 38.1 * mm, 101.6 * mm, 38.1 * mm})},
        {say("A4, 8 labels of 99.1 x 67.7 mm"), a4,
            centred(a4, {2, 4, 99.1 * mm, 67.7 * mm, 101.6 * mm, 67.7 * mm})},
        {say("US Letter, 30 labels of 2 5/8 x 1 in"), letter,
            centred(letter, {3, 10, 2.625 * inch, 1 * inch, 2.75 * inch, 1 * inch})},
        {say("US Letter, 14 labels of 4 x 1 1/3 in"), letter,
            centred(letter, {2, 7, 4 * inch, inch * 4 / 3, 4.1875 * inch, inch * 4 / 3})},
    };
    return sheets;
}

QString sheetComplaint(const LabelSheet& sheet)
{
    const SheetLayout& layout = sheet.layout;
    const auto isSide
        = [](double side) { return std::isfinite(side) && side >= kLeastSide && side <= kMostSide; };
    if (!isSide(sheet.paper.width) || !isSide(sheet.paper.height))
        return say("The paper has no such size.");
    if (layout.columns < 1 || layout.rows < 1 || layout.columns > kMostLabels || layout.rows > kMostLabels
        || layout.labels() > kMostLabels)
        return say("A sheet has at least one label and at most %1.").arg(kMostLabels);
    if (!isSide(layout.width) || !isSide(layout.height))
        return say("A label is at least 5 mm wide and high.");
    if ((layout.columns > 1 && !(layout.pitchX + kTolerance >= layout.width))
        || (layout.rows > 1 && !(layout.pitchY + kTolerance >= layout.height)))
        return say("Labels overlap: from one to the next it is less than a label is large.");
    const double right = layout.left + (layout.columns - 1) * layout.pitchX + layout.width;
    const double foot = layout.top + (layout.rows - 1) * layout.pitchY + layout.height;
    if (!(layout.left >= 0 && layout.top >= 0 && right <= sheet.paper.width + kTolerance
            && foot <= sheet.paper.height + kTolerance))
        return say("The labels do not fit on the paper.");
    return {};
}

Report testSheet(const LabelSheet& sheet)
{
    QList<QStringList> numbers;
    for (int label = 1; label <= sheet.layout.labels(); ++label)
        numbers << QStringList{QString::number(label)};
    Report report;
    report.title = say("Test page of labels");
    report.fileStem = u"Test-page"_s;
    report.source = std::make_shared<ListSource>(QStringList{u"number"_s}, numbers);
    report.detail.lines = {{{{u"{number}"_s, 1, TextRole::Title, Align::Center}}}};
    report.paper = sheet.paper;
    report.sheet = sheet.layout;
    report.sheet->firstLabel = 0;
    report.sheet->copies = 1;
    report.sheet->isFramed = false;
    report.sheet->hasCrosses = true;
    report.hasPageMarks = false;
    return report;
}

} // namespace output
