#include "anniversaries/calendar_file/save_calendar.h"

#include "anniversaries/calendar_file/celebrated_day.h"
#include "core/frame.h"
#include "core/progress.h"
#include "output/export_dialog.h"
#include "output/grid/grid_export.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/storage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr QStringView kFolder = u"C:\\OVUserfiles\\Exported Files\\Calendar";

QString translated(const char* text)
{
    return QCoreApplication::translate("anniversaries", text);
}

QString askForFile(core::Context& context)
{
    const platform::Drive& drive = context.services.drive;
    drive.ensureFolder(kFolder);
    const QString name = platform::Drive::safeFileName(
        output::datedTitle(context, translated("Birthdays and Anniversaries")));
    return output::askForFile(context, translated("Save as calendar file"), u"Calendar File (*.ics)|*.ics",
        {drive.local(kFolder), name + u".ics"_s}, u".ics"_s,
        [](const QString& path) { return path.endsWith(u".ics"_s, Qt::CaseInsensitive); });
}

enum class Ended { Written, Stopped, Failed };

Ended write(core::Context& context, const QString& path, QWidget* over)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Ended::Failed;
    const int total = countCelebratedDays(context.data);
    core::Progress progress(u"calendarProgress"_s, translated("Save as calendar file"),
        translated("Writing %1 days").arg(total), total, over);
    const int thisYear = context.services.clock.today().year();
    const QDateTime now = context.services.clock.now();
    int done = 0;
    bool goesOn = true;
    bool fits = file.write(formats::calendarHead()) > 0;
    const bool whole = forEachCelebratedDay(context.data, [&](const CelebratedDay& day) {
        fits = fits && file.write(formats::calendarDay(yearlyDay(day, thisYear), now)) > 0;
        goesOn = progress.advance(++done);
        return fits && goesOn;
    });
    if (!goesOn)
        return Ended::Stopped;
    fits = fits && whole && file.write(formats::calendarFoot()) > 0;
    return fits && platform::commitWhole(file) ? Ended::Written : Ended::Failed;
}

} // namespace

void saveCalendarFile(core::Context& context, QWidget* over)
{
    const QString path = askForFile(context);
    if (path.isEmpty())
        return;
    const QString title = context.shared.AppTitle;
    switch (write(context, path, over)) {
    case Ended::Stopped:
        return context.services.boxes.information(translated("Stopped. No file was written."), title);
    case Ended::Failed:
        return context.services.boxes.warning(
            translated("The file %1 was not written: %2.").arg(path, platform::whyNotReplaced(path)), title);
    case Ended::Written: break;
    }
    context.frame.showNotice(translated("Saved %1").arg(QFileInfo(path).fileName()), translated("Open"),
        [&shell = context.services.shell, path] { shell.openFile(path); });
}

} // namespace anniversaries
