#pragma once

#include "output/report/rich_lines.h"
#include "output/report/text_template.h"

#include <vector>

namespace output {

enum class BlockKind { ReportHeader, GroupHeader, Detail, GroupFooter, ReportFooter, ColumnHeads };

struct Cell {
    double x = 0; ///< from the left margin
    double width = 0;
    QString label = {};
    QStringList lines = {};
    TextRole role = TextRole::Value;
    Align align = Align::Left;
    std::vector<RichLine> rich = {}; ///< in place of `lines`, for a text with looks
    const formats::RichText* looks = nullptr; ///< that text whole, lives as long as the source

    QString text() const { return lines.join(u'\n'); }
};

struct Line {
    std::vector<Cell> cells;
    double height = 0;
    bool isRuled = false;
    bool isSpace = false; ///< so that the next line stands where it should
    bool goesOn = false; ///< the rest of the line before, whose text with looks is whole there
};

/// A section of a report as it is set, for one row.
struct Block {
    BlockKind kind = BlockKind::Detail;
    std::vector<Line> lines = {};
    QString picture = {}; ///< its path as the book has it; empty for none
    double spaceBelow = 0;
    double x = 0; ///< of its lines, from the left margin
    double width = 0;
    bool isBoxed = false;
    double height = 0; ///< with the picture and the space below

    bool isEmpty() const { return lines.empty(); }
};

/// A picture of a block stands at its right end.
inline constexpr double kPictureWidth = 1250;
inline constexpr double kPictureHeight = 1500;
inline constexpr double kCellGap = 110; ///< between a cell and the one to its right
/// The heading of a report of labels stands above those of the first sheet, if there is room; few printers
/// reach further up.
inline constexpr double kSheetHeadTop = 300;
inline constexpr double kLabelPadding = 130; ///< between the edge of a label and its text

/// A block that is drawn smaller, so that it fits.
struct FittedBlock {
    Block block;
    double scale = 1;
};

/// Where one is in a report: in which section, for which row.
struct Place {
    int row = 0;
    BlockKind kind = BlockKind::ReportHeader;
    int line = 0; ///< the first of its lines that is not on a page yet
    int groupStart = 0; ///< the first row of the group
    bool atEnd = false;
};

/// Walks through the sections of a report and sets them one by one. Nothing is kept of those passed.
class ReportSetter {
public:
    explicit ReportSetter(const Report& report);

    const Report& report() const { return m_report; }
    const TextMeasure& measure() const { return m_measure; }
    double textWidth() const { return m_report.paper.width - 2 * m_report.paper.margin; }

    Place first() const;
    Place after(const Place& place) const;
    Block block(const Place& place) const;
    Block columnHeads() const;
    /// The detail of a row on a label of the sheet.
    FittedBlock label(int row) const;
    double pageTop() const; ///< where the first line of a page stands

private:
    struct Column {
        TextTemplate text;
        CellRule rule;
    };
    struct SetLine {
        std::vector<Column> cells;
        double shares = 0;
        bool isRuled = false;
        double at = 0;
    };
    struct SetSection {
        std::vector<SetLine> lines;
        int picture = -1;
        double spaceBelow = 0;
        double indent = 0;
        double width = 1;
        bool isBoxed = false;
    };
    SetSection prepare(const Section& section) const;
    SetLine prepare(const LineRule& rule) const;
    Block set(const SetSection& section, BlockKind kind, int row, const NamedTexts& names) const
    {
        return set(section, kind, row, names, textWidth());
    }
    Block set(
        const SetSection& section, BlockKind kind, int row, const NamedTexts& names, double textWidth) const;
    void setLine(const SetLine& rule, double width, int row, const NamedTexts& names, Block& block) const;
    QString groupKey(int row) const;
    bool endsGroup(int row) const;

    Report m_report;
    TextMeasure m_measure;
    int m_groupField = -1;
    SetSection m_header;
    SetSection m_groupHeader;
    SetSection m_detail;
    SetSection m_groupFooter;
    SetSection m_footer;
    SetLine m_columnHeads;
};

} // namespace output
