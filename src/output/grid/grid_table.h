#pragma once

#include "output/grid/color_number.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

/// A grid as a value: what is written of a list to a file or on paper, whatever shows it on the screen. Rows
/// are read as they are asked for.
namespace output {

enum class CellKind { Text, Number, Date, CheckBox };

/// How a text stands in its cell: 0 to 8 are left, centre and right, each top, middle, bottom; 9 leaves it
/// to the text, numbers to the right.
inline constexpr int kGeneralAlignment = 9;

struct GridColumn {
    QString heading;
    int width = 0; ///< twips; a column of no width is not shown
    CellKind kind = CellKind::Text;
    int alignment = kGeneralAlignment;
    bool isHidden = false;

    bool isShown() const { return !isHidden && width > 0; }
};

/// What a cell has of its own; the rest it has from the grid.
struct CellLook {
    std::optional<ColorNumber> back = {};
    std::optional<ColorNumber> color = {};
    QString font = {};
    std::optional<int> alignment = {};
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isPicture = false;
};

struct GridCell {
    QString text; ///< as a person reads it, whole
    QVariant value = {}; ///< of a number or a date; of a check box, what is not 0 is a tick
    CellLook look = {};
};

/// What a person reads in a cell: of a check box a "Y" or nothing.
QString textOf(const GridColumn& column, const GridCell& cell);

struct GridRow {
    bool isHidden = false;
    bool hasHeight = true;
    int outlineLevel = -1; ///< of a row that heads others, from 0
};

/// The cells that are shown as one, by the one at the upper left.
struct MergedRange {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;

    bool isMerged() const { return rows > 1 || columns > 1; }
};

class GridRows {
public:
    GridRows() = default;
    GridRows(const GridRows&) = delete;
    GridRows& operator=(const GridRows&) = delete;
    virtual ~GridRows() = default;

    virtual int count() const = 0;
    virtual GridCell cell(int row, int column) const = 0;
    /// The text of a cell alone, for files that hold nothing else.
    virtual QString text(int row, int column, const GridColumn& about) const
    {
        return textOf(about, cell(row, column));
    }
    virtual GridRow row(int) const { return {}; }
    virtual MergedRange mergedRange(int row, int column) const { return {row, column}; }
};

struct GridTable {
    QString title = {};
    QList<GridColumn> columns = {};
    std::shared_ptr<const GridRows> rows = {};
    QString fontName = {};
    int clientWidth = 0; ///< twips, of which widths are told as a part; that of all columns where it is 0
    int fixedColumns = 0; ///< which look like the headings
    int groupColumn = -1; ///< whose texts stand in the headings of groups
    // A file looks the same whatever look the program has.
    ColorNumber back = 0xFFFFFF;
    ColorNumber gridLine = 0xC0C0C0;
    ColorNumber fixedBack = 0xE6E6E6;
    ColorNumber fixedColor = 0x000000;

    int rowCount() const { return rows ? rows->count() : 0; }
    QList<int> shownColumns() const;
    int shownWidth() const; ///< twips
};

} // namespace output
