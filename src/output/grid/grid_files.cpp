#include "output/grid/grid_files.h"

#include "formats/delimited.h"
#include "formats/workbook.h"
#include "platform/cp1252.h"
#include "platform/storage.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kRowsAStep = 50;
constexpr int kTwipsALetter = 105; // of the ordinary font of a sheet

/// Takes the rows of a grid one by one; the answer false ends it.
class RowWriter {
public:
    explicit RowWriter(const GridTable& grid)
        : m_grid(grid)
        , m_shown(grid.shownColumns())
    {
    }
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;
    virtual ~RowWriter() = default;

    virtual bool headings(const QStringList& texts) = 0;
    virtual bool row(int row) = 0;
    virtual bool finish() { return true; }
    virtual void tell(GridWritten&) const { }

    QStringList headingTexts() const
    {
        QStringList texts;
        for (const int column : m_shown)
            texts << m_grid.columns[column].heading;
        return texts;
    }

protected:
    QStringList textsOf(int row) const
    {
        QStringList texts;
        texts.reserve(m_shown.size());
        for (const int column : m_shown)
            texts << m_grid.rows->text(row, column, m_grid.columns[column]);
        return texts;
    }

    const GridTable& m_grid;
    QList<int> m_shown;
};

class CsvRows final : public RowWriter {
public:
    CsvRows(QIODevice& file, const GridTable& grid)
        : RowWriter(grid)
        , m_file(file)
    {
    }

    bool headings(const QStringList& texts) override
    {
        return put(formats::utf8Mark + formats::csvLine(texts));
    }
    bool row(int row) override
    {
        m_line.resize(0);
        for (const int column : m_shown) {
            if (column != m_shown.front())
                m_line += ',';
            formats::appendCsvValue(m_line, m_grid.rows->text(row, column, m_grid.columns[column]));
        }
        formats::endCsvLine(m_line);
        return put(m_line);
    }

private:
    bool put(const QByteArray& line) { return m_file.write(line) == line.size(); }

    QIODevice& m_file;
    QByteArray m_line; ///< kept, so that not every row asks for room
};

class TabbedRows final : public RowWriter {
public:
    TabbedRows(QIODevice& file, const GridTable& grid)
        : RowWriter(grid)
        , m_file(file)
    {
    }

    bool headings(const QStringList& texts) override { return put(texts); }
    bool row(int row) override { return put(textsOf(row)); }
    void tell(GridWritten& written) const override { written.rowsWithoutLetters = m_losses; }

private:
    bool put(const QStringList& texts)
    {
        const QString line = formats::tabbedLine(texts);
        const QByteArray bytes = platform::toCp1252(line) + "\r\n";
        m_losses += platform::isInCp1252(line) ? 0 : 1;
        return m_file.write(bytes) == bytes.size();
    }

    QIODevice& m_file;
    int m_losses = 0;
};

class WorkbookRows final : public RowWriter {
public:
    WorkbookRows(QFileDevice& file, const GridTable& grid, const QString& datePattern)
        : RowWriter(grid)
        , m_book(file, grid.title, sheetColumns(grid), datePattern.toLower())
    {
    }

    bool headings(const QStringList&) override { return true; }

    bool row(int row) override
    {
        QVariantList values;
        values.reserve(m_shown.size());
        for (const int column : m_shown)
            values << valueOf(m_grid.columns[column], m_grid.rows->cell(row, column));
        return m_book.addRow(values);
    }

    bool finish() override { return m_book.finish(); }
    void tell(GridWritten& written) const override { written.cutTexts = m_book.cutTexts(); }

private:
    static QList<formats::SheetColumn> sheetColumns(const GridTable& grid)
    {
        QList<formats::SheetColumn> columns;
        for (const int column : grid.shownColumns())
            columns << formats::SheetColumn{
                grid.columns[column].heading, grid.columns[column].width / kTwipsALetter + 1};
        return columns;
    }

    static QVariant valueOf(const GridColumn& column, const GridCell& cell)
    {
        if (column.kind == CellKind::Date && formats::isSheetDate(cell.value.toDate()))
            return cell.value;
        if (column.kind == CellKind::Number && cell.value.isValid() && !cell.text.isEmpty()) {
            bool isNumber = false;
            const double number = cell.value.toDouble(&isNumber);
            if (isNumber)
                return number;
        }
        return textOf(column, cell);
    }

    formats::WorkbookWriter m_book;
};

/// False when it was stopped, or the writer takes no more.
bool writeRows(const GridTable& grid, RowWriter& writer, const GridProgress& progress, GridWritten& written)
{
    bool isWritten = writer.headings(writer.headingTexts());
    for (int row = 0; isWritten && row < grid.rowCount(); ++row) {
        if (grid.rows->row(row).outlineLevel >= 0)
            continue;
        isWritten = writer.row(row);
        if (row % kRowsAStep == kRowsAStep - 1 && progress && !progress(row + 1)) {
            written.outcome = GridWritten::Outcome::Stopped;
            return false;
        }
    }
    isWritten = isWritten && writer.finish();
    writer.tell(written);
    return isWritten;
}

std::unique_ptr<RowWriter> rowWriter(
    GridFormat format, QFileDevice& file, const GridTable& grid, const QString& datePattern)
{
    switch (format) {
    case GridFormat::Xls: return std::make_unique<WorkbookRows>(file, grid, datePattern);
    case GridFormat::Txt: return std::make_unique<TabbedRows>(file, grid);
    case GridFormat::Csv:
    case GridFormat::Html: break;
    }
    return std::make_unique<CsvRows>(file, grid);
}

bool writeContent(GridFormat format, const GridTable& grid, QFileDevice& file, const QString& datePattern,
    const GridProgress& progress, GridWritten& written)
{
    if (format != GridFormat::Html)
        return writeRows(grid, *rowWriter(format, file, grid, datePattern), progress, written);
    return writeGridHtml(grid, file, [&](int done) {
        if (!progress || progress(done))
            return true;
        written.outcome = GridWritten::Outcome::Stopped;
        return false;
    });
}

} // namespace

GridFormat gridFormatOf(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == u"xls")
        return GridFormat::Xls;
    if (suffix == u"txt")
        return GridFormat::Txt;
    return suffix == u"html" || suffix == u"htm" ? GridFormat::Html : GridFormat::Csv;
}

GridWritten writeGrid(
    const GridTable& grid, const QString& path, const QString& datePattern, const GridProgress& progress)
{
    GridWritten written;
    const GridFormat format = gridFormatOf(path);
    if (format == GridFormat::Xls && !fitsWorkbook(grid)) {
        written.outcome = GridWritten::Outcome::TooLarge;
        return written;
    }
    QSaveFile file(path);
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && writeContent(format, grid, file, datePattern, progress, written);
    if (written.outcome == GridWritten::Outcome::Stopped)
        return written;
    if (isWritten && platform::commitWhole(file))
        written.outcome = GridWritten::Outcome::Written;
    else
        written.why = platform::whyNotReplaced(path);
    return written;
}

bool fitsWorkbook(const GridTable& grid)
{
    int records = 0;
    for (int row = 0; row < grid.rowCount() && records < formats::maxSheetRows; ++row)
        records += grid.rows->row(row).outlineLevel < 0 ? 1 : 0;
    return records < formats::maxSheetRows && grid.shownColumns().size() <= formats::maxSheetColumns;
}

} // namespace output
