#include "output/grid/grid_export.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/progress.h"
#include "formats/workbook.h"
#include "jet/date_text.h"
#include "output/export_dialog.h"
#include "output/grid/grid_files.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

using platform::Answer;

constexpr QStringView kFilter = u"Excel File (*.xls)|*.xls|CSV File (*.CSV)|*.CSV|Text File (*.txt)|*.txt|"
                                "Text File (*.html)|*.html";
constexpr QStringView kCsvFilter = u"CSV File (*.CSV)|*.CSV";

QString translated(const char* text)
{
    return QCoreApplication::translate("output", text);
}

class GridExport {
public:
    GridExport(core::Context& context, const GridTable& grid, GridFile file, QWidget* over)
        : m_context(context)
        , m_boxes(context.services.boxes)
        , m_grid(grid)
        , m_file(std::move(file))
        , m_over(over)
    {
    }

    bool run()
    {
        const QString path = askForFile(m_file.filter, m_file.ending);
        if (path.isEmpty())
            return false;
        if (gridFormatOf(path) == GridFormat::Xls && !fitsWorkbook(m_grid))
            return offerCsv();
        return write(path);
    }

private:
    /// Empty when the person gives up.
    QString askForFile(QStringView filter, const QString& ending)
    {
        const platform::Drive& drive = m_context.services.drive;
        drive.ensureFolder(kExportFolder);
        // What the dialog took for an ending may be a part of the name.
        return output::askForFile(m_context, translated("Export"), filter,
            {drive.local(kExportFolder), m_file.stem + ending}, ending, [](const QString& path) {
                static const QStringList known{u"xls"_s, u"csv"_s, u"txt"_s, u"html"_s, u"htm"_s};
                return known.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
            });
    }

    bool offerCsv()
    {
        const QString question
            = translated("This list has %1 rows and %2 columns. An Excel file takes %3 rows "
                         "and %4 columns only. Save it as a CSV file instead?")
                  .arg(QString::number(m_grid.rowCount()), QString::number(m_grid.shownColumns().size()),
                      QString::number(formats::maxSheetRows - 1), QString::number(formats::maxSheetColumns));
        if (m_boxes.ask(question, m_context.shared.AppTitle) == Answer::No)
            return false;
        const QString path = askForFile(kCsvFilter, u".csv"_s);
        return !path.isEmpty() && write(path);
    }

    bool write(const QString& path)
    {
        const QString file = QFileInfo(path).fileName();
        const GridWritten written = [&] {
            core::Progress progress(u"exportProgress"_s, translated("Export"),
                translated("Writing %1 rows to %2").arg(QString::number(m_grid.rowCount()), file),
                m_grid.rowCount(), m_over);
            return writeGrid(m_grid, path, core::datePattern(m_context.shared.NationalMode),
                [&progress](int done) { return progress.advance(done); });
        }();
        const QString title = m_context.shared.AppTitle;
        switch (written.outcome) {
        case GridWritten::Outcome::Written: break;
        case GridWritten::Outcome::Stopped:
            m_boxes.information(translated("Stopped. No file was written."), title);
            return false;
        case GridWritten::Outcome::TooLarge:
        case GridWritten::Outcome::Failed:
            m_boxes.warning(translated("The file %1 was not written: %2.").arg(path, written.why), title);
            return false;
        }
        if (written.cutTexts > 0)
            m_boxes.warning(
                translated("%1 texts were cut, as a cell of an Excel file takes %2 letters. A CSV file holds "
                           "them whole.")
                    .arg(written.cutTexts)
                    .arg(formats::maxSheetText),
                title);
        if (written.rowsWithoutLetters > 0)
            m_boxes.warning(
                translated("%1 rows have letters that a text file has no room for; \"?\" stands in "
                           "their place. An Excel or CSV file holds them.")
                    .arg(written.rowsWithoutLetters),
                title);
        m_context.frame.showNotice(translated("Exported to %1").arg(file), translated("Open"),
            [&shell = m_context.services.shell, path] { shell.openFile(path); });
        return true;
    }

    core::Context& m_context;
    platform::MessageBoxes& m_boxes;
    const GridTable& m_grid;
    GridFile m_file;
    QWidget* m_over;
};

} // namespace

bool GridXLS(core::Context& context, const GridTable& grid, QWidget* over)
{
    const QString stem = platform::Drive::safeFileName(datedTitle(context, grid.title));
    return saveGrid(context, grid, {kFilter.toString(), stem, u".xls"_s}, over);
}

bool saveGrid(core::Context& context, const GridTable& grid, const GridFile& file, QWidget* over)
{
    return GridExport(context, grid, file, over).run();
}

QString datedTitle(const core::Context& context, const QString& title)
{
    return title + u" - "_s
        + jet::formatDate(context.services.clock.today(), core::datePattern(context.shared.NationalMode));
}

} // namespace output
