#pragma once

#include "output/grid/grid_html.h"

namespace output {

enum class GridFormat { Xls, Csv, Txt, Html };

/// By the ending of a file name, in any case; comma-separated for one that is none of them.
GridFormat gridFormatOf(const QString& fileName);

struct GridWritten {
    enum class Outcome {
        Written,
        Stopped, ///< by the person; the old file is as it was
        TooLarge, ///< for an .xls, which has room for so many rows and columns only
        Failed,
    };
    Outcome outcome = Outcome::Failed;
    QString why = {}; ///< a piece of a sentence, when it failed
    int cutTexts = 0; ///< that had more letters than a cell of the format takes
    int rowsWithoutLetters = 0; ///< in which letters were lost that the code page lacks
};

/// Writes a grid to a file, which is replaced when the new one is whole.
///
/// Workbook, comma-separated and tab-separated files hold every row with its own texts, also below a folded
/// heading, but no headings of groups: each row says which group it is in. A web page looks like the grid.
/// Numbers and dates of a workbook are such. The tab-separated file is in code page 1252, the comma-separated
/// one in UTF-8.
/// @param path of this computer
/// @param datePattern of dates in a workbook
GridWritten writeGrid(const GridTable& grid, const QString& path, const QString& datePattern,
    const GridProgress& progress = {});

/// Whether an .xls has room for the grid.
bool fitsWorkbook(const GridTable& grid);

} // namespace output
