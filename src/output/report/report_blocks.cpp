#include "output/report/report_blocks.h"

#include <algorithm>
#include <iterator>
#include <numeric>

using namespace Qt::StringLiterals;

namespace output {

namespace {

// No line is higher than this many lines of text, so that a page can break within the longest of notes.
constexpr qsizetype kMostTextLines = 30;

constexpr double kSpaceBelowHeads = 60;

constexpr double kPageHead = 520; ///< title and date, and the line below them

/// What a label that holds too much is set smaller by; a third is about what an eye can read.
constexpr double kShrinks[] = {1, 0.92, 0.85, 0.78, 0.71, 0.64, 0.57, 0.5, 0.43, 0.36, 0.3};

/// The height of a label whose letters have the size of a report, in twips. Larger ones are read from
/// further.
constexpr double kUsualLabel = 1900;
constexpr double kSmallest = 0.8;
constexpr double kLargest = 1.5;

QString firstLetter(const QString& text)
{
    for (const QChar letter : text.normalized(QString::NormalizationForm_D)) {
        if (letter.isLetterOrNumber())
            return letter.toUpper();
    }
    return {};
}

double heightOf(const Cell& cell, const TextMeasure& measure)
{
    const double label = cell.label.isEmpty() ? 0 : measure.lineHeight(TextRole::Label);
    if (!cell.rich.empty())
        return std::accumulate(cell.rich.begin(), cell.rich.end(), label,
            [](double sum, const RichLine& line) { return sum + line.height; });
    return label + static_cast<double>(cell.lines.size()) * measure.lineHeight(cell.role);
}

void setLooks(Cell& cell, const TextMeasure& measure)
{
    cell.rich = richLines(*cell.looks, cell.role, measure, cell.width - kCellGap);
    for (const RichLine& line : cell.rich) {
        QString text;
        for (const RunOnLine& run : line.runs)
            text += run.text;
        cell.lines << text;
    }
}

/// A text with looks goes to the next page line by line. It is the only one of its line that is long.
std::vector<Line> lineByLine(Line line)
{
    std::vector<Line> pieces;
    for (Cell& cell : line.cells) {
        if (cell.rich.empty())
            continue;
        std::vector<RichLine> rich = std::move(cell.rich);
        for (std::size_t at = 0; at < rich.size(); ++at) {
            Cell part{.x = cell.x, .width = cell.width, .role = cell.role, .align = cell.align};
            part.looks = at == 0 ? cell.looks : nullptr;
            part.lines = {cell.lines.value(static_cast<qsizetype>(at))};
            part.rich.push_back(std::move(rich[at]));
            pieces.push_back({.cells = {std::move(part)}, .goesOn = at > 0});
        }
    }
    return pieces;
}

/// Cuts a line that is too high into several, between lines of text.
std::vector<Line> inPieces(Line line)
{
    std::vector<Line> pieces;
    const auto isRich = [](const Cell& cell) { return !cell.rich.empty(); };
    if (std::any_of(line.cells.begin(), line.cells.end(), isRich))
        return lineByLine(std::move(line));
    const auto tooHigh = [](const Cell& cell) { return cell.lines.size() > kMostTextLines; };
    while (std::any_of(line.cells.begin(), line.cells.end(), tooHigh)) {
        Line piece = line;
        piece.isRuled = false;
        for (std::size_t cell = 0; cell < line.cells.size(); ++cell) {
            piece.cells[cell].lines = line.cells[cell].lines.mid(0, kMostTextLines);
            line.cells[cell].lines = line.cells[cell].lines.mid(kMostTextLines);
            line.cells[cell].label.clear();
        }
        pieces.push_back(std::move(piece));
    }
    pieces.push_back(std::move(line));
    return pieces;
}

} // namespace

ReportSetter::ReportSetter(const Report& report)
    : m_report(report)
    , m_measure(report.textScale)
    , m_groupField(report.grouping ? report.source->field(report.grouping->column) : -1)
    , m_header(prepare(report.header))
    , m_groupHeader(prepare(report.groupHeader))
    , m_detail(prepare(report.detail))
    , m_groupFooter(prepare(report.groupFooter))
    , m_footer(prepare(report.footer))
    , m_columnHeads(prepare(report.columnHeads))
{
}

ReportSetter::SetLine ReportSetter::prepare(const LineRule& rule) const
{
    SetLine line;
    line.isRuled = rule.isRuled;
    line.at = rule.at;
    for (const CellRule& cell : rule.cells) {
        line.cells.push_back({TextTemplate(cell.text, *m_report.source), cell});
        line.shares += cell.share;
    }
    return line;
}

ReportSetter::SetSection ReportSetter::prepare(const Section& section) const
{
    SetSection prepared;
    for (const LineRule& line : section.lines)
        prepared.lines.push_back(prepare(line));
    prepared.picture = section.picture.isEmpty() ? -1 : m_report.source->field(section.picture);
    prepared.spaceBelow = section.spaceBelow;
    prepared.indent = section.indent;
    prepared.width = section.width;
    prepared.isBoxed = section.isBoxed;
    return prepared;
}

QString ReportSetter::groupKey(int row) const
{
    if (m_groupField < 0)
        return {};
    const QString text = m_report.source->text(row, m_groupField).trimmed();
    const QString key = m_report.grouping->byFirstLetter ? firstLetter(text) : text;
    return key.isEmpty() ? m_report.grouping->without : key;
}

bool ReportSetter::endsGroup(int row) const
{
    return row + 1 >= m_report.source->count()
        || (m_groupField >= 0 && groupKey(row).compare(groupKey(row + 1), Qt::CaseInsensitive) != 0);
}

Place ReportSetter::first() const
{
    return {.atEnd = m_report.isEmpty()};
}

Place ReportSetter::after(const Place& place) const
{
    Place next = place;
    next.line = 0;
    switch (place.kind) {
    case BlockKind::ReportHeader: next.kind = BlockKind::GroupHeader; break;
    case BlockKind::GroupHeader: next.kind = BlockKind::Detail; break;
    case BlockKind::Detail:
        if (endsGroup(place.row))
            next.kind = BlockKind::GroupFooter;
        else
            ++next.row;
        break;
    case BlockKind::GroupFooter:
        if (place.row + 1 < m_report.source->count()) {
            next.kind = BlockKind::GroupHeader;
            next.groupStart = ++next.row;
        } else {
            next.kind = BlockKind::ReportFooter;
        }
        break;
    default: next.atEnd = true;
    }
    return next;
}

Block ReportSetter::block(const Place& place) const
{
    NamedTexts names{{u"#title"_s, m_report.title}, {u"#date"_s, m_report.printDate}};
    const auto countOf = [&names](int rows) { names[u"#count"_s] = QString::number(rows); };
    const bool isGrouped = m_groupField >= 0;
    switch (place.kind) {
    case BlockKind::ReportHeader: return set(m_header, place.kind, place.row, names);
    case BlockKind::Detail: return set(m_detail, place.kind, place.row, names);
    case BlockKind::ReportFooter:
        countOf(m_report.source->count());
        return set(m_footer, place.kind, place.row, names);
    default: break;
    }
    if (!isGrouped)
        return {};
    names[u"#key"_s] = groupKey(place.row);
    countOf(place.row + 1 - place.groupStart);
    return set(
        place.kind == BlockKind::GroupHeader ? m_groupHeader : m_groupFooter, place.kind, place.row, names);
}

Block ReportSetter::columnHeads() const
{
    Block block{.kind = BlockKind::ColumnHeads};
    if (m_columnHeads.cells.empty())
        return block;
    setLine(m_columnHeads, textWidth(), 0, {}, block);
    for (const Line& line : block.lines)
        block.height += line.height;
    block.height += kSpaceBelowHeads;
    return block;
}

double ReportSetter::pageTop() const
{
    return m_report.paper.margin + (m_report.hasPageMarks ? kPageHead : 0);
}

FittedBlock ReportSetter::label(int row) const
{
    const SheetLayout& sheet = *m_report.sheet;
    const double width = sheet.width - 2 * kLabelPadding;
    const double height = sheet.height - 2 * kLabelPadding;
    FittedBlock fitted;
    const double usual = std::clamp(sheet.height / kUsualLabel, kSmallest, kLargest);
    for (const double shrink : kShrinks) {
        const double scale = usual * shrink;
        fitted = {set(m_detail, BlockKind::Detail, row, {}, width / scale), scale};
        if (fitted.block.height * scale <= height)
            break;
    }
    // What even the smallest letters do not bring in is left out, rather than printed on the next label.
    Block& block = fitted.block;
    while (block.height * fitted.scale > height && block.lines.size() > 1) {
        block.height -= block.lines.back().height;
        block.lines.pop_back();
    }
    return fitted;
}

Block ReportSetter::set(
    const SetSection& section, BlockKind kind, int row, const NamedTexts& names, double textWidth) const
{
    Block block{.kind = kind};
    if (section.picture >= 0)
        block.picture = m_report.source->text(row, section.picture).trimmed();
    block.x = textWidth * section.indent;
    block.width = textWidth * section.width;
    block.isBoxed = section.isBoxed;
    const double width = block.width - (block.picture.isEmpty() ? 0 : kPictureWidth + kCellGap);
    for (const SetLine& line : section.lines)
        setLine(line, width, row, names, block);
    if (block.isEmpty())
        return block;
    for (const Line& line : block.lines)
        block.height += line.height;
    if (!block.picture.isEmpty())
        block.height = std::max(block.height, kPictureHeight);
    block.spaceBelow = section.spaceBelow;
    block.height += block.spaceBelow;
    return block;
}

void ReportSetter::setLine(
    const SetLine& rule, double width, int row, const NamedTexts& names, Block& block) const
{
    if (rule.at > 0) {
        double y = pageTop();
        for (const Line& above : block.lines)
            y += above.height;
        if (rule.at > y)
            block.lines.push_back({.cells = {}, .height = rule.at - y, .isSpace = true});
    }
    Line line;
    line.isRuled = rule.isRuled;
    line.cells.reserve(rule.cells.size());
    double x = 0;
    bool hasFields = false;
    bool hasValue = false;
    for (const Column& column : rule.cells) {
        const double share = width * column.rule.share / rule.shares;
        Cell cell{.x = block.x + x, .width = share, .role = column.rule.role, .align = column.rule.align};
        const QString text = column.text.fill(*m_report.source, row, names);
        if (!text.isEmpty()) {
            cell.label = column.rule.label;
            const int field = column.text.onlyField();
            cell.looks = field < 0 ? nullptr : m_report.source->looks(row, field);
            if (cell.looks)
                setLooks(cell, m_measure);
            else
                cell.lines = m_measure.wrap(text, cell.role, share - kCellGap);
        }
        hasFields |= column.text.hasFields();
        hasValue |= column.text.hasFields() && !text.isEmpty();
        x += share;
        line.cells.push_back(std::move(cell));
    }
    if (hasFields && !hasValue)
        return;
    for (Line& piece : inPieces(std::move(line))) {
        for (const Cell& cell : piece.cells)
            piece.height = std::max(piece.height, heightOf(cell, m_measure));
        block.lines.push_back(std::move(piece));
    }
}

} // namespace output
