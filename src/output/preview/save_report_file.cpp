#include "output/preview/save_report_file.h"

#include "core/frame.h"
#include "core/progress.h"
#include "output/export_dialog.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/storage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace output {

namespace {

struct FormatRow {
    const char* title;
    QStringView folder;
    QStringView filter;
    QStringView suffix;
};

// In the order of ReportFormat.
constexpr FormatRow kFormats[] = {
    {QT_TRANSLATE_NOOP("output", "Save As HTML"), u"C:\\OVUserFiles\\Exported Files\\Html",
        u"HTML File (*.htm)|*.htm", u".htm"},
    {QT_TRANSLATE_NOOP("output", "Save As PDF"), u"C:\\OVUserFiles\\Exported Files\\PDF",
        u"PDF File (*.pdf)|*.pdf", u".pdf"},
    {QT_TRANSLATE_NOOP("output", "Save As RTF"), u"C:\\OVUserFiles\\Exported Files\\RTF",
        u"Rich Text Document File (*.rtf)|*.rtf", u".rtf"},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("output", text);
}

} // namespace

void saveReportFile(core::Context& context, const Report& report, ReportFormat format,
    const PictureOf& pictures, QWidget* over)
{
    const FormatRow& row = kFormats[static_cast<int>(format)];
    const platform::Drive& drive = context.services.drive;
    platform::MessageBoxes& boxes = context.services.boxes;
    drive.ensureFolder(row.folder);
    const bool hasOwnEnding = format == ReportFormat::Html && !report.htmlEnding.isEmpty();
    const QString suffix = hasOwnEnding ? report.htmlEnding : row.suffix.toString();
    const QString filter = hasOwnEnding ? u"HTML File (*.htm)|*"_s + suffix : row.filter.toString();
    const QString title = report.saveTitle.isEmpty() ? translated(row.title) : report.saveTitle;
    const QString path = askForFile(context, title, filter,
        {drive.local(row.folder), platform::Drive::safeFileName(report.fileStem) + suffix}, suffix,
        [&suffix](const QString& name) {
            return QFileInfo(name).fileName().contains(suffix, Qt::CaseInsensitive);
        });
    if (path.isEmpty())
        return;
    const auto tellFailure = [&] {
        boxes.warning(
            translated("The report could not be saved as %1: %2.").arg(path, platform::whyNotReplaced(path)),
            context.shared.AppTitle);
    };
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return tellFailure();
    bool wasStopped = false;
    bool written = false;
    {
        core::Progress progress(u"reportProgress"_s, translated(row.title),
            translated("Saving %1").arg(report.title), report.source->count(), over);
        written = writeReport(format, report, file, pictures, [&](int done) {
            wasStopped = !progress.advance(done);
            return !wasStopped;
        });
    }
    if (written && platform::commitWhole(file)) {
        context.frame.showNotice(translated("Saved %1").arg(QFileInfo(path).fileName()), translated("Open"),
            [&context, path] { context.services.shell.openFile(path); });
        return;
    }
    file.cancelWriting();
    if (!wasStopped)
        tellFailure();
}

} // namespace output
