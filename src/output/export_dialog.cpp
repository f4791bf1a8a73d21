#include "output/export_dialog.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace output {

QString askForFile(core::Context& context, const QString& title, QStringView filter,
    const platform::FileSuggestion& suggestion, const QString& ending,
    const std::function<bool(const QString& path)>& isWhole)
{
    platform::MessageBoxes& boxes = context.services.boxes;
    const auto chosen = boxes.saveFile(title, filter.toString(), suggestion);
    if (!chosen || isWhole(*chosen))
        return chosen.value_or(QString());
    const QString whole = *chosen + ending;
    const bool isFree = !QFileInfo::exists(whole)
        || boxes.ask(QCoreApplication::translate("output", "%1 is there already. Replace it?")
                         .arg(QFileInfo(whole).fileName()),
               context.shared.AppTitle, platform::Icon::Warning)
            == platform::Answer::Yes;
    return isFree ? whole : QString();
}

} // namespace output
