#pragma once

#include "output/report/report_source.h"

#include <QColor>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// A report as data: where its rows come from, how a row, a group and a page are set, in which colours. What
/// is made of it (pages on the screen and on paper, PDF, HTML, RTF) is made from this alone.
///
/// Lengths are twips, 1/1440 inch, sizes of letters are points.
namespace output {

enum class TextRole { Value, Strong, Label, Quiet, GroupTitle, Title };
enum class Align { Left, Center, Right };

/// A text in a line. Columns of the source stand in braces, "{h_city} - {h_pin}": what stands between two of
/// them is written only when both have something to say, and a line of the text without any value is left
/// out. "{#key}" is the key of the group, "{#count}" the rows of the group, in the footer of the report of
/// all, "{#title}" and "{#date}" are those of the report.
struct CellRule {
    QString text;
    double share = 1; ///< of the width of its line
    TextRole role = TextRole::Value;
    Align align = Align::Left;
    QString label = {}; ///< small, above the text; left out with it
};

struct LineRule {
    std::vector<CellRule> cells;
    bool isRuled = false; ///< with a thin line below
    double at = 0; ///< from the upper edge of the paper, where the lines above leave it free
};

/// A line of which no column says anything is left out.
struct Section {
    std::vector<LineRule> lines;
    QString picture = {}; ///< the column with the path of a picture, which stands to the right of the lines
    double spaceBelow = 0;
    double indent = 0; ///< share of the width of the paper that is left free on the left
    double width = 1; ///< share that its lines take
    bool isBoxed = false;
};

struct Grouping {
    QString column;
    bool byFirstLetter = false; ///< also of letters with accents
    QString without = {}; ///< the key of rows that have none
};

struct SectionColors {
    QColor back; ///< invalid for the paper
    QColor text = Qt::black;
};
/// Colours from a stored number, 0xBBGGRR: letters are black or white, whichever is easier to read.
SectionColors colorsOf(int colorNumber);

struct Paper {
    double width = 11906; ///< A4
    double height = 16838;
    double margin = 850;

    Paper turned() const { return {height, width, margin}; }
};

/// Labels in columns and rows on a sheet. Lengths from the edges of the paper.
struct SheetLayout {
    int columns = 1;
    int rows = 1;
    double left = 0; ///< of the first label
    double top = 0;
    double width = 0; ///< of a label
    double height = 0;
    double pitchX = 0; ///< from a label to the one beside it
    double pitchY = 0;
    int firstLabel = 0; ///< labels of the first sheet that are used up
    int copies = 1; ///< of each row
    bool isFramed = true; ///< with a line around each label
    bool hasCrosses = false; ///< at the corners of each label, to lay over a sheet

    int labels() const { return columns * rows; } ///< of one sheet
};

struct Report {
    QString title;
    QString printDate;
    QString fileStem; ///< of files that it is saved to
    QString saveTitle = {}; ///< of the dialog that asks for a file; that of the format where it is empty
    QString htmlEnding = {}; ///< of the web page that it is saved to; ".htm" where it is empty
    std::shared_ptr<const ReportSource> source;
    Section header; ///< once, before all rows
    std::optional<Grouping> grouping;
    Section groupHeader;
    Section groupFooter;
    Section detail;
    Section footer; ///< once, behind all rows
    LineRule columnHeads; ///< on each page, above the rows
    SectionColors colors; ///< of the sections, not of the margins
    Paper paper;
    double textScale = 1;
    std::optional<SheetLayout> sheet; ///< the detail of each row on a label, as small as it takes to fit
    bool hasPageMarks = true; ///< title and date at the head of a page, its number at the foot
    bool rowsBeginPages = false; ///< each row is a letter of one page or more

    bool isEmpty() const { return !source || source->count() == 0; }
};

} // namespace output
