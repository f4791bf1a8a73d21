#include "letters/lists/save_list.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "formats/delimited.h"
#include "jet/date_text.h"
#include "output/export_dialog.h"
#include "output/grid/grid_export.h"
#include "output/grid/selection_grid.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/text_file.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

const QStringList kHeads{
    u"Name"_s, u"Address1"_s, u"Address2"_s, u"City"_s, u"State"_s, u"Country"_s, u"pin"_s};

QString say(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

/// Values with "," between, in the code page of the system.
QString writeText(const jet::Recordset& rows, const QString& path)
{
    platform::TextFileWriter file(path);
    const auto write = [&file](const QStringList& values) {
        return file.writeLine(QString::fromUtf8(formats::csvLine(values)).chopped(2));
    };
    bool isWritten = file.isOpen() && write(kHeads);
    for (int row = 0; isWritten && row < rows.count(); ++row) {
        QStringList values;
        for (int column = 0; column < kHeads.size(); ++column)
            values << rows.textAt(row, column);
        isWritten = write(values);
    }
    return isWritten && file.commit() ? QString() : file.whyNot();
}

void saveText(core::Context& context, const jet::Recordset& rows, const QString& stem)
{
    const QString path = output::askForFile(context, say("Export"), u"*.txt|*.txt",
        {context.services.drive.local(output::kExportFolder), stem + u".txt"_s}, u".txt"_s,
        [](const QString& chosen) { return !QFileInfo(chosen).suffix().isEmpty(); });
    if (path.isEmpty())
        return;
    if (const QString why = writeText(rows, path); !why.isEmpty())
        return context.services.boxes.warning(
            say("The file %1 was not written: %2.").arg(path, why), context.shared.AppTitle);
    context.frame.showNotice(say("Exported to %1").arg(QFileInfo(path).fileName()), say("Open"),
        [&shell = context.services.shell, path] { shell.openFile(path); });
}

} // namespace

void saveMembers(core::Context& context, jet::Recordset rows, output::GridFormat format, const QString& list,
    QWidget* over)
{
    context.services.drive.ensureFolder(output::kExportFolder);
    const QString stem = platform::Drive::safeFileName(
        list + u'-' + jet::formatDate(context.services.clock.today(), u"dd mmm-yy"));
    if (format == output::GridFormat::Txt)
        return saveText(context, rows, stem);
    const bool isXls = format == output::GridFormat::Xls;
    output::saveGrid(context,
        output::selectionGrid(std::move(rows), kHeads, list, core::datePattern(context.shared.NationalMode)),
        {isXls ? u"*.xls|*.xls"_s : u"*.csv|*.csv"_s, stem, isXls ? u".xls"_s : u".csv"_s}, over);
}

} // namespace letters
