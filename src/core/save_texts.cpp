#include "core/save_texts.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/progress.h"
#include "core/text_export.h"
#include "platform/message_boxes.h"
#include "platform/special_folders.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("core", text);
}

TextExport toDesktop(Context& context)
{
    return {context.data, context.services.drive,
        context.services.folders.SpecialFolderPath(platform::csidlDesktop),
        datePattern(context.shared.NationalMode)};
}

/// @param success what is said of a file that was written
void tell(Context& context, const TextSaved& saved, const QString& success)
{
    platform::MessageBoxes& boxes = context.services.boxes;
    const QString title = context.shared.AppTitle;
    switch (saved.outcome) {
    case TextSaved::Outcome::Written: return boxes.information(success, title);
    case TextSaved::Outcome::NoContacts: return boxes.information(translated("Record not selected"), title);
    case TextSaved::Outcome::Stopped:
        return boxes.information(translated("Stopped. No file was written."), title);
    case TextSaved::Outcome::BadName:
        return boxes.warning(
            translated(
                "The file was not written: a contact whose name can not be the name of a file has none."),
            title);
    case TextSaved::Outcome::Failed:
        return boxes.warning(
            translated("The file %1 was not written: %2.").arg(saved.path, saved.why), title);
    }
}

} // namespace

void saveContactText(Context& context, qint64 id)
{
    tell(context, SaveRecordText(toDesktop(context), id), translated("File saved successfully"));
}

bool saveBookText(Context& context, bool labels, QWidget* over)
{
    const int contacts = context.data.openRecordset(contactCountSql()).textAt(0).toInt();
    const TextExport to = toDesktop(context);
    const TextSaved saved = [&] {
        Progress progress(u"textProgress"_s, translated("Save as text"),
            translated("Writing the text of %1 contacts").arg(contacts), contacts, over);
        const auto advance = [&progress](int done) { return progress.advance(done); };
        return labels ? SaveAllText(to, advance) : SaveAllTextShort(to, advance);
    }();
    tell(context, saved, translated("File saved on %1").arg(saved.path));
    return saved.outcome == TextSaved::Outcome::Written;
}

} // namespace core
